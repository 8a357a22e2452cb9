#include "ui/recording_badge.h"

#include <QEvent>

#include "record/recorder.h"
#include "ui/recording_text.h"

RecordingBadge::RecordingBadge(const Recorder *recorder, QWidget *parent) : QToolButton(parent), m_recorder(recorder)
{
    setObjectName(QStringLiteral("button_recording"));
    setAutoRaise(true);
    hide();
    connect(recorder, &Recorder::recordingChanged, this, &RecordingBadge::refresh);
    connect(recorder, &Recorder::stateChanged, this, &RecordingBadge::refresh);
    connect(recorder, &Recorder::troubleChanged, this, &RecordingBadge::refresh);
}

void RecordingBadge::refresh()
{
    const bool trouble = m_recorder->hasTrouble();
    const bool waits = m_recorder->isWaitingForLink();
    setVisible(m_recorder->isRecording() || waits || trouble);
    if (isHidden())
        return;
    const QString text = waits     ? tr("Recording: waiting")
                         : trouble ? tr("Recording: problem")
                                   : tr("Recording %1").arg(recording_text::elapsed(m_recorder->elapsedMs()));
    if (QToolButton::text() != text)
        setText(text);
}

void RecordingBadge::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    QToolButton::changeEvent(event);
}
