#include "updater/firmware_image.h"

#include <QFile>
#include <QFileInfo>
#include <QTextStream>

namespace {

constexpr quint32 kNoAddress = 0xFFFFFFFF; ///< no file loaded in this run yet

/// Opens a file, but never a folder or a pipe that would block.
bool openImage(QFile &file)
{
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Text);
}

} // namespace

void FirmwareImage::choose(const QString &path)
{
    m_path = path;
    m_isLoaded = false;
}

FirmwareImage::Problem FirmwareImage::load()
{
    m_isLoaded = false;
    if (m_path.isEmpty())
        return Problem::NoPath;
    QFile file(m_path);
    if (!openImage(file))
        return Problem::NoFile;
    const File stamp = fileAt(m_path);
    QTextStream in(&file);
    const QByteArray image = hex2bin::convert(in);
    if (image.isEmpty())
        return Problem::NoHex;
    m_bytes = image;
    m_loadAddress = hex2bin::start_addr();
    m_isLoaded = true;
    m_shownFile = stamp;
    m_shown = image;
    m_fileAddress = hex2bin::first_data_addr();
    m_cut = hex2bin::cut();
    return Problem::None;
}

void FirmwareImage::look()
{
    const File now = fileAt(m_path);
    if (m_isLoaded || now == m_shownFile)
        return;
    m_shownFile = now;
    m_shown.clear();
    QFile file(m_path);
    if (!openImage(file))
        return;
    QTextStream in(&file);
    m_shown = hex2bin::preview(in);
    m_fileAddress = hex2bin::first_data_addr();
    m_cut = hex2bin::cut();
}

quint32 FirmwareImage::targetAddress() const
{
    const quint32 first = hex2bin::start_addr();
    return first == kNoAddress ? m_fileAddress : first;
}

bool FirmwareImage::hasChanged() const
{
    return m_isLoaded && fileAt(m_path) != m_shownFile;
}

FirmwareImage::File FirmwareImage::fileAt(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() ? File{path, info.lastModified(), info.size()} : File{path, {}, -1};
}
