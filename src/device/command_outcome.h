#pragma once

#include <QByteArray>
#include <QList>
#include <QStringList>

/// How an operation on the device ended, as shown to the user.
struct CommandOutcome
{
    enum class Kind {
        Nothing, ///< nothing to say
        NoReply, ///< the device does not answer
        Noise,   ///< something came back that is not text: the baud rate may be wrong
        Refused, ///< it refused settings
        Saved    ///< the settings were sent and the device has restarted
    };

    Kind kind = Kind::Nothing;
    /// Refused: the commands that were refused, in the order in which they were sent, without line ends.
    QStringList commands;
    /// Refused: at least one of `commands` was; it is not known which, because an answer was late or is missing.
    bool isOneOf = false;

    bool operator==(const CommandOutcome &) const = default;

    /// What the device answered to commands that were written one after the other: Refused, or Nothing when it refused
    /// none. `replies` holds what arrived in each command's window, in the same order. A device answers commands in
    /// order, each with OK or ERROR, but an answer may come after its window, or get lost.
    static CommandOutcome ofWrites(const QStringList &commands, const QList<QByteArray> &replies);
};
