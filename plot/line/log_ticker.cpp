// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/log_ticker.h"

#include "plot/common/nice_steps.h"
#include "plot/line/number_ticker.h"

#include <cmath>

namespace corvala::plot {

namespace {

/// The powers of ten of a range.
struct Decades
{
    explicit Decades(const QCPRange& range)
        : first(static_cast<int>(std::ceil(std::log10(range.lower) - 1e-9)))
        , last(static_cast<int>(std::floor(std::log10(range.upper) + 1e-9)))
    {
    }
    int count() const { return last - first + 1; }

    int first;
    int last;
};

} // namespace

/// Multiples of the powers of ten that a range touches.
static QVector<double> multiples(const QCPRange& range, std::initializer_list<double> factors)
{
    const Decades decades(range);
    QVector<double> found;
    for (int power = decades.first - 1; power <= decades.last; ++power)
        for (const double factor : factors)
            if (range.contains(factor * std::pow(10.0, power)))
                found.append(factor * std::pow(10.0, power));
    return found;
}

/// Every so many powers of ten.
static QVector<double> powers(const Decades& decades, int apart)
{
    QVector<double> found;
    for (int power = decades.first; power <= decades.last; ++power)
        if (power % apart == 0)
            found.append(std::pow(10.0, power));
    return found;
}

static QVector<double> roundNumbers(const QCPRange& range, int count)
{
    const QVector<double> found = multiples(range, {1.0, 2.0, 5.0});
    if (found.size() >= 3)
        return found;
    const std::vector<double> even = niceTicks(range.lower, range.upper, count);
    return {even.begin(), even.end()};
}

void LogTicker::generate(const QCPRange& range, const QLocale&, QChar, int, QVector<double>& ticks,
                         QVector<double>* subTicks, QVector<QString>* tickLabels)
{
    const bool isUsable = range.lower > 0.0 && range.lower < range.upper;
    const Decades decades(isUsable ? range : QCPRange(1.0, 10.0));
    const bool hasPowers = decades.count() >= 2;
    const int apart = (decades.count() + tickCount()) / (tickCount() + 1);
    ticks = !isUsable ? QVector<double>()
        : hasPowers   ? powers(decades, apart)
                      : roundNumbers(range, tickCount());
    if (subTicks && isUsable && hasPowers)
        *subTicks = apart > 1 ? powers(decades, 1)
                              : multiples(range, {2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0});
    else if (subTicks)
        subTicks->clear(); // of what was shown before
    if (!tickLabels)
        return;
    *tickLabels = hasPowers ? QVector<QString>() : numberTexts(ticks);
    for (int i = 0; i < ticks.size() && hasPowers; ++i)
        tickLabels->append(powerOfTen(static_cast<int>(std::lround(std::log10(ticks[i])))));
}

} // namespace corvala::plot
