#include "updater/update_result.h"

#include <array>

namespace {

// In the order of the enumerators.
constexpr std::array kVerdicts = {"Verified", "NotVerified", "Doubtful", "Failed", "SameBuild", "DidNotComeBack"};
constexpr std::array kReasons = {"None",         "NoReadBack",     "Locked",
                                 "ReadRefused",  "ReadIncomplete", "RepeatedAfterSilence",
                                 "NotConfirmed", "Bootloader",     "Differs"};
constexpr std::array kStates = {"Untouched", "MaybeErased", "Erased", "Partial", "Unproven", "Wrong", "Proven"};
static_assert(kVerdicts.size() == std::size_t(UpdateVerdict::DidNotComeBack) + 1);
static_assert(kReasons.size() == std::size_t(UpdateReason::Differs) + 1);
static_assert(kStates.size() == std::size_t(FlashState::Proven) + 1);

} // namespace

QString keyword(UpdateVerdict verdict)
{
    return QLatin1String(kVerdicts.at(std::size_t(verdict)));
}

QString keyword(UpdateReason reason)
{
    return QLatin1String(kReasons.at(std::size_t(reason)));
}

QString keyword(FlashState state)
{
    return QLatin1String(kStates.at(std::size_t(state)));
}
