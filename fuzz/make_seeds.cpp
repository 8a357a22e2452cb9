// Writes the seeds of every target's corpus: kv_fuzz_seeds FOLDER. Existing files with the same name are overwritten,
// all others are kept.

#include <QDir>
#include <QFile>

#include <cstdio>

#include "fuzz/seeds.h"

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fputs("usage: kv_fuzz_seeds FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    const QList<seeds::Seed> all = seeds::bootloader() + seeds::capture() + seeds::csv() + seeds::hex()
                                   + seeds::models() + seeds::reply() + seeds::settings() + seeds::snapshot()
                                   + seeds::stream() + seeds::telnet();
    for (const seeds::Seed &seed : all) {
        const QString target = QLatin1String(seed.target);
        QFile file(folder.filePath(target + u'/' + QLatin1String(seed.name)));
        if (!folder.mkpath(target) || !file.open(QIODevice::WriteOnly) || file.write(seed.bytes) != seed.bytes.size()) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()), qPrintable(file.errorString()));
            return 1;
        }
    }
    return 0;
}
