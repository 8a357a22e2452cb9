#pragma once

#include <QtGlobal>

/// What lies between two stamps of a 32-bit millisecond clock that may wrap, repeat, run backwards and jump.
struct ClockStep
{
    enum Kind {
        Forward,  ///< up to kMaxStepMs onwards, also across the wrap at 2^32
        Repeated, ///< the same stamp, or less than kMaxBackMs back: a late or duplicate sample
        Jump,     ///< anything else: the clock was set or restarted
    };
    static constexpr quint32 kMaxStepMs = 60000;
    static constexpr quint32 kMaxBackMs = 1000;

    Kind kind;
    quint32 ms; ///< length of a forward step, else 0

    static ClockStep between(quint32 previousMs, quint32 stampMs);
};
