#include "link/clock_step.h"

ClockStep ClockStep::between(quint32 previousMs, quint32 stampMs)
{
    const quint32 forward = stampMs - previousMs; // modulo 2^32, so a wrap needs no special case
    if (forward != 0 && forward <= kMaxStepMs)
        return {Forward, forward};
    const quint32 back = previousMs - stampMs;
    return {back < kMaxBackMs ? Repeated : Jump, 0};
}
