// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace corvala::app {

/// The columns of a table that are errors of other ones, by their names: from the place of a column
/// to that of its errors. "y_err", "y error", "yerr", "sigma_y" and "dy" belong to "y"; a column
/// "err" behind two others, where there are no more, belongs to the second one.
std::map<std::size_t, std::size_t> errorColumns(const std::vector<std::string>& names);

} // namespace corvala::app
