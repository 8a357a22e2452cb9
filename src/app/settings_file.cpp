#include "app/settings_file.h"

#include <QDebug>
#include <QFile>

#include <cstring>

namespace {

/// Value of a digit in bases up to 16; 16 when it is none.
uint digit(char character)
{
    constexpr char kDigits[] = "0123456789abcdef0123456789ABCDEF";
    const char *at = character != '\0' ? std::strchr(kDigits, character) : nullptr;
    return at != nullptr ? uint(at - kDigits) % 16 : 16;
}

/// The words left of a text once the toolkit has read it: "\x40" and "\100" are "@". Everything that the reader may
/// drop between two letters is removed: quotation marks, white space, other escapes.
QByteArray wordsOf(const QByteArray &text)
{
    QByteArray words;
    words.reserve(text.size());
    for (qsizetype i = 0; i < text.size();) {
        const char character = text.at(i++);
        if (character != '\\') {
            if (std::strchr("\" \t\r\n", character) == nullptr)
                words += character;
            continue;
        }
        const bool isHex = i < text.size() && text.at(i) == 'x';
        const uint base = isHex ? 16 : 8;
        if (isHex || (i < text.size() && digit(text.at(i)) >= base))
            ++i;
        const qsizetype first = i;
        quint16 value = 0; // a number of any length may follow; its last 16 bits count
        for (; i < text.size() && digit(text.at(i)) < base; ++i)
            value = quint16(value * base + digit(text.at(i)));
        if (i > first && value < 0x80)
            words += char(value);
    }
    return words;
}

} // namespace

bool settings_file::isSafe(const QByteArray &text)
{
    const QByteArray words = wordsOf(text);
    return !words.contains("@Variant(") && !words.contains("@DateTime(");
}

bool settings_file::setAsideIfDamaged(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || (file.size() <= kMaxFileBytes && isSafe(file.read(kMaxFileBytes))))
        return false;
    file.close();
    const QString damaged = path + QStringLiteral(".damaged");
    QFile::remove(damaged);
    const bool isAside = file.rename(damaged);
    qWarning().noquote() << "Settings file is damaged:" << path
                         << (isAside ? QStringLiteral("is kept as %1").arg(damaged) : file.errorString());
    return isAside;
}
