#pragma once

#include <QtGlobal>

/// What the toolkit's sockets cannot be asked for. System calls: one file for each platform. Any thread. A system that
/// refuses an option does without it.
namespace socket_options {

/// Finds out within 10 s that the other end of a TCP connection is gone, whether bytes are on their way to it or
/// nothing is sent at all. The descriptor is that of a connected socket.
void findDeadPeer(qintptr descriptor);

/// Announces to the other end that no more bytes follow. It can still be read.
void endSending(qintptr descriptor);

} // namespace socket_options
