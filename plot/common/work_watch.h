// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sdk/base/types.h"

#include <functional>

namespace corvala::plot {

/// Hears how far long work has come, `done` of `total` pieces, and answers false to end it. An
/// empty one waits.
using WorkWatch = std::function<bool(CvlInt64 done, CvlInt64 total)>;

} // namespace corvala::plot
