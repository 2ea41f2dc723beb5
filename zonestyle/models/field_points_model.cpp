// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_points_model.h"

#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/index_prompts.h"

#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kPoints = style::fieldMap.points;

/// Vectors or symbols are drawn for the map.
static bool carriesAnything(const Cell& cell)
{
    return (cell.value(style::fieldMap.vector.show) && cell.value(style::fieldLayers.showVector))
        || (cell.value(style::fieldMap.scatter.show) && cell.value(style::fieldLayers.showScatter));
}

static QList<QAction*> skipMenu(const MenuRequest& request)
{
    const QModelIndexList rows = request.rows();
    const ThreeKeys& keys = request.column.triple;
    return {new actions::ThreeValueAction(QCoreApplication::translate("Menu", "No skip"), rows,
                                          {1, 1, 1}, keys),
            new actions::EnterThreeValueAction(QCoreApplication::translate("Menu", "Enter skip..."),
                                               rows, *request.column.triplePrompt, keys)};
}

static constexpr ColumnDescriptor kColumns[] = {
    choice(QT_TRANSLATE_NOOP("Column", "Points\nto Plot"), kPoints.pointsToPlot)
        .relevantWhen(carriesAnything),
    triple(QT_TRANSLATE_NOOP("Column", "Index\nSkip"), keysOf(kPoints.ijkSkip), prompts::kSkip)
        .editor(EditorType_TextPopup, 0)
        .offers(skipMenu)
        .relevantWhen(carriesAnything),
};

// Deliberate: only the menus write.
static constexpr ColumnTable kTable = ColumnTable(kColumns).primary(1).refusesEdits();

const ColumnTable& FieldPointsModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
