#pragma once

#include <QObject>
#include <QString>

/// Waits for an event in one channel of a chart, and reports when its surroundings have been caught: a share of the
/// visible span before it and the rest after it. The chart feeds it sample by sample and holds the picture.
///
/// Normal: each event replaces the picture of the previous one. Auto: like Normal, but without an event for two spans
/// the chart runs live. Single: the first event stays until rearm(). What was caught stays until release() in any case.
/// Off at first. Main thread only; feed() allocates nothing.
class WaveTrigger : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(WaveTrigger)
    Q_PROPERTY(bool on READ isOn WRITE setOn NOTIFY settingsChanged)
    Q_PROPERTY(int channel READ channel WRITE setChannel NOTIFY settingsChanged)
    Q_PROPERTY(Edge edge READ edge WRITE setEdge NOTIFY settingsChanged)
    Q_PROPERTY(Mode mode READ mode WRITE setMode NOTIFY settingsChanged)
    Q_PROPERTY(double level READ level WRITE setLevel NOTIFY settingsChanged)
    Q_PROPERTY(double bandEnd READ bandEnd WRITE setBandEnd NOTIFY settingsChanged)
    Q_PROPERTY(double preShare READ preShare WRITE setPreShare NOTIFY settingsChanged)
    Q_PROPERTY(double span READ span WRITE setSpan NOTIFY settingsChanged)
    Q_PROPERTY(bool records READ records WRITE setRecords NOTIFY settingsChanged)
    Q_PROPERTY(State state READ state NOTIFY stateChanged)
    Q_PROPERTY(QString stateText READ stateText NOTIFY stateChanged)

public:
    enum class Edge { Rising, Falling, Either, OutsideBand };
    Q_ENUM(Edge)
    enum class Mode { Auto, Normal, Single };
    Q_ENUM(Mode)
    enum class State {
        Off,
        Waiting,
        Catching, ///< the event was seen, and the samples after it are awaited
        Held,     ///< Single has caught its event
    };
    Q_ENUM(State)

    /// What a sample means for the picture.
    enum class Step {
        Nothing,
        Caught, ///< hold from eventSec() - beforeSec() to eventSec() + afterSec()
        Lapsed, ///< nothing has happened for a long time: show the live picture
    };

    using QObject::QObject;

    bool isOn() const { return m_state != State::Off; }
    void setOn(bool on);
    int channel() const { return m_channel; }
    void setChannel(int channel);
    Edge edge() const { return m_edge; }
    void setEdge(Edge edge);
    Mode mode() const { return m_mode; }
    void setMode(Mode mode);
    /// The value to cross; for OutsideBand one end of the band, the other is bandEnd().
    double level() const { return m_level; }
    void setLevel(double level);
    double bandEnd() const { return m_bandEnd; }
    void setBandEnd(double value);
    /// Part of the span that lies before the event, 0 to 1.
    double preShare() const { return m_preShare; }
    void setPreShare(double share);
    /// Seconds that are caught.
    double span() const { return m_span; }
    void setSpan(double seconds);

    /// An event is to start a recording; receivers of caught() do so.
    bool records() const { return m_records; }
    void setRecords(bool records);

    State state() const { return m_state; }
    QString stateText() const;
    /// Time of the last event on the stream's clock in seconds.
    double eventSec() const { return m_eventSec; }
    double beforeSec() const { return m_span * m_preShare; }
    double afterSec() const { return m_span * (1 - m_preShare); }

    /// Waits for the next event, after release() or in Single mode.
    Q_INVOKABLE void rearm();
    /// Takes the next sample of the channel. A value that is not finite crosses nothing.
    Step feed(double value, double timeSec);
    /// The next sample does not continue the previous ones: no edge lies between them, and a capture in progress is
    /// abandoned.
    void interrupt();

signals:
    void settingsChanged();
    void stateChanged();
    /// An event was caught; its consequences, a marker or a recording, may start.
    void caught(double eventSec);

private:
    template <typename T> void set(T &member, T value);
    void setState(State state);
    bool isEvent(double value) const;

    int m_channel = 0;
    Edge m_edge = Edge::Rising;
    Mode m_mode = Mode::Normal;
    double m_level = 0;
    double m_bandEnd = 1;
    double m_preShare = 0.5;
    double m_span = 10;
    bool m_records = false;
    State m_state = State::Off;
    bool m_hasLast = false;
    double m_last = 0;     ///< previous value
    double m_eventSec = 0; ///< or the start of waiting
    bool m_shows = false;  ///< a caught event is on the screen
};
