// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/number_ticker.h"

#include "plot/common/nice_steps.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace corvala::plot {

void NumberTicker::generate(const QCPRange& range, const QLocale& locale, QChar formatChar,
                            int precision, QVector<double>& ticks, QVector<double>* subTicks,
                            QVector<QString>* tickLabels)
{
    constexpr int kMost = std::numeric_limits<double>::digits10;
    const double largest = std::max(std::abs(range.lower), std::abs(range.upper));
    const double step = getTickStep(range);
    // A step has two digits, as 2.5 has; the larger number has those before them besides.
    const double digits = std::floor(std::log10(largest / step)) + 2.0;
    if (digits > precision)
        precision = digits < kMost ? static_cast<int>(digits) : kMost;
    QCPAxisTicker::generate(range, locale, formatChar, precision, ticks, subTicks, tickLabels);
}

QString NumberTicker::getTickLabel(double tick, const QLocale& locale, QChar formatChar,
                                   int precision)
{
    const QString label = QCPAxisTicker::getTickLabel(tick, locale, formatChar, precision);
    return withMinusSign(label);
}

} // namespace corvala::plot
