#include "fft/fft_files.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QWindow>

#include "app/settings_keys.h"

namespace {

constexpr qsizetype kMaxShown = 300; ///< characters of a text from a file

} // namespace

FftFiles::FftFiles(const FftChartBridge &bridge, QWindow *window, QObject *parent)
    : ChartSaver(window, settings_keys::kSpectrum, parent), m_bridge(bridge)
{}

void FftFiles::saveJson()
{
    save(tr("Save a snapshot"), suggestedName(QStringLiteral("spectrum"), QLatin1String(".json")),
         tr("Spectrum snapshot (*.json)"), m_bridge.exportSnapshotJson().toUtf8());
}

void FftFiles::saveCsv()
{
    save(tr("Save the spectra"), suggestedName(QStringLiteral("spectrum"), QLatin1String(".csv")),
         tr("Comma-separated values (*.csv)"), m_bridge.exportSnapshotCsv().toUtf8());
}

void FftFiles::openSnapshot()
{
    auto *dialog = new QFileDialog(nullptr, tr("Open a snapshot"), folder(), tr("Spectrum snapshot (*.json)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->winId(); // creates the window, so that it can belong to ours
    dialog->windowHandle()->setTransientParent(window());
    connect(this, &QObject::destroyed, dialog, &QObject::deleteLater);
    connect(dialog, &QFileDialog::fileSelected, this, &FftFiles::showSnapshot);
    dialog->open();
}

void FftFiles::showSnapshot(const QString &path)
{
    QString reason;
    const QVariantMap summary = fft_snapshot::readFile(path, reason);
    if (summary.isEmpty()) {
        tell(
            [reason] {
                return reason.isEmpty() ? tr("The file is no spectrum snapshot.")
                                        : tr("The file could not be read: %1").arg(reason);
            },
            true);
        return;
    }
    clearMessage();
    const auto value = [&summary](const char *key) {
        const QString text = summary.value(QLatin1String(key)).toString();
        return text.size() > kMaxShown ? text.left(kMaxShown) + QChar(0x2026)
               : text.isEmpty()        ? QStringLiteral("–")
                                       : text;
    };
    const QStringList lines{
        tr("%1 points, %2 Hz, window %3").arg(value("fftSize"), value("sampleRate"), value("windowName")),
        tr("Bands: %1").arg(value("bandSummary")),
        tr("Coherence: %1").arg(value("coherenceSummary")),
        tr("Alarm (%1): %2").arg(value("alarmPreset"), value("alarmSummary")),
        tr("Settings: %1")
            .arg(summary.value(QStringLiteral("profileHash")) == m_bridge.profileHash()
                     ? tr("the same as now")
                     : tr("other than now (%1)").arg(value("profileHash"))),
        tr("Format: %1").arg(value("version"))};
    auto *box = new QMessageBox(QMessageBox::NoIcon, tr("Snapshot"), QString());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText); // it comes from a file; the informative text has no such setting
    box->setText(QFileInfo(path).fileName() + QStringLiteral("\n\n") + lines.join(QLatin1Char('\n')));
    box->setWindowModality(Qt::WindowModal);
    box->winId();
    box->windowHandle()->setTransientParent(window());
    connect(this, &QObject::destroyed, box, &QObject::deleteLater);
    box->open();
}
