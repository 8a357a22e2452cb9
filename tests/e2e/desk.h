#pragma once

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <qtestsupport_core.h> // qWaitFor() for programs that are not tests

#include "session/device_session.h"
#include "ui/form_base.h"
#include "ui/form_com_select.h"
#include "ui/form_settings.h"
#include "ui/sensor_data_panel.h"

/// Opens a port as a user does: the action, the path typed into the dialog, the button. Returns when the connection is
/// identified, silent or gone, and after 15 s in any case.
inline void openPort(const form_base &window, const QString &path, int baud = 921600)
{
    window.findChild<QAction *>(QStringLiteral("action_serial_open"))->trigger();
    auto *dialog = window.findChild<form_com_select *>();
    dialog->findChild<QLineEdit *>(QStringLiteral("LE_path"))->setText(path);
    dialog->findChild<QComboBox *>(QStringLiteral("CB_baud"))->setCurrentText(QString::number(baud));
    auto *button = dialog->findChild<QPushButton *>(QStringLiteral("BTN_open"));
    if (button->isEnabled())
        button->click();
    else
        dialog->reject();
    const QPointer<DeviceSession> session(&window.session());
    const auto isSettled = [&session] {
        return session == nullptr
               || (session->state() != SessionState::Opening && session->state() != SessionState::Identifying);
    };
    (void)QTest::qWaitFor(isSettled, 15000);
}

/// A user's desk: the real main window in a separate working folder, and what the user does and sees there.
class Desk
{
public:
    Desk()
    {
        QDir::setCurrent(m_folder.path());
        restart();
    }
    ~Desk()
    {
        window.reset();
        QDir::setCurrent(QDir::rootPath());
    }
    Q_DISABLE_COPY_MOVE(Desk)

    /// Closes the main window and creates a new one in the same working folder. The log continues.
    void restart()
    {
        window.reset();
        window = std::make_unique<form_base>();
        window->show();
    }

    template <typename T> T *find(const char *name) const { return window->findChild<T *>(QLatin1String(name)); }
    /// The text of a label, without its optional line breaks.
    QString label(const char *name) const { return find<QLabel>(name)->text().remove(QChar(0x200B)); }
    QString panel() const { return window->findChild<SensorDataPanel *>()->text(); }
    QMessageBox *errorBox() const { return window->findChild<QMessageBox *>(); }
    /// The settings window; null until it is first requested.
    form_settings *settings() const { return window->findChild<form_settings *>(); }
    bool isOpen() const { return find<QWidget>("page_live")->isVisible(); }

    /// The value of a line of the panel, such as "Acceleration X": "+0.250 G".
    QString value(const char *name) const
    {
        const QString start = QLatin1String(name) + u'\t';
        for (const QString &line : panel().split(u'\n')) {
            if (line.startsWith(start))
                return line.mid(start.size());
        }
        return QStringLiteral("not shown");
    }

    /// Returns when identification has ended.
    void open(const QString &path, int baud = 921600) { openPort(*window, path, baud); }

    QByteArray log() const
    {
        QFile file(QStringLiteral("debug.log"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<form_base> window;

private:
    QTemporaryDir m_folder;
};
