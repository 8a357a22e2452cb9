#include "ui/recording_actions.h"

#include <QAction>

#include <limits>

#include "record/recorder.h"
#include "session/device_session.h"
#include "session/session_capture.h"
#include "ui/session_text.h"

namespace {

constexpr double kMsPerSecond = 1000;

bool canStop(const Recorder &recorder)
{
    return recorder.isRecording() || recorder.isWaitingForLink();
}

} // namespace

RecordingActions::RecordingActions(DeviceSession *session, QAction *record, QAction *marker, QObject *parent)
    : QObject(parent), m_session(session), m_record(record), m_marker(marker)
{
    record->setShortcutContext(Qt::ApplicationShortcut); // whichever window is active
    const Recorder *recorder = &session->recorder();
    connect(record, &QAction::triggered, this, &RecordingActions::toggle);
    connect(marker, &QAction::triggered, this, &RecordingActions::setMarker);
    connect(recorder, &Recorder::stateChanged, this, &RecordingActions::refresh);
    connect(session, &DeviceSession::stateChanged, this, &RecordingActions::refresh);
    connect(recorder, &Recorder::markerAdded, this, [this](unsigned int number, const QString &, double timeS) {
        emit said(qIsFinite(timeS) ? tr("Marker %1 at %2 s").arg(number).arg(timeS, 0, 'f', 3)
                                   : tr("Marker %1").arg(number));
    });
    connect(recorder, &Recorder::recordingChanged, this, [this, recorder](bool isRecording) {
        if (isRecording)
            emit said(tr("Recording"));
        else if (recorder->hasRun())
            emit said(tr("Recording stopped: %1 records").arg(recorder->recordCount()));
    });
    refresh();
}

void RecordingActions::toggle()
{
    Recorder &recorder = m_session->recorder();
    if (canStop(recorder))
        return recorder.stop();
    recorder.startAgain();
    if (!recorder.isRecording())
        emit refused();
}

void RecordingActions::setMarker()
{
    const std::optional<StreamSample> &newest = m_session->newestSample();
    const double timeS =
        newest ? newest->snapshot.sample.time_ms / kMsPerSecond : std::numeric_limits<double>::quiet_NaN();
    Recorder &recorder = m_session->recorder();
    if (recorder.addMarker(tr("Marker %1").arg(recorder.markerCount() + 1), timeS))
        return;
    if (m_session->capture().addMarker(tr("Marker"), timeS))
        emit said(qIsFinite(timeS) ? tr("Marker at %1 s").arg(timeS, 0, 'f', 3) : tr("Marker"));
    else
        emit said(tr("Markers go into recordings and captures: start one first"));
}

void RecordingActions::refresh()
{
    const Recorder &recorder = m_session->recorder();
    const bool stops = canStop(recorder);
    const Refusal refusal = stops ? Refusal::None : m_session->refusal(SessionAction::StartRecording);
    m_record->setText(stops ? tr("&Stop recording") : tr("&Start recording"));
    m_record->setEnabled(refusal == Refusal::None);
    m_record->setToolTip(refusal != Refusal::None ? session_text::refusal(refusal)
                         : stops                  ? tr("Writes what has arrived and closes the file")
                                                  : tr("Records with the last folder and name"));
    m_marker->setEnabled(m_session->isOpen());
}
