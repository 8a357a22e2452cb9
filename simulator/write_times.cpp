#include "simulator/write_times.h"

#include <QtEndian>

#include <cstdio>
#include <ctime>

namespace kvsim {

bool WriteTimes::open(const QString &path, QString *error)
{
    m_file.setFileName(path);
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return true;
    *error = QStringLiteral("cannot write %1: %2").arg(path, m_file.errorString());
    return false;
}

void WriteTimes::add(quint64 ns, quint64 frames)
{
    const quint64 number = qToLittleEndian(ns);
    for (quint64 i = 0; i < frames && m_file.isOpen(); ++i) {
        if (m_file.write(reinterpret_cast<const char *>(&number), sizeof number) == qint64(sizeof number))
            continue;
        std::fprintf(stderr, "kv_simulator: %s: %s\n", qPrintable(m_file.fileName()), qPrintable(m_file.errorString()));
        m_file.close();
    }
}

quint64 WriteTimes::now()
{
    timespec time{};
    ::clock_gettime(CLOCK_MONOTONIC, &time);
    return quint64(time.tv_sec) * 1'000'000'000 + quint64(time.tv_nsec);
}

} // namespace kvsim
