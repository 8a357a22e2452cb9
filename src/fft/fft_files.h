#pragma once

#include "chart/chart_saver.h"
#include "fft/fft_chart_bridge.h"

/// What the spectrum window saves and opens: snapshots, tables and pictures. Results and errors stand in `message`.
class FftFiles : public ChartSaver
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FftFiles)
    QML_ELEMENT
    QML_UNCREATABLE("comes with the window")

public:
    /// `window` is the one that dialogs belong to; both must outlive this.
    FftFiles(const FftChartBridge &bridge, QWindow *window, QObject *parent = nullptr);

    /// The spectra as of now with their analysis.
    Q_INVOKABLE void saveJson();
    /// The spectra as of now as a table.
    Q_INVOKABLE void saveCsv();
    /// Asks for a snapshot and tells what it holds.
    Q_INVOKABLE void openSnapshot();
    /// Tells what a snapshot holds, or why it cannot be read.
    void showSnapshot(const QString &path);

private:
    const FftChartBridge &m_bridge;
};
