#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// Text lines out of the raw bytes of an information window.
namespace info_reply {

/// Lines of a reply. The bytes may hold anything: data packets that were still streaming, parts of packets, noise. Well
/// formed data packets are taken out first; the rest is split at CR and LF and read as UTF-8. A line of which more than
/// a quarter is control characters or broken bytes counts as binary: only a readable end of 4 characters or more is
/// kept. Elsewhere such characters become blanks. Blank lines are left out, and so are "OK" and "ERROR" in front of
/// everything else: the late answer to the command before, which is no model's name.
///
/// At most 64 lines of at most 256 characters. Time is linear in the size of the reply. Pure, any thread.
QList<QString> lines(const QByteArray &reply);

} // namespace info_reply
