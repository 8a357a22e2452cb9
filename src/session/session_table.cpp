#include "session/session_table.h"

#include <array>

namespace {

constexpr Refusal kYes = Refusal::None;
constexpr Refusal kNotOpen = Refusal::NotOpen;
constexpr Refusal kOpening = Refusal::Opening;
constexpr Refusal kRuns = Refusal::CommandRuns;
constexpr Refusal kFlow = Refusal::DataFlow;
constexpr Refusal kInBoot = Refusal::InBootloader;
constexpr Refusal kNoBoot = Refusal::NoBootloader;
constexpr Refusal kNoDown = Refusal::NoDownload;
constexpr Refusal kUpdate = Refusal::Updating;
constexpr Refusal kEnds = Refusal::Closing;
constexpr Refusal kGone = Refusal::Waiting;

using Row = std::array<Refusal, kSessionStateCount>;

// One row per action, one column per state, both in the order of their enumerations.
// clang-format off
constexpr std::array<Row, kSessionActionCount> kTable{{
    //                      Closed    Opening   Identif.  Live     Silent   Bootload. Updating Closing Waiting
    /* OpenPort          */ {kYes,     kYes,     kYes,     kYes,    kYes,    kYes,     kUpdate, kEnds, kYes},
    /* ClosePort         */ {kNotOpen, kYes,     kYes,     kYes,    kYes,    kYes,     kUpdate, kEnds, kYes},
    /* Identify          */ {kNotOpen, kOpening, kRuns,    kYes,    kYes,    kInBoot,  kUpdate, kEnds, kGone},
    /* SendCommand       */ {kNotOpen, kOpening, kRuns,    kYes,    kYes,    kInBoot,  kUpdate, kEnds, kGone},
    /* StartRecording    */ {kNotOpen, kOpening, kYes,     kYes,    kYes,    kInBoot,  kUpdate, kEnds, kGone},
    /* StartCapture      */ {kNotOpen, kOpening, kYes,     kYes,    kYes,    kInBoot,  kUpdate, kEnds, kGone},
    /* TryBaudRates      */ {kNotOpen, kOpening, kRuns,    kFlow,   kYes,    kInBoot,  kUpdate, kEnds, kGone},
    /* ConnectBootloader */ {kNotOpen, kOpening, kYes,     kYes,    kYes,    kYes,     kUpdate, kEnds, kGone},
    /* Download          */ {kNoBoot,  kNoBoot,  kNoBoot,  kNoBoot, kNoBoot, kYes,     kUpdate, kEnds, kGone},
    /* StopDownload      */ {kNoDown,  kNoDown,  kNoDown,  kNoDown, kNoDown, kNoDown,  kYes,    kEnds, kNoDown},
    /* RestartDevice     */ {kNoBoot,  kNoBoot,  kNoBoot,  kNoBoot, kNoBoot, kYes,     kUpdate, kEnds, kGone},
    /* Quit              */ {kYes,     kYes,     kYes,     kYes,    kYes,    kYes,     kUpdate, kYes,  kYes},
}};

constexpr Refusal kUdp = Refusal::OverUdp;
constexpr Refusal kFile = Refusal::OfAFile;
constexpr Refusal kHere = Refusal::InAFile;
constexpr Refusal kRate = Refusal::RateIsSet;

using SourceRow = std::array<Refusal, kSourceKindCount>;

// The same for the kinds of sources.
constexpr std::array<SourceRow, kSessionActionCount> kSourceTable{{
    //                      Serial Tcp    Rfc2217 Udp   File   Demo
    /* OpenPort          */ {kYes, kYes,  kYes,   kYes,  kYes,  kYes},
    /* ClosePort         */ {kYes, kYes,  kYes,   kYes,  kYes,  kYes},
    /* Identify          */ {kYes, kYes,  kYes,   kUdp,  kFile, kYes},
    /* SendCommand       */ {kYes, kYes,  kYes,   kUdp,  kFile, kYes},
    /* StartRecording    */ {kYes, kYes,  kYes,   kYes,  kYes,  kYes},
    /* StartCapture      */ {kYes, kYes,  kYes,   kYes,  kHere, kYes},
    /* TryBaudRates      */ {kYes, kRate, kYes,   kRate, kFile, kRate},
    /* ConnectBootloader */ {kYes, kYes,  kYes,   kUdp,  kFile, kYes},
    /* Download          */ {kYes, kYes,  kYes,   kUdp,  kFile, kYes},
    /* StopDownload      */ {kYes, kYes,  kYes,   kUdp,  kFile, kYes},
    /* RestartDevice     */ {kYes, kYes,  kYes,   kUdp,  kFile, kYes},
    /* Quit              */ {kYes, kYes,  kYes,   kYes,  kYes,  kYes},
}};
// clang-format on

} // namespace

Refusal session_table::verdict(SessionState state, SessionAction action)
{
    return kTable[size_t(action)][size_t(state)];
}

Refusal session_table::verdict(SourceKind source, SessionAction action)
{
    return kSourceTable[size_t(action)][size_t(source)];
}
