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

#include "app/app_language_manager.h"
#include "app/settings_keys.h"
#include "chart/whole_file.h"

ChartSaver::ChartSaver(QWindow *window, QLatin1String settingsGroup, QObject *parent)
    : QObject(parent), m_window(window), m_settingsGroup(settingsGroup)
{
    connect(&AppLanguageManager::instance(), &AppLanguageManager::languageChanged, this,
            [this] { tell(m_sentence, m_failed); });
}

void ChartSaver::saveData(PlotViewState *view)
{
    if (view && view->source())
        save(tr("Save the visible samples"), suggestedName(view->fileStem(), QLatin1String(".csv")),
             tr("Comma-separated values (*.csv)"), view->visibleTable());
}

void ChartSaver::savePicture(PlotViewState *view, QQuickItem *item)
{
    if (view)
        savePictureAs(view->fileStem(), item);
}

void ChartSaver::savePictureAs(const QString &stem, QQuickItem *item)
{
    if (!item)
        return;
    const auto grab = item->grabToImage((item->size() * m_window->devicePixelRatio()).toSize());
    if (!grab) {
        tell([] { return tr("The picture could not be taken."); }, true);
        return;
    }
    // The result lives until its signal has been handled, and no longer.
    const QString name = suggestedName(stem, QLatin1String(".png"));
    connect(
        grab.get(), &QQuickItemGrabResult::ready, this,
        [this, grab, name] {
            QBuffer png;
            png.open(QIODevice::WriteOnly);
            grab->image().save(&png, "PNG");
            save(tr("Save a picture of the chart"), name, tr("PNG picture (*.png)"), png.data());
            grab->disconnect(this);
        },
        Qt::QueuedConnection);
}

void ChartSaver::save(const QString &title, const QString &fileName, const QString &filter, const QByteArray &content)
{
    auto *dialog = new QFileDialog(nullptr, title, folder(), filter);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QFileInfo(fileName).suffix());
    dialog->selectFile(fileName);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->winId(); // creates the window, so that it can belong to ours
    dialog->windowHandle()->setTransientParent(m_window);
    connect(this, &QObject::destroyed, dialog, &QObject::deleteLater);
    connect(dialog, &QFileDialog::fileSelected, this, [this, content](const QString &path) {
        const QString shownPath = QDir::toNativeSeparators(path);
        QString reason;
        if (!whole_file::write(path, content, reason)) {
            tell([=] { return tr("%1 could not be written: %2").arg(shownPath, reason); }, true);
            return;
        }
        tell([=] { return tr("Saved %1").arg(shownPath); }, false);
        QSettings store(settings_keys::kFile, QSettings::IniFormat);
        store.beginGroup(m_settingsGroup);
        store.setValue(settings_keys::kDashboardFolder, QFileInfo(path).absolutePath());
    });
    dialog->open();
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
