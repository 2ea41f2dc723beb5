// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/column_descriptor.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds {

bool writeActive(const EditRequest& edit);
QList<QAction*> activeMenu(const MenuRequest& request);

/// Whether the map is in the set of those that the frame shows.
constexpr ColumnDescriptor activeBox(const char* header, style::NumbersKey activeSet,
                                     CellReader isActive)
{
    ColumnDescriptor column {header, activeSet};
    column.check = isActive;
    column.flags = Qt::ItemIsUserCheckable;
    column.writer = writeActive;
    column.menu = activeMenu;
    return column.editor(EditorType_Boolean, 0);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds
