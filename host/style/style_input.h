// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/style/number_set.h"

#include <cstdint>
#include <string>
#include <variant>

namespace corvala::host {

/// A value on its way into the style tree, and out of it.
using StyleInput = std::variant<double, bool, std::string, NumberSet>;
using StyleOutput = std::variant<std::int32_t, double, std::string, NumberSet>;

} // namespace corvala::host
