// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/number_ticker.h"

#include "plot/common/nice_steps.h"

#include <algorithm>
#include <cmath>

namespace corvala::plot {

QString powerOfTen(int power)
{
    static const QString kRaised = QStringLiteral("\u2070\u00b9\u00b2\u00b3\u2074\u2075\u2076"
                                                  "\u2077\u2078\u2079");
    QString text = QStringLiteral("10");
    for (const QChar letter : QString::number(power))
        text += letter.isDigit() ? kRaised[letter.digitValue()] : QChar(0x207b);
    return text;
}

/// The power of ten that all ticks are multiples of: that of their distance, or with some digits
/// more.
static double unitOf(const QVector<double>& ticks)
{
    constexpr int kMoreDigits = 2;
    constexpr double kExact = 1e-3; // of the unit
    double step = ticks.size() > 1 ? std::abs(ticks[1] - ticks[0]) : std::abs(ticks[0]);
    for (int i = 2; i < ticks.size(); ++i)
        step = std::min(step, std::abs(ticks[i] - ticks[i - 1]));
    const int coarsest = step > 0.0 ? static_cast<int>(std::floor(std::log10(step) + 1e-9)) : 0;
    for (int power = coarsest; power > coarsest - kMoreDigits; --power) {
        const double unit = std::pow(10.0, power);
        if (std::all_of(ticks.begin(), ticks.end(), [&](double tick) {
                return std::abs(tick / unit - std::round(tick / unit)) < kExact;
            }))
            return unit;
    }
    return std::pow(10.0, coarsest - kMoreDigits);
}

QVector<QString> numberTexts(const QVector<double>& ticks)
{
    QVector<QString> texts;
    if (ticks.isEmpty())
        return texts;
    const double unit = unitOf(ticks);
    double largest = 0.0;
    for (const double tick : ticks)
        largest = std::max(largest, std::abs(tick));
    for (const double tick : ticks) {
        const QString text = tickText(tick, unit, largest);
        const int exponent = text.indexOf(QLatin1Char('e'));
        const QString factor = text.left(exponent) + QChar(0xb7);
        texts.append(exponent < 0 ? text : factor + powerOfTen(text.mid(exponent + 1).toInt()));
    }
    return texts;
}

QVector<QString> NumberTicker::createLabelVector(const QVector<double>& ticks, const QLocale&,
                                                 QChar, int)
{
    return numberTexts(ticks);
}

} // namespace corvala::plot
