// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/column_descriptor.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::rules {

/// The line pattern of the same category is not solid, so that its length can be seen.
bool patternHasGaps(const Cell& cell);

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::rules
