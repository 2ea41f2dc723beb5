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

/// A number as short as it can be while it still tells neighbours `step` apart.
QString tickText(double value, double step);

/// A number with a minus sign in place of the hyphen before it; its exponent stays as it is.
QString withMinusSign(QString number);

} // namespace corvala::plot
