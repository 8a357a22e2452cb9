#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

class DeviceSession;
class QAction;
class QLabel;
class QStatusBar;

/// The texts in the status bar: state of the connection, followed node, traffic.
class StatusLine : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(StatusLine)

public:
    /// A click on the traffic triggers `linkHealth`. All arguments outlive this object.
    StatusLine(DeviceSession *session, QStatusBar *bar, QAction *linkHealth, QObject *parent = nullptr);

    /// Shows the current state. Call at the display rate.
    void refresh();
    /// Says that a port is being opened, and which one, before refresh() takes over.
    void showOpening();
    /// Reports something that has just happened, for a moment.
    void say(const QString &text);
    /// The connection has ended.
    void showClosed();
    /// Updates the texts to the current language.
    void retranslate();
    /// Sets the size of the figures' font.
    void setFontSize(int points);

private:
    DeviceSession *m_session;
    QLabel *m_state;
    QLabel *m_node;
    QLabel *m_traffic;
    QElapsedTimer m_opening; ///< since a port was chosen
    QTimer m_saying;         ///< runs while a message is shown
};
