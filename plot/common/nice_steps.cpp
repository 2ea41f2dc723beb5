// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/nice_steps.h"

#include <algorithm>
#include <cmath>

namespace corvala::plot {

double niceStep(double range, int count)
{
    const double raw = range / count;
    const double power = std::pow(10.0, std::floor(std::log10(raw)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * power >= raw * (1.0 - 1e-9))
            return factor * power;
    return 10.0 * power;
}

std::vector<double> niceTicks(double minimum, double maximum, int count)
{
    const double range = maximum - minimum;
    const double magnitude = std::max(std::abs(minimum), std::abs(maximum));
    if (!std::isfinite(range) || count < 1 || range <= magnitude * 1e-13)
        return {};
    const double step = niceStep(range, count);
    std::vector<double> ticks;
    const double first = std::ceil(minimum / step - 1e-9);
    for (int i = 0; i <= count && (first + i) * step <= maximum + 1e-9 * step; ++i)
        ticks.push_back((first + i) * step);
    return ticks;
}

double withoutNoise(double value, double range)
{
    return std::abs(value) < 1e-10 * range ? 0.0 : value;
}

QString withMinusSign(QString number)
{
    return number.startsWith(QLatin1Char('-')) ? number.replace(0, 1, QChar(0x2212)) : number;
}

static QString plainTickText(double value, double step, double largest)
{
    constexpr int kMostDigits = 15;
    const double magnitude = std::max(std::abs(largest), step);
    if (std::abs(value) < 1e-9 * step)
        return QStringLiteral("0");
    const int decimals =
        std::clamp(static_cast<int>(std::ceil(-std::log10(step) - 1e-9)), 0, kMostDigits);
    const double power = std::floor(std::log10(magnitude) + 1e-9);
    const int digits =
        std::clamp(static_cast<int>(power - std::floor(std::log10(step) + 1e-9)), 0, kMostDigits);
    const bool isPlain = magnitude < 1e6 ? magnitude >= 1e-3
                                         : QString::number(magnitude, 'f', decimals).size()
            < QString::number(magnitude, 'e', digits).size();
    return isPlain ? QString::number(value, 'f', decimals) : QString::number(value, 'e', digits);
}

QString tickText(double value, double step, double largest)
{
    return withMinusSign(plainTickText(value, step, largest));
}

} // namespace corvala::plot
