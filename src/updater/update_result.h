#pragma once

#include <QMetaType>
#include <QString>

#include "link/bootloader_state.h"

/// Steps of an update, in their order.
enum class UpdateStep {
    Idle,
    Connect, ///< into the bootloader
    Check,   ///< what it offers, and whether the image fits
    Ready,   ///< waits to be told to begin
    Erase,
    Write,
    Verify, ///< reading the whole image back
    Reset,
    ComeBack, ///< waiting for the device to say what it is
    Done
};

/// What an update has come to.
enum class UpdateVerdict {
    Verified,      ///< the flash was read back and is the image
    NotVerified,   ///< nothing speaks against it, but nothing proves it; see UpdateReason
    Doubtful,      ///< written to the end, but the flash may be wrong; see UpdateReason
    Failed,        ///< see UpdateReason, FlashState and the outcome
    SameBuild,     ///< the device came back with the build that it had before
    DidNotComeBack ///< written, and the device has not introduced itself since
};

/// Why there is no proof, or why it has failed.
enum class UpdateReason {
    None,
    NoReadBack,           ///< the bootloader cannot read memory
    Locked,               ///< the chip is secured
    ReadRefused,          ///< see the outcome's status
    ReadIncomplete,       ///< it did not come to an end
    RepeatedAfterSilence, ///< a packet was sent again after silence: it may have been written twice
    NotConfirmed,         ///< the target has not answered the whole write
    Bootloader,           ///< see the outcome
    Differs               ///< the flash is not the image
};

/// What is in the flash.
enum class FlashState {
    Untouched,
    MaybeErased, ///< in part or as a whole
    Erased,
    Partial, ///< see the outcome's acknowledgedBytes
    Unproven,
    Wrong,
    Proven
};

struct UpdateResult
{
    UpdateVerdict verdict = UpdateVerdict::Failed;
    UpdateReason reason = UpdateReason::None; ///< kept beside SameBuild and DidNotComeBack
    UpdateStep step = UpdateStep::Idle;       ///< where it ended
    FlashState flash = FlashState::Untouched;
    BootloaderOutcome outcome;  ///< of what failed, else of the write
    qint64 differingBytes = 0;  ///< of Differs
    qint64 firstDifference = 0; ///< offset in the image
    QString oldBuild;           ///< as the device has reported them; empty: it has not
    QString newBuild;
    qint64 writeMs = 0; ///< erase and write
    qint64 verifyMs = 0;
    bool isNoted = true; ///< the note of the running update could be written
};

/// The words that files keep: the enumerators' names.
QString keyword(UpdateVerdict verdict);
QString keyword(UpdateReason reason);
QString keyword(FlashState state);

Q_DECLARE_METATYPE(UpdateResult)
