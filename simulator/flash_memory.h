#pragma once

#include <QByteArray>
#include <QString>

namespace kvsim {

/// The program memory of a device. Erased bytes are FF and programming can only clear bits, as in real flash: data
/// written without an erase first are damaged. It starts filled with a pattern that represents the factory firmware. It
/// appears at its base address and, as on many controllers, also at address 0.
class FlashMemory
{
public:
    struct Geometry
    {
        quint32 base = 0x08000000;
        quint32 size = 512 * 1024; ///< bytes, at most kMaxBytes
        quint32 sector = 2048;     ///< smallest unit of an erase, bytes
    };
    static constexpr quint32 kMaxBytes = 64 * 1024 * 1024;

    explicit FlashMemory(const Geometry &geometry);

    const Geometry &geometry() const { return m_geometry; }
    const QByteArray &contents() const { return m_contents; }

    /// The whole range lies in the flash. An empty range only has to begin in it, or at its end.
    bool contains(quint32 address, quint32 count) const;
    /// Erases all sectors that the range touches. @return false, with nothing changed, when the range is not contained
    bool erase(quint32 address, quint32 count);
    /// @return false, with nothing done, when the range is not contained
    bool program(quint32 address, QByteArrayView bytes);

    /// Empty when the range is not contained.
    QByteArray read(quint32 address, quint32 count) const;

    /// Writes all contents, base first, to a file. @return an empty text, or why not
    QString dump(const QString &path) const;

private:
    qsizetype offsetOf(quint32 address) const;

    Geometry m_geometry;
    QByteArray m_contents;
};

} // namespace kvsim
