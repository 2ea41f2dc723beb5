// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/line_bars_model.h"

#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/size_prompts.h"
#include "zonestyle/tables/dependency_names.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kBars = style::lineMap.barCharts;

static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Show\nBars"), kBars.show),
    choice(QT_TRANSLATE_NOOP("Column", "Bar\nDirection"), style::lineMap.assign.functionDependency)
        .named(tables::kBarDirections),
    percent(QT_TRANSLATE_NOOP("Column", "Bar\nSize"), kBars.size, prompts::kBarSize),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Outline\nColor"), kBars.color),
    percent(QT_TRANSLATE_NOOP("Column", "Line\nThickness"), kBars.lineThickness,
            prompts::kLineThickness),
    choice(QT_TRANSLATE_NOOP("Column", "Fill\nMode"), kBars.fillMode).rawValue(integerValue),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Fill\nColor"), kBars.fillColor)
        .relevantFor(kBars.fillMode, {FillMode_SpecificColor}),
};

static constexpr ColumnTable kTable =
    ColumnTable(kColumns).primary(3).layer(style::linePlotLayers.showBarCharts).rowMustBeShown();

const ColumnTable& LineBarsModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
