#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// Text lines out of the raw bytes of an information window.
namespace info_reply {

/// Lines of a reply. The bytes may hold anything: data packets that were still streaming, parts of packets, noise. Well
/// formed data packets are taken out first; the rest is split at CR and LF and read as UTF-8. A line of which more than
/// a quarter is control characters or broken bytes counts as binary: only a readable end of 4 characters or more is
/// kept. Elsewhere such characters become blanks. Blank lines are left out.
///
/// At most 64 lines of at most 256 characters. Time is linear in the size of the reply. Pure, any thread.
QList<QString> lines(const QByteArray &reply);

/// What a reply is, all in all.
enum class Kind {
    Text,    ///< lines; or nothing at all
    Packets, ///< no text, but well formed data packets: the line works, and nobody answers
    Noise    ///< neither: bytes as a wrong baud rate gives them
};

/// A reply of which more than a quarter of the characters are no text has to show that a device speaks in it: by a
/// product's name or a word of the information, or by a whole line. Else what is readable in it is chance. Pure, any
/// thread.
Kind kindOf(const QByteArray &reply);

/// "OK" or "ERROR", which ends every reply. Pure, any thread.
bool isAcknowledge(const QString &line);

/// The lines without "OK" and "ERROR" in front of everything else: late answers to the commands before, which are no
/// model's name. Pure, any thread.
QList<QString> withoutLateAnswers(const QList<QString> &lines);

} // namespace info_reply
