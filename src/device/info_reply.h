#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// Extracts text lines from the raw bytes of an information window.
namespace info_reply {

/// Lines of a reply. The bytes may hold anything: data packets that were still streaming, parts of packets, noise.
/// Well-formed data packets are removed first; the rest is split at CR and LF and read as UTF-8. A line of which more
/// than a quarter is control characters or invalid bytes counts as binary: only a readable end of 4 characters or more
/// is kept. In other lines such characters become blanks. Blank lines are left out.
///
/// At most 64 lines of at most 256 characters. Time is linear in the size of the reply. Pure, any thread.
QList<QString> lines(const QByteArray &reply);

/// What a reply consists of, on the whole.
enum class Kind {
    Text,    ///< lines of text, or nothing at all
    Packets, ///< no text, but well-formed data packets: the line works, but nothing answers
    Noise    ///< neither: bytes as produced by a wrong baud rate
};

/// A reply of which more than a quarter of the characters are not text must show that it comes from a device: by a
/// product name, a word of the information reply, or a whole line. Otherwise what is readable in it is chance. Pure,
/// any thread.
Kind kindOf(const QByteArray &reply);

/// "OK" or "ERROR", which ends every reply. Pure, any thread.
bool isAcknowledge(const QString &line);

/// The lines without any "OK" and "ERROR" that come before everything else: late answers to earlier commands, which are
/// not a model name. Pure, any thread.
QList<QString> withoutLateAnswers(const QList<QString> &lines);

} // namespace info_reply
