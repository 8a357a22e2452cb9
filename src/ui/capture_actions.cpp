#include "ui/capture_actions.h"

#include <QAction>
#include <QDir>

#include "session/device_session.h"
#include "session/session_capture.h"
#include "ui/session_text.h"

CaptureActions::CaptureActions(DeviceSession *session, QAction *capture, QObject *parent)
    : QObject(parent), m_session(session), m_capture(capture)
{
    capture->setShortcutContext(Qt::ApplicationShortcut); // whichever window is active
    connect(capture, &QAction::triggered, this, &CaptureActions::toggle);
    connect(&session->capture(), &SessionCapture::capturingChanged, this, &CaptureActions::refresh);
    connect(&session->capture(), &SessionCapture::problemChanged, this, [this] {
        if (const QString problem = m_session->capture().problem(); !problem.isEmpty())
            emit said(problem);
    });
    connect(session, &DeviceSession::stateChanged, this, &CaptureActions::refresh);
    refresh();
}

void CaptureActions::toggle()
{
    SessionCapture &capture = m_session->capture();
    if (capture.isCapturing())
        capture.stop();
    else
        capture.start();
}

void CaptureActions::refresh()
{
    const SessionCapture &capture = m_session->capture();
    const bool stops = capture.isCapturing();
    const Refusal refusal = stops ? Refusal::None : m_session->refusal(SessionAction::StartCapture);
    m_capture->setText(stops ? tr("Stop &capture") : tr("Start &capture"));
    m_capture->setEnabled(refusal == Refusal::None);
    m_capture->setToolTip(refusal == Refusal::None ? tr("Captures every byte, sample and event into one file")
                                                   : session_text::refusal(refusal));
    if (stops == m_wasCapturing)
        return;
    m_wasCapturing = stops;
    if (stops)
        emit said(tr("Capturing"));
    else if (!capture.writer().fault().any())
        emit said(tr("Captured into %1").arg(QDir::toNativeSeparators(capture.writer().path())));
}
