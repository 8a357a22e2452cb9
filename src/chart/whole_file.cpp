#include "chart/whole_file.h"

#include <QSaveFile>

bool whole_file::write(const QString &path, const QByteArray &content, QString &reason)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.commit())
        return true;
    reason = file.errorString();
    return false;
}
