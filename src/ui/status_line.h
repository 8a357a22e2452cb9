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
    /// A click on the traffic triggers `linkHealth`. All outlive this object.
    StatusLine(DeviceSession *session, QStatusBar *bar, QAction *linkHealth, QObject *parent = nullptr);

    /// Shows what is now. Call at the pace of the display.
    void refresh();
    /// A port is being opened: says so, and which one, before refresh() takes over.
    void showOpening();
    /// Says something that has just happened, for a moment.
    void say(const QString &text);
    /// The connection has ended.
    void showClosed();
    /// Texts in the language of now.
    void retranslate();
    /// The figures' font, of this size.
    void setFontSize(int points);

private:
    DeviceSession *m_session;
    QLabel *m_state;
    QLabel *m_node;
    QLabel *m_traffic;
    QElapsedTimer m_opening; ///< since a port was chosen
    QTimer m_saying;         ///< runs while something is said
};
