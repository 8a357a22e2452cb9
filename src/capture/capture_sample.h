#pragma once

#include <QByteArray>

#include <optional>

#include "link/sample_fields.h"

/// A decoded sample on its way into a capture. A plain value.
struct CaptureSample
{
    node_data_t node;
    SampleFields fields;                ///< what the stream carries; the rest is left out
    std::optional<double> streamTimeMs; ///< the session's time line
};

/// The JSON that captures hold: one flat object per message, whose schema says what each key is and in which unit.
namespace capture_json {

/// JSON Schema of a sample and of an event.
QByteArray sampleSchema();
QByteArray eventSchema();

/// Numbers come back as the same float. One that is not finite is left out: JSON has none.
QByteArray sample(const CaptureSample &sample);

} // namespace capture_json
