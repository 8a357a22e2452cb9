#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>

/// A fuzzer's input, consumed from the front: some bytes that choose how the code is used, then the data itself. Past
/// its end everything reads as 0.
class FuzzInput
{
public:
    FuzzInput(const uint8_t *data, size_t size) : m_bytes(reinterpret_cast<const char *>(data), qsizetype(size)) {}

    quint8 u8()
    {
        const bool hasOne = m_offset < m_bytes.size();
        return hasOne ? quint8(m_bytes.at(m_offset++)) : quint8(0);
    }
    /// Up to `count` bytes.
    QByteArray take(qsizetype count)
    {
        const QByteArray bytes = m_bytes.mid(m_offset, count);
        m_offset += bytes.size();
        return bytes;
    }
    QByteArray rest() { return take(m_bytes.size()); }
    bool atEnd() const { return m_offset >= m_bytes.size(); }

private:
    QByteArray m_bytes;
    qsizetype m_offset = 0;
};
