#pragma once

#include <QList>

/// Where labels of `height` pixels stand beside a plot of `plotHeight`, for curves that end at `ends` (pixels from the
/// top): the middles of the labels. Labels of curves that end close together are moved apart, in their order. NaN for
/// curves that end outside the plot or nowhere (NaN), and for those that have no place.
QList<double> labelPlaces(const QList<double> &ends, double plotHeight, double height);
