// Runs a fuzz target over files: every argument is a file or a folder of files. Stands in for libFuzzer where the
// compiler has none. An input that fails ends the program; its name is the last one printed.

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size);

namespace {

bool replay(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(file.errorString()));
        return false;
    }
    const QByteArray bytes = file.readAll();
    std::printf("%s\n", qPrintable(path));
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()), size_t(bytes.size()));
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        const QString path = QFile::decodeName(argv[i]);
        QStringList files;
        if (QFileInfo(path).isDir()) {
            QDirIterator entries(path, QDir::Files, QDirIterator::Subdirectories);
            while (entries.hasNext())
                files.append(entries.next());
            files.sort();
        } else {
            files.append(path);
        }
        for (const QString &file : std::as_const(files)) {
            if (!replay(file))
                return 1;
            ++count;
        }
    }
    std::printf("%d inputs replayed\n", count);
    return count > 0 ? 0 : 1;
}
