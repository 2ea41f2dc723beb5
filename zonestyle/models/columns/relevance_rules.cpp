// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/columns/relevance_rules.h"

#include <sdk/base/enums.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::rules {

bool patternHasGaps(const Cell& cell)
{
    return cell.sibling<int>("LinePattern") != LinePattern_Solid;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::rules
