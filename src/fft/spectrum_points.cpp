#include "fft/spectrum_points.h"

#include <algorithm>

void spectrum_points::visible(const QList<QPointF> &bins, double xMin, double xMax, int maxPoints, QList<QPointF> &out)
{
    out.clear();
    const auto before = [](QPointF bin, double frequency) { return bin.x() < frequency; };
    auto first = std::lower_bound(bins.begin(), bins.end(), xMin, before);
    auto last = std::lower_bound(first, bins.end(), xMax, before);
    first -= first != bins.begin();
    last += last != bins.end();
    const auto lower = [](QPointF left, QPointF right) { return left.y() < right.y(); };
    const qsizetype step = last - first <= maxPoints ? 1 : 2 * (last - first) / std::max(maxPoints, 1) + 1;
    const QPointF *end = bins.constData() + (last - bins.begin());
    for (const QPointF *bin = bins.constData() + (first - bins.begin()); bin < end; bin += step) {
        if (step == 1) {
            out.append(*bin);
            continue;
        }
        const auto [lowest, highest] = std::minmax_element(bin, std::min(bin + step, end), lower);
        out.append(*std::min(lowest, highest));
        out.append(*std::max(lowest, highest));
    }
}
