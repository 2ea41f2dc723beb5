// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/curves/curve_points.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace corvala::plot {

CurvePoints usable(const CurvePoints& points)
{
    CurvePoints result;
    std::size_t count = std::min(points.x.size(), points.y.size());
    if (!points.weights.empty())
        count = std::min(count, points.weights.size());
    const auto [low, high] = std::minmax(points.from, points.to);
    for (std::size_t i = 0; i < count; ++i) {
        const double x = points.x[i];
        const double weight = points.weight(i);
        if (!std::isfinite(x) || x < low || x > high || !std::isfinite(points.y[i])
            || !std::isfinite(weight) || weight <= 0.0)
            continue;
        result.x.push_back(x);
        result.y.push_back(points.y[i]);
        if (!points.weights.empty())
            result.weights.push_back(weight);
    }
    return result;
}

CurvePoints merged(const CurvePoints& points)
{
    std::vector<std::size_t> order(points.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    if (!std::is_sorted(points.x.begin(), points.x.end()))
        std::stable_sort(order.begin(), order.end(), [&points](std::size_t one, std::size_t other) {
            return points.x[one] < points.x[other];
        });

    CurvePoints result;
    for (std::size_t i = 0; i < order.size();) {
        const double x = points.x[order[i]];
        long double weight = 0.0L;
        long double sum = 0.0L;
        for (; i < order.size() && points.x[order[i]] == x; ++i) {
            weight += points.weight(order[i]);
            sum += static_cast<long double>(points.weight(order[i])) * points.y[order[i]];
        }
        result.x.push_back(x);
        result.y.push_back(static_cast<double>(sum / weight));
        result.weights.push_back(static_cast<double>(weight));
    }
    return result;
}

bool hasAbscissas(const CurvePoints& points, std::size_t count)
{
    std::vector<double> found;
    for (auto x = points.x.begin(); x != points.x.end() && found.size() < count; ++x) {
        if (std::find(found.begin(), found.end(), *x) == found.end())
            found.push_back(*x);
    }
    return found.size() >= count;
}

AbscissaScale::AbscissaScale(const std::vector<double>& abscissas)
{
    if (abscissas.empty())
        return;
    const auto [low, high] = std::minmax_element(abscissas.begin(), abscissas.end());
    middle = static_cast<double>((static_cast<long double>(*low) + *high) / 2.0L);
    const long double reach = std::max(*high - middle, middle - *low);
    if (reach > 0.0L)
        unit = std::ldexp(1.0L, std::ilogb(reach) + 1);
}

} // namespace corvala::plot
