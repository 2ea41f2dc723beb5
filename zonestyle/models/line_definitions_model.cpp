// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/line_definitions_model.h"

#include "zonestyle/actions/zone_select_action.h"
#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/host_lists.h"

#include <sdk/base/cvl.h>
#include <sdk/common/common.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kAssign = style::lineMap.assign;

static QVariant zoneName(const Cell& cell)
{
    return QString::fromStdString(zoneNameWithIndexFormattedForFrame(cell.frame, cell.own<int>()));
}

static QVariant zoneList(const Cell& cell)
{
    return names(CvlUtilZoneGetEnabled(), cell.frame, zoneNameWithIndexFormattedForFrame);
}

static bool writeConfirmedZone(const EditRequest& edit)
{
    const std::optional<int> zone = edit.choice();
    if (!zone)
        return true;
    if (!confirmLineMapZoneSelection(*zone, ModelAbstract::toMapSet(edit.cells)))
        return false;
    edit.write(*zone);
    return true;
}

static QList<QAction*> zoneMenu(const MenuRequest& request)
{
    return {new actions::ZoneSelectAction(request.rows())};
}

// Deliberate: as in a list of variables, the position is written; and the menu does not confirm.
static constexpr ColumnDescriptor zone(const char* header)
{
    ColumnDescriptor column {header, kAssign.zone};
    return column.shows(zoneName)
        .lists(zoneList)
        .writes(writeConfirmedZone)
        .offers(zoneMenu)
        .editable()
        .listsFromOne()
        .editor(EditorType_ComboPopup, 2);
}

static QVariant sortName(const Cell& cell)
{
    if (cell.own<int>() != LineMapSort_BySpecificVar)
        return choiceName(cell);
    return QString::fromStdString(
        variableNameFormattedForAliasesForFrame(cell.frame, cell.value(kAssign.sortVar)));
}

static bool canBeSorted(const Cell& cell)
{
    const std::optional<CurveType_e> type = cell.read(style::lineMap.curves.curveType);
    return type && *type != CurveType_Spline;
}

static constexpr ColumnDescriptor kColumns[] = {
    zone(QT_TRANSLATE_NOOP("Column", "Zone")),
    // Deliberate: sorting by a specific variable is shown, but neither listed nor in the menu.
    choice(QT_TRANSLATE_NOOP("Column", "Sort"), kAssign.sort)
        .offersFirst(3)
        .shows(sortName)
        .existsWhere(canBeSorted),
    // Deliberate: the legend may show a map that the plot does not.
    choice(QT_TRANSLATE_NOOP("Column", "Show in\nLegend"), kAssign.showInLegend).alwaysRelevant(),
};

static constexpr ColumnTable kTable = ColumnTable(kColumns).primary(1);

const ColumnTable& LineDefinitionsModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
