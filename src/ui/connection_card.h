#pragma once

#include <QFrame>

#include <memory>

class DeviceSession;

namespace Ui {
class ConnectionCard;
}

/// Port, protocol and frame rate of the connection, or what is missing; and, when only noise arrives, the offer to try
/// other baud rates.
class ConnectionCard : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ConnectionCard)

public:
    /// `session` outlives this widget.
    explicit ConnectionCard(DeviceSession *session, QWidget *parent = nullptr);
    ~ConnectionCard() override;

    /// Shows the current state of the connection. Call at the display rate.
    void refresh();
    void clear();

protected:
    void changeEvent(QEvent *event) override;

private:
    void showNoise();

    std::unique_ptr<Ui::ConnectionCard> m_ui;
    DeviceSession *m_session;
};
