// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace corvala::plot {

/// The smallest step of 1, 2 or 5 times a power of ten that divides `range` into at most `count`
/// parts. Range and count must be positive.
double niceStep(double range, int count);

/// Multiples of a nice step within [minimum, maximum], at most `count` + 1 of them; empty for an
/// empty or unusable interval.
std::vector<double> niceTicks(double minimum, double maximum, int count);

/// One of the numbers along an axis, `step` apart, the `largest` of which by magnitude decides on
/// the notation: with the same decimals as the others, and as short as they can be while they still
/// tell neighbours apart.
QString tickText(double value, double step, double largest);

/// Zero for what is none but for rounding: far below `range`, the size of what is seen.
double withoutNoise(double value, double range);

/// A number with a minus sign in place of the hyphen before it; its exponent stays as it is.
QString withMinusSign(QString number);

} // namespace corvala::plot
