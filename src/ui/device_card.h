#pragma once

#include <QFrame>

#include <memory>

class DeviceSession;

namespace Ui {
class DeviceCard;
}

/// Shows what the connected device is, and how it is mounted.
class DeviceCard : public QFrame
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DeviceCard)

public:
    /// `session` outlives this widget.
    explicit DeviceCard(DeviceSession *session, QWidget *parent = nullptr);
    ~DeviceCard() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void showDevice();

    std::unique_ptr<Ui::DeviceCard> m_ui;
    DeviceSession *m_session;
};
