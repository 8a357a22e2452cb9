#pragma once

#include <QDialog>
#include <QTimer>

#include <memory>

#include "session/link_monitor.h"

class WindowHost;
class QLabel;

namespace Ui {
class form_link_health;
}

/// Shows how well the connection carries its data: what was damaged on the line, what is missing from the stream, in
/// total and for each node of a gateway, and what a recording lost. Without a connection it shows the figures of the
/// last one, or says that there was none. Polls the monitor twice a second while it is visible. Remembers its place.
/// Main thread only.
class form_link_health : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(form_link_health)

public:
    /// `monitor` outlives this window.
    explicit form_link_health(const LinkMonitor *monitor, QWidget *parent = nullptr);
    ~form_link_health() override;

    /// The displayed figures, as lines of caption and figure with a tab between them, then the table.
    QString text() const;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void refresh();
    void showLine(const LinkReport &report);
    void showSamples(const LinkReport &report);
    void showNodes(const LinkReport &report);
    void nameColumns();

    std::unique_ptr<Ui::form_link_health> m_ui;
    const LinkMonitor *m_monitor;
    QTimer m_timer;
    WindowHost *m_host = nullptr;
};
