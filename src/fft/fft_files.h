#pragma once

#include "chart/chart_saver.h"
#include "fft/fft_chart_bridge.h"

/// Saves and opens the files of the spectrum window: snapshots, tables and pictures. Results and errors are in
/// `message`.
class FftFiles : public ChartSaver
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FftFiles)
    QML_ELEMENT
    QML_UNCREATABLE("comes with the window")

public:
    /// `window` is the parent of dialogs; both must outlive this object.
    FftFiles(const FftChartBridge &bridge, QWindow *window, QObject *parent = nullptr);

    /// Saves the current spectra with their analysis.
    Q_INVOKABLE void saveJson();
    /// Saves the current spectra as a table.
    Q_INVOKABLE void saveCsv();
    /// Asks for a snapshot and shows what it holds.
    Q_INVOKABLE void openSnapshot();
    /// Shows what a snapshot holds, or why it cannot be read.
    void showSnapshot(const QString &path);

private:
    const FftChartBridge &m_bridge;
};
