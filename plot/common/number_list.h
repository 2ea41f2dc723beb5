// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <string>
#include <vector>

namespace corvala::plot {

/// What a user typed as several numbers.
struct NumberList
{
    std::vector<double> numbers;
    QString rest; ///< the first word that is no number, which ends the list; empty without one
};

/// Reads numbers separated by blanks. The decimal point and the comma are both read; a comma or
/// semicolon after a number separates too.
NumberList numbersIn(const std::string& text);

} // namespace corvala::plot
