// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QStringList>

#include <vector>

namespace corvala::plot {

/// The font of a picture's texts, `pixels` high.
QFont plotFont(double pixels, bool bold = false);

/// Round numbers along an axis, as they are written beside it.
struct AxisTicks
{
    std::vector<double> places;
    QStringList texts; ///< one for each place
    double widest = 0.0; ///< width of the widest text in pixels
};

enum class TickTexts {
    SideBySide, ///< along the axis
    Stacked ///< across it
};

/// As many ticks within [minimum, maximum] as an axis of `length` pixels has room for with texts
/// `font` pixels high; none for an empty or unusable interval.
AxisTicks axisTicks(double minimum, double maximum, double length, double font, TickTexts texts);

} // namespace corvala::plot
