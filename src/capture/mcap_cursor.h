#pragma once

#include <QByteArray>
#include <QtEndian>

/// A bounds-checked cursor over the content of a record. Integers are little-endian. Reading past the end gives zeros
/// and empty texts, and ok() is false from then on: a decoder asks once, at its end.
class McapCursor
{
public:
    explicit McapCursor(QByteArrayView bytes) : m_bytes(bytes) {}

    bool ok() const { return m_isOk; }
    bool atEnd() const { return m_offset >= m_bytes.size(); }
    qsizetype offset() const { return m_offset; }

    quint8 u8() { return integer<quint8>(); }
    quint16 u16() { return integer<quint16>(); }
    quint32 u32() { return integer<quint32>(); }
    quint64 u64() { return integer<quint64>(); }

    /// The next `count` bytes, not copied. A count that lies fails.
    QByteArrayView view(quint64 count)
    {
        if (!m_isOk || count > quint64(m_bytes.size() - m_offset)) {
            m_isOk = false;
            return {};
        }
        const QByteArrayView part = m_bytes.sliced(m_offset, qsizetype(count));
        m_offset += part.size();
        return part;
    }
    QByteArrayView rest() { return view(quint64(m_bytes.size() - m_offset)); }

    /// u32 length, then UTF-8.
    QByteArray text() { return view(u32()).toByteArray(); }
    /// An array or a map: u32 length in bytes, then the elements.
    McapCursor sequence()
    {
        McapCursor inner(view(u32()));
        inner.m_isOk = m_isOk;
        return inner;
    }
    /// What a sequence's cursor found wrong is wrong here, too.
    void join(const McapCursor &sequence) { m_isOk = m_isOk && sequence.m_isOk; }

private:
    template <typename T> T integer()
    {
        const QByteArrayView bytes = view(sizeof(T));
        return bytes.isEmpty() ? T(0) : qFromLittleEndian<T>(bytes.data());
    }

    QByteArrayView m_bytes;
    qsizetype m_offset = 0;
    bool m_isOk = true;
};
