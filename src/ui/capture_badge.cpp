#include "ui/capture_badge.h"

#include <QDir>
#include <QEvent>
#include <QLocale>

#include "session/session_capture.h"

CaptureBadge::CaptureBadge(const SessionCapture *capture, QWidget *parent) : QToolButton(parent), m_capture(capture)
{
    setObjectName(QStringLiteral("button_capture"));
    setAutoRaise(true);
    hide();
    connect(capture, &SessionCapture::capturingChanged, this, &CaptureBadge::refresh);
    connect(capture, &SessionCapture::problemChanged, this, &CaptureBadge::refresh);
}

void CaptureBadge::refresh()
{
    const QString problem = m_capture->problem();
    setVisible(m_capture->isCapturing() || !problem.isEmpty());
    if (isHidden())
        return;
    const QString size = QLocale::c().formattedDataSize(m_capture->writer().fileSize(), 1, QLocale::DataSizeSIFormat);
    const QString text = problem.isEmpty() ? tr("Capture %1").arg(size) : tr("Capture: problem");
    if (QToolButton::text() != text)
        setText(text);
    setToolTip(problem.isEmpty() ? QDir::toNativeSeparators(m_capture->writer().path()) : problem);
}

void CaptureBadge::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        refresh();
    QToolButton::changeEvent(event);
}
