// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/axis_ticks.h"

#include "plot/common/nice_steps.h"

#include <QFontMetricsF>
#include <QGuiApplication>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

QFont plotFont(double pixels, bool bold)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(std::max(static_cast<int>(std::lround(pixels)), 1));
    font.setBold(bold);
    return font;
}

static AxisTicks ticksOf(double minimum, double maximum, int count, double font)
{
    AxisTicks ticks;
    ticks.places = niceTicks(minimum, maximum, count);
    if (ticks.places.empty())
        return ticks;
    const QFontMetricsF metrics(plotFont(font));
    const double step = ticks.places.size() > 1 ? ticks.places[1] - ticks.places[0]
                                                : std::max(std::abs(ticks.places[0]), 1.0);
    const double largest = std::max(std::abs(ticks.places.front()), std::abs(ticks.places.back()));
    for (const double place : ticks.places) {
        ticks.texts.append(tickText(place, step, largest));
        ticks.widest = std::max(ticks.widest, metrics.horizontalAdvance(ticks.texts.back()));
    }
    return ticks;
}

AxisTicks axisTicks(double minimum, double maximum, double length, double font, TickTexts texts)
{
    const bool isStacked = texts == TickTexts::Stacked;
    int count = std::max(static_cast<int>(length / ((isStacked ? 3.0 : 4.5) * font)), 2);
    AxisTicks ticks = ticksOf(minimum, maximum, count, font);
    const auto isCrowded = [&] {
        const auto gaps = static_cast<double>(ticks.places.size()) - 1.0;
        return gaps > 0.0 && gaps * (ticks.widest + font) > length;
    };
    while (!isStacked && count > 1 && isCrowded())
        ticks = ticksOf(minimum, maximum, --count, font);
    return ticks;
}

} // namespace corvala::plot
