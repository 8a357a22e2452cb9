#pragma once

#include <QString>

#include "link/bootloader_state.h"
#include "updater/update_note.h"
#include "updater/update_plan.h"
#include "updater/update_result.h"

/// Sentences shown to the user about the check and the result of a firmware update.
namespace verdict_text {

/// "Reading the flash back…"
QString step(UpdateStep step);

/// Why an update cannot work and what to do, one line per obstacle.
QString obstacles(const update_plan::Plan &plan, const update_plan::Subject &subject, const BootloaderFacts &facts);
/// One line per doubt.
QString doubts(const update_plan::Plan &plan, const update_plan::Subject &subject, const BootloaderFacts &facts);

/// One or two words: "Verified".
QString verdict(UpdateVerdict verdict);
/// The outcome of an update of `total` bytes at `address`, the state of the device and what to do next.
QString result(const UpdateResult &result, qint64 total, quint32 address, int packetSize);
/// The user should do something.
bool isProblem(const UpdateResult &result);
/// "Before: build 2026-03-02 · Now: build 2026-05-17"; empty when there is nothing to
/// compare.
QString builds(const UpdateResult &result);

/// What the note of an earlier update says.
QString interrupted(const UpdateNote &note);

} // namespace verdict_text
