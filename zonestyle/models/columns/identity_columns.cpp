// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/columns/identity_columns.h"

#include "zonestyle/actions/map_activate_action.h"
#include "zonestyle/actions/style_action.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds {

using namespace actions;

static style::NumbersKey activeSet(const ColumnDescriptor& column)
{
    return style::keyAs<style::NumbersKey>(column.key);
}

bool writeActive(const EditRequest& edit)
{
    runAction<MapActivateAction>(
        edit.cells, edit.isChecked() ? MapActivateMode_Activate : MapActivateMode_Deactivate,
        activeSet(edit.column));
    return true;
}

QList<QAction*> activeMenu(const MenuRequest& request)
{
    // Inverting asks the cells of this column, the others would do with any.
    const QModelIndexList rows = request.rows(request.columnNumber);
    QList<QAction*> entries;
    for (const MapActivateMode_e mode : {MapActivateMode_Activate, MapActivateMode_Deactivate,
                                         MapActivateMode_ShowSelectedOnly, MapActivateMode_Invert})
        entries.append(new MapActivateAction(rows, mode, activeSet(request.column)));
    return entries;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds
