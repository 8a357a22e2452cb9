#include "campaign/state_table.h"

#include <QAction>
#include <QFile>
#include <QMessageBox>

#include <array>
#include <utility>

#include "campaign/user.h"
#include "e2e/desk.h"
#include "session/device_session.h"
#include "support/hex_file.h"
#include "support/open_dialog.h"

namespace {

using State = SessionState;
using Action = SessionAction;

constexpr int kBaud = 921600;
constexpr int kBringMs = 10000;
constexpr int kEndMs = 25000; ///< a download without a device takes this long to fail
constexpr int kEffectMs = 400;
constexpr int kPacket = 512;
constexpr int kPackets = 250;
constexpr char kLetters[] = "COILSBUXW"; ///< in the order of SessionState

void press(form_base &window, const char *opener, const char *className, const char *button)
{
    window.findChild<QAction *>(QLatin1String(opener))->trigger();
    windows::press(className, button);
}

void pressUpdater(form_base &window, const char *button)
{
    press(window, "action_firmware_update", "form_updater", button);
}

void trigger(form_base &window, const char *action)
{
    window.findChild<QAction *>(QLatin1String(action))->trigger(); // does nothing when it is disabled
}

/// An action of the user, through the window, or of the device, through controls of the simulator.
struct Deed
{
    const char *name;
    int action; ///< a SessionAction; -1: needs no permission
    void (*act)(form_base &window, const QString &port);
    const char *controls; ///< separated by semicolons
    /// Letters of the states that the connection may end in, by the state before; null: the table refuses the action.
    const char *closed, *identifying, *live, *silent, *bootloader, *updating;

    const char *ends(State state) const
    {
        const std::array<const char *, kSessionStateCount> all{closed, nullptr,    identifying, live,
                                                               silent, bootloader, updating,    nullptr};
        return all[size_t(state)];
    }
};

// clang-format off
const Deed kDeeds[] = {
    // by the user                                                                   Closed   Identif. Live     Silent   Bootl.   Updating
    {"open", int(Action::OpenPort),
     [](form_base &w, const QString &port) {
         if (w.findChild<QAction *>(QStringLiteral("action_serial_open"))->isEnabled())
             openPort(w, port);
     }, nullptr,                                                                     "L",     "L",     "L",     "S",     "S",     nullptr},
    {"close", int(Action::ClosePort),
     [](form_base &w, const QString &) { trigger(w, "action_serial_stop"); },
     nullptr,                                                                        nullptr, "C",     "C",     "C",     "C",     nullptr},
    {"identify", int(Action::Identify),
     [](form_base &w, const QString &) { press(w, "actionDevice_Settiing", "form_settings", "BTN_identify"); },
     nullptr,                                                                        nullptr, nullptr, "L",     "S",     nullptr, nullptr},
    {"settings", int(Action::SendCommand),
     [](form_base &w, const QString &) { press(w, "actionDevice_Settiing", "form_settings", "BTN_readInfo"); },
     nullptr,                                                                        nullptr, nullptr, "L",     "S",     nullptr, nullptr},
    {"record", int(Action::StartRecording),
     [](form_base &w, const QString &) { press(w, "action_export_data", "form_record", "BTN_record"); },
     nullptr,                                                                        nullptr, "L",     "L",     "S",     nullptr, nullptr},
    {"try baud rates", int(Action::TryBaudRates),
     [](form_base &w, const QString &) { w.session().tryBaudRates(); },
     nullptr,                                                                        nullptr, nullptr, nullptr, "S",     nullptr, nullptr},
    {"connect", int(Action::ConnectBootloader),
     [](form_base &w, const QString &) { pressUpdater(w, "BTN_connect"); },
     nullptr,                                                                        nullptr, "B",     "B",     "S",     "B",     nullptr},
    {"download", int(Action::Download),
     [](form_base &w, const QString &) { pressUpdater(w, "BTN_download"); },
     nullptr,                                                                        nullptr, nullptr, nullptr, nullptr, "U",     nullptr},
    {"stop the download", int(Action::StopDownload),
     [](form_base &w, const QString &) {
         pressUpdater(w, "BTN_stop");
         if (auto *box = openDialog<QMessageBox>())
             box->buttons().constFirst()->click();
     }, nullptr,                                                                     nullptr, nullptr, nullptr, nullptr, nullptr, "B"},
    {"restart device", int(Action::RestartDevice),
     [](form_base &w, const QString &) { pressUpdater(w, "BTN_restart"); },
     nullptr,                                                                        nullptr, nullptr, nullptr, nullptr, "L",     nullptr},
    {"quit", int(Action::Quit), [](form_base &w, const QString &) { w.close(); },
     nullptr,                                                                        "",      "",      "",      "",      "",      nullptr},
    // by cable and device
    {"unplug", -1, nullptr, "unplug",                                                "C",     "C",     "C",     "C",     "C",     "C"},
    {"device silent", -1, nullptr, "silent on",                                      "C",     "S",     "S",     "S",     "B",     "B"},
    {"device restarts", -1, nullptr, "restart",                                      "C",     "LS",    "L",     "S",     "B",     "B"},
    {"noise", -1, nullptr, "garbage 11000",                                          "C",     "S",     "S",     "S",     "B",     "B"},
    {"node leaves", -1, nullptr, "node leave 1",                                     "C",     "L",     "L",     "S",     "B",     "U"},
    {"node returns", -1, nullptr, "node leave 1;node return 1",                      "C",     "L",     "L",     "S",     "B",     "U"},
};
// clang-format on

char letter(State state)
{
    return kLetters[size_t(state)];
}

} // namespace

StateTable::StateTable(User &user, std::function<void(const QString &)> log, std::function<void(const QString &)> fail)
    : m_user(user), m_log(std::move(log)), m_fail(std::move(fail))
{}

void StateTable::run()
{
    QFile image(QStringLiteral("firmware.hex"));
    if (!image.open(QIODevice::WriteOnly))
        return m_fail(QStringLiteral("no firmware.hex"));
    const QByteArray start = QByteArray::fromHex("00400020C1000000");
    image.write(hex_file::file(start + QByteArray(kPackets * kPacket - start.size(), 'x'), 0x08000000));
    image.close();
    for (const State state :
         {State::Closed, State::Identifying, State::Live, State::Silent, State::Bootloader, State::Updating}) {
        for (int deed = 0; deed < int(std::size(kDeeds)); ++deed)
            runCell(state, deed);
    }
    for (const State state : {State::Opening, State::Closing}) // over before a user can do anything
        runCell(state, -1);
}

void StateTable::runCell(SessionState state, int deed)
{
    const Deed *what = deed >= 0 ? &kDeeds[deed] : nullptr;
    m_cell = QStringLiteral("%1, %2").arg(QLatin1Char(letter(state))).arg(QLatin1String(what ? what->name : "rules"));
    m_log(m_cell);
    ++m_cells;
    m_simulator = std::make_unique<SimulatorProcess>(
        QStringLiteral("--device gateway --layout 62 --nodes 2 --rate 50 --bootloader-wait 300 --packet-size %1")
            .arg(kPacket)
            .split(u' ')
        + QStringList{QStringLiteral("--bootloader"), QStringLiteral("late 1:1000000"), QStringLiteral("--bootloader"),
                      QStringLiteral("late-ms 20")});
    if (state == State::Silent)
        m_simulator->control("silent on");
    if (!bringTo(state)) {
        wrong(QStringLiteral("the state was not reached"));
    } else if (what != nullptr) {
        const char *ends = what->ends(state);
        const QString port = m_simulator->port();
        bool isJudged = true;
        if (what->controls != nullptr) {
            for (const QByteArray &line : QByteArray(what->controls).split(';'))
                m_simulator->control(line.constData());
        } else if (ends == nullptr) {
            const QString after = m_user.ask<QString>([&](form_base &window) {
                const State before = window.session().state();
                what->act(window, port);
                const State now = window.session().state();
                return now == before ? QString() : QStringLiteral("became ") + QLatin1Char(letter(now));
            });
            if (!after.isEmpty())
                wrong(QStringLiteral("refused, but ") + after);
            isJudged = false;
        } else if (*ends == 0) {
            isJudged = false; // it would end the program
        } else {
            m_user.act(m_cell, [&what = *what, port](form_base &window) { what.act(window, port); });
        }
        if (isJudged) {
            m_user.waitUntil(kEffectMs, [](form_base &) { return false; });
            if (!waitFor(kEndMs, QLatin1String(ends)))
                wrong(QStringLiteral("ended in %1, not in %2")
                          .arg(QLatin1Char(letter(stateNow())))
                          .arg(QLatin1String(ends)));
        }
        // A connection that ends, or begins, does not know about a bootloader that was not requested on it.
        const bool isKnown =
            state == State::Bootloader || state == State::Updating || what->action == int(Action::ConnectBootloader);
        const bool startsAgain = what->action == int(Action::OpenPort) || what->action == int(Action::ClosePort);
        if (const qint64 texts = m_simulator->stat("boot_text_commands"); texts > 0 && isKnown && !startsAgain)
            wrong(QStringLiteral("%1 text commands reached the bootloader").arg(texts));
    }
    cleanUp();
}

bool StateTable::bringTo(SessionState state)
{
    const QString port = m_simulator->port();
    const auto open = [&] {
        m_user.act(QStringLiteral("open"), [port](form_base &window) { openPort(window, port, kBaud); });
    };
    switch (state) {
    case State::Waiting: // a pseudo-terminal is never waited for: another device could take its path
        return false;
    case State::Closed:
        break;
    case State::Opening:
        m_user.ask<bool>([&](form_base &window) {
            window.open_port(port, kBaud);
            checkRefusals(State::Opening);
            return true;
        });
        return true;
    case State::Closing:
        open();
        return waitFor(kBringMs, QStringLiteral("L")) && m_user.ask<bool>([&](form_base &window) {
            DeviceSession &session = window.session();
            bool wasThere = false;
            const auto watch = QObject::connect(&session, &DeviceSession::stateChanged, &window, [&] {
                if (session.state() == State::Closing && !std::exchange(wasThere, true))
                    checkRefusals(State::Closing);
            });
            session.close();
            QObject::disconnect(watch);
            return wasThere;
        });
    case State::Identifying:
        open();
        break;
    case State::Live:
    case State::Silent:
        open();
        if (!waitFor(kBringMs, state == State::Live ? QStringLiteral("L") : QStringLiteral("S")))
            return false;
        m_user.waitForCalm(kBringMs);
        break;
    case State::Bootloader:
    case State::Updating:
        open();
        if (!waitFor(kBringMs, QStringLiteral("L")) || !m_user.waitForCalm(kBringMs))
            return false;
        m_user.act(QStringLiteral("connect"), [](form_base &window) { pressUpdater(window, "BTN_connect"); });
        if (!m_user.waitUntil(kBringMs, [](form_base &window) { return window.session().isBootloaderConnected(); })
            || !m_user.waitForCalm(kBringMs))
            return false;
        if (state == State::Bootloader)
            break;
        m_user.act(QStringLiteral("download"), [](form_base &window) { pressUpdater(window, "BTN_download"); });
        break;
    }
    if (!waitFor(kBringMs, QString(QLatin1Char(letter(state)))))
        return false;
    m_user.ask<bool>([&](form_base &window) {
        if (window.session().state() == state)
            checkRefusals(state);
        return true;
    });
    return stateNow() == state;
}

/// Main thread: session and window agree with the table.
void StateTable::checkRefusals(SessionState state)
{
    form_base &window = m_user.window();
    const DeviceSession &session = window.session();
    for (int i = 0; i < kSessionActionCount; ++i) {
        const Refusal verdict = session_table::verdict(state, Action(i));
        const Refusal refusal = session.refusal(Action(i));
        // Even in a state that allows it something may still be missing.
        const bool isFiner =
            verdict == Refusal::None && (refusal == Refusal::CommandRuns || refusal == Refusal::NoBootloader);
        if (refusal != verdict && !isFiner)
            wrong(QStringLiteral("action %1: refusal %2 instead of %3").arg(i).arg(int(refusal)).arg(int(verdict)));
    }
    for (const auto &[name, action] :
         {std::pair{"action_serial_open", Action::OpenPort}, std::pair{"action_serial_stop", Action::ClosePort},
          std::pair{"action_quit", Action::Quit}}) {
        if (window.findChild<QAction *>(QLatin1String(name))->isEnabled() != session.allows(action))
            wrong(QLatin1String(name) + QStringLiteral(" is not as the table says"));
    }
    for (const auto &[className, button, action] : {std::tuple{"form_updater", "BTN_stop", Action::StopDownload},
                                                    std::tuple{"form_updater", "BTN_restart", Action::RestartDevice},
                                                    std::tuple{"form_updater", "BTN_download", Action::Download},
                                                    std::tuple{"form_settings", "BTN_identify", Action::Identify}}) {
        if (!windows::isOpen(className))
            continue;
        const auto *found = windows::find(className)->findChild<QAbstractButton *>(QLatin1String(button));
        if (found->isEnabled() != session.allows(action))
            wrong(QLatin1String(button) + QStringLiteral(" is not as the table says"));
    }
}

/// The device goes away and everything is closed.
void StateTable::cleanUp()
{
    m_simulator.reset();
    if (!waitFor(kBringMs, QStringLiteral("C")))
        m_user.act(QStringLiteral("close"), [](form_base &window) { trigger(window, "action_serial_stop"); });
    if (!waitFor(kEndMs, QStringLiteral("C")) || !m_user.waitForCalm(kEndMs))
        wrong(QStringLiteral("the connection did not end with its device"));
    m_user.act(QStringLiteral("clean up"), [](form_base &window) {
        qDeleteAll(window.findChildren<QMessageBox *>());
        windows::closeAllBut(window);
        qDeleteAll(window.findChildren<QMessageBox *>()); // closing may have asked a question
    });
    m_user.waitForCalm(kBringMs);
}

SessionState StateTable::stateNow()
{
    return m_user.ask<State>([](form_base &window) { return window.session().state(); });
}

bool StateTable::waitFor(int timeoutMs, const QString &states)
{
    return m_user.waitUntil(timeoutMs, [&states](form_base &window) {
        return !window.session().isSearchingBaudRate()
               && states.contains(QLatin1Char(letter(window.session().state())));
    });
}

void StateTable::wrong(const QString &what)
{
    m_fail(QStringLiteral("state table, %1: %2").arg(m_cell, what));
}
