#pragma once

#include <QMetaType>
#include <QString>

#include "link/bootloader_state.h"

/// Steps of an update, in order.
enum class UpdateStep {
    Idle,
    Connect, ///< into the bootloader
    Check,   ///< what it offers, and whether the image fits
    Ready,   ///< waiting for begin()
    Erase,
    Write,
    Verify, ///< reading the whole image back
    Reset,
    ComeBack, ///< waiting for the device to identify itself
    Done
};

/// The verdict on an update.
enum class UpdateVerdict {
    Verified,      ///< the flash was read back and matches the image
    NotVerified,   ///< no evidence against it, but no proof either; see UpdateReason
    Doubtful,      ///< written completely, but the flash may be wrong; see UpdateReason
    Failed,        ///< see UpdateReason, FlashState and the outcome
    SameBuild,     ///< the device came back with the build that it had before
    DidNotComeBack ///< written, but the device has not identified itself since
};

/// Why there is no proof, or why it has failed.
enum class UpdateReason {
    None,
    NoReadBack,           ///< the bootloader cannot read memory
    Locked,               ///< the chip is secured
    ReadRefused,          ///< see the outcome's status
    ReadIncomplete,       ///< it did not finish
    RepeatedAfterSilence, ///< a packet was sent again after silence: it may have been written twice
    NotConfirmed,         ///< the target has not confirmed the whole write
    Bootloader,           ///< see the outcome
    Differs               ///< the flash does not match the image
};

/// What is in the flash.
enum class FlashState {
    Untouched,
    MaybeErased, ///< partly or completely
    Erased,
    Partial, ///< see the outcome's acknowledgedBytes
    Unproven,
    Wrong,
    Proven
};

struct UpdateResult
{
    UpdateVerdict verdict = UpdateVerdict::Failed;
    UpdateReason reason = UpdateReason::None; ///< also set with SameBuild and DidNotComeBack
    UpdateStep step = UpdateStep::Idle;       ///< where it ended
    FlashState flash = FlashState::Untouched;
    BootloaderOutcome outcome;  ///< of the failed step, otherwise of the write
    qint64 differingBytes = 0;  ///< of Differs
    qint64 firstDifference = 0; ///< offset in the image
    QString oldBuild;           ///< as the device reported them; empty: it did not
    QString newBuild;
    qint64 writeMs = 0; ///< erase and write
    qint64 verifyMs = 0;
    bool isNoted = true; ///< the note of the running update could be written
};

/// The words stored in files: the enumerators' names.
QString keyword(UpdateVerdict verdict);
QString keyword(UpdateReason reason);
QString keyword(FlashState state);

Q_DECLARE_METATYPE(UpdateResult)
