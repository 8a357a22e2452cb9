#include "chart/label_places.h"

#include <algorithm>
#include <limits>

QList<double> labelPlaces(const QList<double> &ends, double plotHeight, double height)
{
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    QList<double> places(ends.size(), kNone);
    QList<qsizetype> order;
    for (qsizetype i = 0; i < ends.size(); ++i) {
        if (ends.at(i) >= 0 && ends.at(i) <= plotHeight) {
            places[i] = ends.at(i);
            order += i;
        }
    }
    std::stable_sort(order.begin(), order.end(), [&places](auto a, auto b) { return places.at(a) < places.at(b); });
    while (!order.isEmpty() && double(order.size()) * height > plotHeight) { // the legend has those without a place
        places[order.last()] = kNone;
        order.removeLast();
    }
    double least = height / 2;
    for (const qsizetype i : order) { // down, and then up from the bottom
        places[i] = std::max(places.at(i), least);
        least = places.at(i) + height;
    }
    double most = plotHeight - height / 2;
    for (auto i = order.crbegin(); i != order.crend(); ++i) {
        places[*i] = std::min(places.at(*i), most);
        most = places.at(*i) - height;
    }
    return places;
}
