#pragma once

#include <QObject>

#include <memory>
#include <vector>

class QWindow;
class form_base;

/// The main windows of the program: each shows one device and has a session of its own. The first is opened at the
/// start, others on request. One that is closed is destroyed, with its windows; the program ends with the last. While
/// there are several, their windows carry the names of their devices, and the keys that work in every window belong to
/// the device whose window is active. Main thread only.
class MainWindows : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MainWindows)

public:
    explicit MainWindows(QObject *parent = nullptr);
    ~MainWindows() override;

    /// Opens another one.
    form_base *open();
    int count() const { return int(m_windows.size()); }
    /// The program is to be started again after its end.
    bool wantsRestart() const { return m_wantsRestart; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void onFocus(const QWindow *window);
    void onClosed(form_base *window);
    void nameAll();

    std::vector<std::unique_ptr<form_base>> m_windows;
    bool m_wantsRestart = false;
};
