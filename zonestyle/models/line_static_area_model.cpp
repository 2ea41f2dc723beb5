// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/line_static_area_model.h"

#include "zonestyle/actions/map_rename_action.h"
#include "zonestyle/actions/style_action.h"
#include "zonestyle/models/columns/host_lists.h"
#include "zonestyle/models/columns/identity_columns.h"

#include <sdk/base/cvl.h>
#include <sdk/common/app_lock.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static QVariant mapNumber(const Cell& cell)
{
    return cell.map;
}

static QVariant mapName(const Cell& cell)
{
    return takeText(CvlUtilLineMapGetNameForFrame(cell.frame, cell.map));
}

/// With its dynamic text as it was typed.
static QVariant storedMapName(const Cell& cell)
{
    const AppLock lock;
    return takeText(reinterpret_cast<char*>(
        CvlUtilLineMapStyleGetArbValueForFrame(cell.frame, cell.map, "Name")));
}

static QVariant isActive(const Cell& cell)
{
    return CvlUtilLineMapIsActiveForFrame(cell.frame, cell.map) ? Qt::Checked : Qt::Unchecked;
}

static bool rename(const EditRequest& edit)
{
    actions::runAction<actions::MapRenameAction>(edit.cells, edit.value.toString());
    return true;
}

static constexpr ColumnDescriptor number(const char* header)
{
    ColumnDescriptor descriptor {header};
    return descriptor.shows(mapNumber);
}

static constexpr ColumnDescriptor name(const char* header)
{
    ColumnDescriptor descriptor {header};
    return descriptor.shows(mapName)
        .editsText(storedMapName)
        .writes(rename)
        .editable()
        .editor(EditorType_DynamicTextPopup, 2);
}

// Deliberate: unlike the table of field maps, this one takes edits of any role.
static constexpr ColumnDescriptor kColumns[] = {
    number(QT_TRANSLATE_NOOP("Column", "Map\nNumber")),
    name(QT_TRANSLATE_NOOP("Column", "Map\nName")),
    activeBox(QT_TRANSLATE_NOOP("Column", "Show\nMap"), style::activeLineMaps, isActive),
};

static constexpr ColumnTable kTable = ColumnTable(kColumns).identity();

const ColumnTable& LineStaticAreaModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
