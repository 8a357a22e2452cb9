#pragma once

#include <QWidget>

#include <array>

#include "link/node_data.h"
#include "link/sample_fields.h"
#include "link/sample_gaps.h"
#include "session/stream_event.h"
#include "ui/trace_clock.h"

class QLabel;
class ValueCard;
class ValueStrip;

/// What the numeric panel shows: one sample of the selected node.
struct SensorDataModel
{
    node_data_t node;
    SampleFields fields; ///< what the stream carries; everything else is shown as a dash
};

/// The numeric panel: all values of the selected node with units, in cards with bars and a trace of the last seconds,
/// and the summary row. Shows dashes for what the stream does not carry. Repaints only what changed.
class SensorDataPanel : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SensorDataPanel)

public:
    explicit SensorDataPanel(QWidget *parent = nullptr);

    /// Adds a sample to the traces without repainting. A trace breaks where the stream restarted, and where the
    /// device's clock shows a gap.
    void appendSample(const StreamSample &sample);
    /// Shows the values. Call at the display rate, not at the stream's.
    void setModel(const SensorDataModel &model);
    /// Shows or hides the row with node, time, temperature and pressure.
    void setSummaryVisible(bool visible);
    /// Lets the traces move on when no sample arrives, on the clock of StreamSample::hostMs.
    void advance(qint64 nowMs);
    /// Shows dashes everywhere.
    void clear();
    void retranslate();

    /// All values as lines "name<TAB>value unit", for the clipboard.
    QString text() const;

private:
    QList<ValueCard *> cards() const;

    ValueCard *m_acceleration;
    ValueCard *m_angularRate;
    ValueCard *m_magneticField;
    ValueCard *m_quaternion;
    QWidget *m_summaryCard;
    ValueStrip *m_summary;
    TraceClock m_clock;
    SampleGaps m_gaps;
};
