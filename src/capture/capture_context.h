#pragma once

#include <QString>

#include "capture/mcap_records.h"

/// What is known about the connection that is captured. A plain value; empty texts and 0 mean not known.
struct CaptureContext
{
    QString source; ///< the port or the address, as typed
    int baudRate = 0;
    QString product; ///< name of the product
    QString model;   ///< as the device answered, like the next two
    QString build;
    QString uuid;
    int outputRateHz = 0;   ///< rate that the device reports as its setting
    int measuredRateHz = 0; ///< packets per second that actually arrive
    QString mounting;       ///< convention of the displayed angles; captured angles are as the device sends them

    bool operator==(const CaptureContext &) const = default;

    /// For the metadata record: keys as in the description beside a recording, with what is known.
    mcap::TextMap entries() const;
};
