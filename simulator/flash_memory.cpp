#include "simulator/flash_memory.h"

#include <QSaveFile>

#include <algorithm>

namespace kvsim {

FlashMemory::FlashMemory(const Geometry &geometry)
    : m_geometry(geometry), m_contents(qsizetype(geometry.size), Qt::Uninitialized)
{
    for (qsizetype i = 0; i < m_contents.size(); ++i)
        m_contents[i] = char(quint32(i) * 2654435761U >> 24);
}

qsizetype FlashMemory::offsetOf(quint32 address) const
{
    return qsizetype(address >= m_geometry.base ? address - m_geometry.base : address);
}

bool FlashMemory::contains(quint32 address, quint32 count) const
{
    return offsetOf(address) + qsizetype(count) <= m_contents.size();
}

bool FlashMemory::erase(quint32 address, quint32 count)
{
    if (!contains(address, count))
        return false;
    if (count == 0)
        return true;
    const auto sector = qsizetype(m_geometry.sector);
    const qsizetype begin = offsetOf(address) / sector * sector;
    const qsizetype end = (offsetOf(address) + qsizetype(count) + sector - 1) / sector * sector;
    std::fill(m_contents.begin() + begin, m_contents.begin() + std::min(end, m_contents.size()), '\xFF');
    return true;
}

bool FlashMemory::program(quint32 address, QByteArrayView bytes)
{
    if (!contains(address, quint32(bytes.size())))
        return false;
    std::transform(bytes.begin(), bytes.end(), m_contents.cbegin() + offsetOf(address),
                   m_contents.begin() + offsetOf(address), [](char written, char old) { return char(written & old); });
    return true;
}

QByteArray FlashMemory::read(quint32 address, quint32 count) const
{
    return contains(address, count) ? m_contents.mid(offsetOf(address), qsizetype(count)) : QByteArray();
}

QString FlashMemory::dump(const QString &path) const
{
    QSaveFile file(path);
    const bool ok = file.open(QIODevice::WriteOnly) && file.write(m_contents) == m_contents.size() && file.commit();
    return ok ? QString() : QStringLiteral("cannot write %1: %2").arg(path, file.errorString());
}

} // namespace kvsim
