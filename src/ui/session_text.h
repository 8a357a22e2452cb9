#pragma once

#include <QString>

#include "session/session_table.h"

class DeviceSession;

/// The state of a session as texts for the user.
namespace session_text {

/// Why something is unavailable now, as a sentence; empty for Refusal::None.
QString refusal(Refusal refusal);

/// The connection card's text in states other than streaming: bootloader, download, search for a baud rate. Empty in
/// all other states.
QString connection(const DeviceSession &session);

} // namespace session_text
