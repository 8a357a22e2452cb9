#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// Window functions that a block of samples is weighted with before its transform. The values are the indices in the
/// list of the spectrum window.
enum class FftWindowType { Rectangular, Hann, Hamming, Blackman, FlatTop };

/// A window of N weights with the figures that correct its effect on amplitudes.
struct FftWindow
{
    QList<double> weights{1.0};
    double coherentGain = 1.0;   ///< mean of the weights: what a tone's amplitude is scaled by
    double noiseBandwidth = 1.0; ///< equivalent noise bandwidth in bins, N * sum(w^2) / sum(w)^2
};

/// Weights of a window, symmetric over `points` samples. A single point has weight 1 whatever the type; for an unknown
/// type all weights are 0. Both figures are 1 when the sum of the weights is not positive.
FftWindow makeFftWindow(FftWindowType type, int points);

/// Names in the order of FftWindowType, in English as in snapshots. fftWindowLabel() gives the names for display.
const QStringList &fftWindowNames();
/// The leakage of a steady value through the window of this name over `points` samples into the bins 1, 2, ... up to
/// points / 2 - 1, as shares of the amplitude at 0 Hz: its main lobe, and beyond it the little that comes from a window
/// that is symmetric over its samples. Nearly 0 for the rectangular window. Empty for an unknown name.
QList<double> fftWindowLeakage(const QString &name, int points);
/// Bins on either side of a tone that the main lobe of the window covers; 0 for the rectangular one and unknown names.
int fftWindowLobeBins(const QString &name);
/// The name in the language of the interface; an unknown name is returned unchanged.
QString fftWindowLabel(const QString &name);
