// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/column_kinds.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds {

QVariant spacingText(const Cell& cell); ///< "Draw all", "I=2" or "D=2.5%"
QList<QAction*> spacingMenu(const MenuRequest& request);

/// Which of its points a line map marks: each, every n-th, or such as lie apart in percent of the
/// frame. Only the menu changes it.
constexpr ColumnDescriptor spacing(const char* header, const style::ChoiceKey<SkipMode_e>& mode,
                                   style::RealKey skipping)
{
    ColumnDescriptor column {header, skipping};
    column.skipMode = mode;
    column.display = spacingText;
    column.menu = spacingMenu;
    return column;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds
