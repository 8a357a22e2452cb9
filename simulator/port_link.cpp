#include "simulator/port_link.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <unistd.h>

namespace kvsim {

bool PortLink::pointTo(const QString &target, QString *error)
{
    if (m_path.isEmpty())
        return true;
    const QFileInfo info(m_path);
    if (info.exists() && !info.isSymbolicLink()) {
        *error = QStringLiteral("%1 exists and is not a link; it is left unchanged").arg(m_path);
        return false;
    }
    const QByteArray path = QFile::encodeName(m_path);
    const QByteArray temporary = path + '.' + QByteArray::number(qint64(::getpid()));
    ::unlink(temporary.constData());
    if (::symlink(QFile::encodeName(target).constData(), temporary.constData()) != 0
        || std::rename(temporary.constData(), path.constData()) != 0) {
        *error = QStringLiteral("cannot make the link %1: %2").arg(m_path, QString::fromLocal8Bit(strerror(errno)));
        ::unlink(temporary.constData());
        return false;
    }
    m_target = target;
    return true;
}

void PortLink::remove()
{
    if (!m_target.isEmpty() && QFile::symLinkTarget(m_path) == m_target)
        QFile::remove(m_path);
    m_target.clear();
}

} // namespace kvsim
