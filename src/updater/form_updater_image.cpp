// The image that is going to be written: choosing, loading and judging it.

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>
#include <QTextStream>

#include "app/settings_keys.h"
#include "ui_form_updater.h"
#include "updater/form_updater.h"
#include "updater/hex2bin.h"
#include "updater/image_check.h"
#include "updater/updater_text.h"

namespace {

QString hex8(quint32 value)
{
    return QStringLiteral("%1").arg(value, 8, 16, QLatin1Char('0'));
}

/// Opens a file, never a folder, nor a pipe that would block.
bool openImage(QFile &file)
{
    return QFileInfo(file).isFile() && file.open(QIODevice::ReadOnly | QIODevice::Text);
}
} // namespace

void form_updater::on_BTN_open_file_clicked()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open File"), QFileInfo(m_imagePath).path(), tr("Text Files(*.hex)"));
    if (path.isEmpty())
        return;
    m_imagePath = path;
    m_imageLoaded = false; // what was loaded is another file's
    log(tr("FILE:%1\n").arg(path));
    QSettings(settings_keys::kFile, QSettings::IniFormat).setValue(settings_keys::kUpdaterPath, path);
    showStatus({}, false);
    lookAtImage();
}

bool form_updater::load_hex_file()
{
    m_imageLoaded = false;
    if (m_imagePath.isEmpty()) {
        log(tr("No file selected\n"));
        return false;
    }
    QFile file(m_imagePath);
    if (!openImage(file)) {
        log(tr("Failed to open file\n"));
        return false;
    }
    const ImageFile stamp = fileAt(m_imagePath);
    QTextStream in(&file);
    const QByteArray image = hex2bin::convert(in);
    if (image.isEmpty()) {
        log(tr("Failed to parse HEX file\n"));
        return false;
    }
    const auto [stackPointer, resetVector] = image_check::vectors(image);
    m_image = image;
    m_loadAddress = hex2bin::start_addr();
    m_imageLoaded = true;
    log(tr("SIZE:%1 bytes\n").arg(image.size()));
    log(tr("SP:0x%1\n").arg(hex8(stackPointer)));
    log(tr("PC:0x%1\n").arg(hex8(resetVector)));
    log(tr("ADDR:0x%1\n").arg(hex8(m_loadAddress)));
    m_shownFile = stamp;
    m_shownImage = image;
    m_shownFileAddress = hex2bin::first_data_addr();
    return true;
}

form_updater::ImageFile form_updater::fileAt(const QString &path)
{
    const QFileInfo info(path);
    return info.isFile() ? ImageFile{path, info.lastModified(), info.size()} : ImageFile{path, {}, -1};
}

/// Looks at the file that a download would load, so that what is wrong with it shows before anything is erased.
void form_updater::lookAtImage()
{
    const ImageFile file = fileAt(m_imagePath);
    if (!m_imageLoaded && file != m_shownFile) {
        m_shownFile = file;
        m_shownImage.clear();
        QFile device(m_imagePath);
        if (openImage(device)) {
            QTextStream in(&device);
            m_shownImage = hex2bin::preview(in);
            m_shownFileAddress = hex2bin::first_data_addr();
        }
    }
    showImage();
}

void form_updater::showImage()
{
    const bool hasImage = !m_shownImage.isEmpty();
    const bool isFirst = hex2bin::start_addr() == 0xFFFFFFFF; // no file has been loaded in this run
    const quint32 address = isFirst ? m_shownFileAddress : hex2bin::start_addr();
    QStringList doubts;
    if (hasImage) {
        for (const image_check::Doubt doubt :
             image_check::doubts(m_shownImage, m_shownFileAddress, address, m_connected ? m_facts.flashSizeKb : 0))
            doubts.append(updater_text::doubt(doubt, m_shownFileAddress, address, m_facts.flashSizeKb));
    }
    if (m_imageLoaded && fileAt(m_imagePath) != m_shownFile)
        doubts.append(tr("The file has changed since it was loaded. Choose it again to load it anew."));
    m_ui->LE_path->setText(QDir::toNativeSeparators(m_imagePath));
    m_ui->LE_path->setToolTip(m_imagePath.toHtmlEscaped());
    m_ui->LBL_image->setText(hasImage               ? updater_text::image(m_shownImage, address)
                             : m_shownFile.size < 0 ? tr("There is no file at this place: choose an image.")
                                                    : tr("This is no Intel HEX file that can be loaded; the log file "
                                                         "debug.log says why. Choose another one."));
    m_ui->LBL_doubts->setText(doubts.join(u'\n'));
    m_ui->LBL_doubts->setVisible(!doubts.isEmpty());
}
