#pragma once

#include <QString>

#include "session/session_table.h"

class DeviceSession;

/// What a session says, for people.
namespace session_text {

/// Why something cannot be had now, as a sentence; empty for Refusal::None.
QString refusal(Refusal refusal);

/// What the connection card says in states that are not about a stream: bootloader, download, search for a baud rate.
/// Empty in all others.
QString connection(const DeviceSession &session);

} // namespace session_text
