#pragma once

#include <QStringList>

/// How an operation on the device ended, as far as people want to know.
struct CommandOutcome
{
    enum class Kind {
        Nothing, ///< nothing to say
        NoReply, ///< the device does not answer
        Noise,   ///< something came back that is no text: the baud rate may be wrong
        Refused, ///< it refused settings
        Saved    ///< the settings were sent and it has restarted
    };

    Kind kind = Kind::Nothing;
    /// Refused: the commands that were refused, in the order in which they were sent, without line ends.
    QStringList commands;
    /// Refused: at least one of `commands` was; which one cannot be known, because an answer came late or is missing.
    bool isOneOf = false;

    bool operator==(const CommandOutcome &) const = default;
};
