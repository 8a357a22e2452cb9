#pragma once

#include <QStringList>

#include <functional>
#include <memory>

#include "session/session_table.h"
#include "support/simulator_process.h"

class User;
class form_base;

/// Every state of a connection against everything that a user, a device or a cable may do in it, in the real window: a
/// fresh device is brought into the state, the window must allow what session_table allows and refuse the rest, the
/// action is done, and the connection must end in one of the states that the table of outcomes names. No text command
/// reaches a bootloader.
///
/// For the ordering thread; see User.
class StateTable
{
public:
    /// `log` receives every cell as it begins, `fail` a sentence for each that is wrong. All outlive this object.
    StateTable(User &user, std::function<void(const QString &)> log, std::function<void(const QString &)> fail);

    void run();
    int cellCount() const { return m_cells; }

private:
    void runCell(SessionState state, int deed);
    bool bringTo(SessionState state);
    void checkRefusals(SessionState state);
    void cleanUp();
    SessionState stateNow();
    bool waitFor(int timeoutMs, const QString &states);
    void wrong(const QString &what);

    User &m_user;
    std::function<void(const QString &)> m_log;
    std::function<void(const QString &)> m_fail;
    std::unique_ptr<SimulatorProcess> m_simulator;
    QString m_cell;
    int m_cells = 0;
};
