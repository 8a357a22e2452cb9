#include "chart/chart_saver.h"

#include <QBuffer>
#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QQuickItemGrabResult>
#include <QSettings>
#include <QStandardPaths>
#include <QWindow>

#include <algorithm>
#include <memory>

#include "app/app_language_manager.h"
#include "app/settings_keys.h"
#include "chart/chart_source.h"
#include "chart/svg_picture.h"
#include "chart/whole_file.h"

namespace {

constexpr int kMaxScale = 4;

struct Shown
{
    PlotViewState *view;
    QQuickItem *item;
};

/// The charts with data among items of a view.
QList<Shown> shownCharts(const QVariantList &items)
{
    QList<Shown> shown;
    for (const QVariant &entry : items) {
        auto *item = entry.value<QQuickItem *>();
        auto *view = item ? item->property("viewState").value<PlotViewState *>() : nullptr;
        if (view && view->source() && view->source()->hasData())
            shown += {view, item};
    }
    return shown;
}

} // namespace

ChartSaver::ChartSaver(QWindow *window, QLatin1String settingsGroup, QObject *parent)
    : QObject(parent), m_window(window), m_settingsGroup(settingsGroup)
{
    connect(&AppLanguageManager::instance(), &AppLanguageManager::languageChanged, this,
            [this] { tell(m_sentence, m_failed); });
}

void ChartSaver::setPictureScale(int scale)
{
    const int usable = std::clamp(scale, 0, kMaxScale);
    if (usable == m_pictureScale)
        return;
    m_pictureScale = usable;
    emit optionsChanged();
}

void ChartSaver::saveData(PlotViewState *view)
{
    if (view && view->source())
        save(tr("Save the samples"), suggestedName(view->fileStem(), QLatin1String(".csv")),
             tr("Comma-separated values (*.csv)"), view->table(m_allSamples));
}

void ChartSaver::savePicture(PlotViewState *view, QQuickItem *item)
{
    takePicture(view, item, [this](const File &file) {
        save(tr("Save a picture of the chart"), file.name,
             file.name.endsWith(QLatin1String(".svg")) ? tr("SVG picture (*.svg)") : tr("PNG picture (*.png)"),
             file.content);
    });
}

void ChartSaver::saveAllData(const QVariantList &charts)
{
    QList<File> files;
    for (const Shown &chart : shownCharts(charts))
        files += {suggestedName(chart.view->fileStem(), QLatin1String(".csv")), chart.view->table(m_allSamples)};
    saveInFolder(tr("Save the samples of all charts"), files);
}

void ChartSaver::saveAllPictures(const QVariantList &charts)
{
    // The pictures arrive one by one; after the last of them the user is asked for the folder.
    const QList<Shown> shown = shownCharts(charts);
    auto files = std::make_shared<QList<File>>();
    for (const Shown &chart : shown) {
        takePicture(chart.view, chart.item, [this, files, count = shown.size()](const File &file) {
            *files += file;
            if (files->size() == count)
                saveInFolder(tr("Save pictures of all charts"), *files);
        });
    }
    if (shown.isEmpty())
        saveInFolder({}, {});
}

void ChartSaver::takePicture(PlotViewState *view, QQuickItem *item, const Taken &taken)
{
    if (!view || !item)
        return;
    if (m_svg) {
        taken({suggestedName(view->fileStem(), QLatin1String(".svg")),
               svg_picture::draw(*view, view->pictureTitle(), view->xUnit(), item->size())});
        return;
    }
    const double scale = m_pictureScale > 0 ? m_pictureScale : m_window->devicePixelRatio();
    const auto grab = item->grabToImage((item->size() * scale).toSize());
    if (!grab) {
        tell([] { return tr("The picture could not be taken."); }, true);
        return;
    }
    // The grab result lives only until its signal has been handled.
    const QString name = suggestedName(view->fileStem(), QLatin1String(".png"));
    connect(
        grab.get(), &QQuickItemGrabResult::ready, this,
        [this, grab, name, taken] {
            QBuffer png;
            png.open(QIODevice::WriteOnly);
            grab->image().save(&png, "PNG");
            taken({name, png.data()});
            grab->disconnect(this);
        },
        Qt::QueuedConnection);
}

void ChartSaver::save(const QString &title, const QString &fileName, const QString &filter, const QByteArray &content)
{
    auto *dialog = new QFileDialog(nullptr, title, folder(), filter);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QFileInfo(fileName).suffix());
    dialog->selectFile(fileName);
    connect(dialog, &QFileDialog::fileSelected, this, [this, content](const QString &path) {
        const QString shownPath = QDir::toNativeSeparators(path);
        QString reason;
        if (!whole_file::write(path, content, reason)) {
            tell([=] { return tr("%1 could not be written: %2").arg(shownPath, reason); }, true);
            return;
        }
        tell([=] { return tr("Saved %1").arg(shownPath); }, false);
        rememberFolder(QFileInfo(path).absolutePath());
    });
    openDialog(dialog);
}

void ChartSaver::saveInFolder(const QString &title, const QList<File> &files)
{
    if (files.isEmpty()) {
        tell([] { return tr("No chart has samples."); }, true);
        return;
    }
    auto *dialog = new QFileDialog(nullptr, title, folder());
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    connect(dialog, &QFileDialog::fileSelected, this, [this, files](const QString &path) {
        for (const File &file : files) {
            const QString filePath = QDir(path).filePath(file.name);
            QString reason;
            if (!whole_file::write(filePath, file.content, reason)) {
                const QString shownPath = QDir::toNativeSeparators(filePath);
                tell([=] { return tr("%1 could not be written: %2").arg(shownPath, reason); }, true);
                return;
            }
        }
        const QString shownPath = QDir::toNativeSeparators(path);
        const auto count = int(files.size());
        tell([=] { return tr("Saved %n file(s) in %1", nullptr, count).arg(shownPath); }, false);
        rememberFolder(path);
    });
    openDialog(dialog);
}

void ChartSaver::openDialog(QFileDialog *dialog)
{
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->winId(); // creates the window, so that it can belong to ours
    dialog->windowHandle()->setTransientParent(m_window);
    connect(this, &QObject::destroyed, dialog, &QObject::deleteLater);
    dialog->open();
}

void ChartSaver::rememberFolder(const QString &path)
{
    QSettings store(settings_keys::kFile, QSettings::IniFormat);
    store.beginGroup(m_settingsGroup);
    store.setValue(settings_keys::kDashboardFolder, path);
}

QString ChartSaver::suggestedName(const QString &stem, QLatin1String suffix)
{
    return stem + QDateTime::currentDateTime().toString(QStringLiteral("_yyyyMMdd_HHmmss")) + suffix;
}

QString ChartSaver::folder() const
{
    QSettings settings(settings_keys::kFile, QSettings::IniFormat);
    settings.beginGroup(m_settingsGroup);
    const QString last = settings.value(settings_keys::kDashboardFolder).toString();
    return !last.isEmpty() && QFileInfo(last).isDir()
               ? last
               : QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

void ChartSaver::tell(const Sentence &sentence, bool failed)
{
    m_sentence = sentence;
    const QString message = sentence ? sentence() : QString();
    if (message == m_message && failed == m_failed)
        return;
    m_message = message;
    m_failed = failed;
    emit messageChanged();
}
