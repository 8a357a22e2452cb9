#include "app/instance.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLockFile>

namespace {

/// Held until the process ends, however it does: the system knows whether its owner is alive.
struct Hold
{
    Hold() : lock(QStringLiteral(".kvcenter.lock"))
    {
        lock.setStaleLockTime(0);
        // Where nothing can be written there is nobody to disturb.
        isFirst = lock.tryLock() || lock.error() != QLockFile::LockFailedError;
    }
    QLockFile lock;
    bool isFirst;
};

} // namespace

QString instance::fileName(const QString &name)
{
    static const Hold hold;
    if (hold.isFirst)
        return name;
    const QFileInfo file(name);
    return QStringLiteral("%1.%2.%3")
        .arg(file.completeBaseName(), QString::number(QCoreApplication::applicationPid()), file.suffix());
}
