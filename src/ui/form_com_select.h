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

/// Asks for the source and the baud rate. The list of serial ports follows plugging and unplugging while the window is
/// visible; a path can also be typed, such as a pseudo-terminal or a link to a device file, or an address on the
/// network or of a file, see SourceAddress. The last accepted choice is kept in the settings file and offered first
/// next time, and the ones before it in a list. Nothing is opened here.
///
/// The field is authoritative: choosing a row fills it, and the row whose path it holds is the selected one. A rate in
/// an address counts, otherwise that of the list of rates.
///
/// Open it with open(). source() gives the last accepted value, so a cancelled run changes nothing.
class form_com_select : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_com_select)

public:
    using PortSource = std::function<QList<port_choice::PortEntry>()>;

    /// `source` lists the ports; it is polled once a second.
    explicit form_com_select(QWidget *parent = nullptr, PortSource source = port_choice::systemPorts);
    ~form_com_select() override;

    /// The source that was accepted last; a port without a name before the first.
    const SourceAddress &source() const { return m_accepted; }
    /// The name of that source; empty before the first.
    QString portName() const { return m_accepted.shortText(); }
    /// Its baud rate; port_choice::kDefaultBaud before the first.
    int baudRate() const { return m_accepted.baudRate; }
    /// It is to be opened again after it was lost.
    bool reconnects() const { return m_reconnects; }

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
    QString addressProblem(const std::optional<SourceAddress> &address, const QString &problem) const;
    void updateReconnect(const std::optional<SourceAddress> &address);
    void fillRecent();
    void chooseFile();
    QString typedText() const;
    QString typedPath() const;
    std::optional<SourceAddress> typedAddress(QString *problem) const;

    std::unique_ptr<Ui::form_com_select> m_ui;
    PortSource m_source;
    QTimer m_refreshTimer;
    QList<port_choice::PortEntry> m_ports; ///< the rows of the list
    port_choice::Remembered m_remembered;
    bool m_userChose = false; ///< from then on the dialog no longer changes the path automatically
    QList<SourceAddress> m_recent;
    SourceAddress m_accepted;
    bool m_reconnects = false;
};
