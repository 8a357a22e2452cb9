#pragma once

#include <QDialog>
#include <QTimer>

#include <functional>
#include <memory>

#include "ui/port_choice.h"

class QTreeWidgetItem;

namespace Ui {
class form_com_select;
}

/// Asks for the serial port and the baud rate. The list follows plugging and unplugging while the window is visible; a
/// path can also be typed, such as a pseudo-terminal or a link to a device file. The last accepted choice is kept in
/// the settings file and offered first next time. Nothing is opened here.
///
/// The path field is authoritative: choosing a row fills it, and the row whose path it holds is the selected one.
///
/// Open it with open(). portName() and baudRate() give the last accepted values, so a cancelled run changes nothing.
class form_com_select : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_com_select)

public:
    using PortSource = std::function<QList<port_choice::PortEntry>()>;

    /// `source` lists the ports; it is polled once a second.
    explicit form_com_select(QWidget *parent = nullptr, PortSource source = port_choice::systemPorts);
    ~form_com_select() override;

    /// Name or path of the port that was accepted last; empty before the first.
    QString portName() const { return m_portName; }
    /// Baud rate that was accepted last; port_choice::kDefaultBaud before the first.
    int baudRate() const { return m_baudRate; }

public slots:
    void accept() override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void refreshPorts();
    void updateRows(const QList<port_choice::PortEntry> &ports);
    void offerRemembered();
    void selectRowOfPath();
    void rowChosen(QTreeWidgetItem *item);
    void updateState();
    QString typedPath() const;

    std::unique_ptr<Ui::form_com_select> m_ui;
    PortSource m_source;
    QTimer m_refreshTimer;
    QList<port_choice::PortEntry> m_ports; ///< the rows of the list
    port_choice::Remembered m_remembered;
    bool m_userChose = false; ///< from then on the dialog no longer changes the path automatically
    QString m_portName;
    int m_baudRate = port_choice::kDefaultBaud;
};
