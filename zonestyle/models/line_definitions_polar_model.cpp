// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/line_definitions_polar_model.h"

#include "zonestyle/models/columns/column_kinds.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kAssign = style::lineMap.assign;
static constexpr const char* kPrompt = QT_TRANSLATE_NOOP("Prompt", "Choose the variable");

// Deliberate: the cells show and edit the polar variables, the menus choose the XY ones. Keep both.
static constexpr ColumnDescriptor kColumns[] = {
    variable(QT_TRANSLATE_NOOP("Column", "Theta\nVariable"), kAssign.thetaAxisVar, kPrompt)
        .menuWrites(kAssign.xAxisVar),
    variable(QT_TRANSLATE_NOOP("Column", "Radius\nVariable"), kAssign.rAxisVar, kPrompt)
        .menuWrites(kAssign.yAxisVar),
};

static constexpr ColumnTable kTable = ColumnTable(kColumns).primary(2);

const ColumnTable& LineDefinitionsPolarModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
