// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/line_definitions_xy_model.h"

#include "zonestyle/models/columns/column_kinds.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kAssign = style::lineMap.assign;
static constexpr const char* kPrompt = QT_TRANSLATE_NOOP("Prompt", "Choose the variable");
static constexpr int kAxes = style::LineAssign::kAxes;

/// Such as "X1".
template<char Letter>
static QString axisText(int axis)
{
    return QLatin1Char(Letter) + QString::number(axis);
}

template<char Letter>
static QVariant axisName(const Cell& cell)
{
    return axisText<Letter>(cell.own<int>());
}

template<char Letter>
static QVariant axisList(const Cell&)
{
    QStringList entries;
    for (int axis = 1; axis <= kAxes; ++axis)
        entries.append(axisText<Letter>(axis));
    return entries;
}

template<char Letter>
static QList<QAction*> axisMenu(const MenuRequest& request)
{
    const QModelIndexList rows = request.rows();
    QList<QAction*> entries;
    for (int axis = 1; axis <= kAxes; ++axis)
        entries.append(new actions::StyleAction<int>(axisText<Letter>(axis), rows, axis,
                                                     request.column.menuTarget()));
    return entries;
}

template<char Letter>
static constexpr ColumnDescriptor axis(const char* header, style::IntegerKey key)
{
    ColumnDescriptor column {header, key};
    return column.shows(axisName<Letter>)
        .lists(axisList<Letter>)
        .writes(writeChoice)
        .offers(axisMenu<Letter>)
        .listsFromOne()
        .editor(EditorType_ListPopup, 0);
}

static constexpr ColumnDescriptor kColumns[] = {
    variable(QT_TRANSLATE_NOOP("Column", "X-Axis\nVariable"), kAssign.xAxisVar, kPrompt),
    variable(QT_TRANSLATE_NOOP("Column", "Y-Axis\nVariable"), kAssign.yAxisVar, kPrompt),
    axis<'X'>(QT_TRANSLATE_NOOP("Column", "Which\nX-Axis"), kAssign.xAxis),
    axis<'Y'>(QT_TRANSLATE_NOOP("Column", "Which\nY-Axis"), kAssign.yAxis),
};

static constexpr ColumnTable kTable = ColumnTable(kColumns).primary(2);

const ColumnTable& LineDefinitionsXYModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
