// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/line_symbols_model.h"

#include "zonestyle/models/columns/line_columns.h"
#include "zonestyle/models/columns/size_prompts.h"
#include "zonestyle/models/columns/symbol_columns.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kSymbols = style::lineMap.symbols;

static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Show\nSymbols"), kSymbols.show),
    lineSymbolShape(QT_TRANSLATE_NOOP("Column", "Symbol\nShape"), kSymbols.symbolShape),
    percent(QT_TRANSLATE_NOOP("Column", "Symbol\nSize"), kSymbols.size, prompts::kLineSymbolSize),
    spacing(QT_TRANSLATE_NOOP("Column", "Symbol\nSpacing"), kSymbols.skipMode, kSymbols.skipping),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Outline\nColor"), kSymbols.color),
    // Deliberate: an edit of the cell writes the size of the symbols, the menu the thickness.
    percent(QT_TRANSLATE_NOOP("Column", "Line\nThickness"), kSymbols.lineThickness,
            prompts::kLineThickness)
        .editWrites(kSymbols.size),
    choice(QT_TRANSLATE_NOOP("Column", "Fill\nMode"), kSymbols.fillMode).rawValue(integerValue),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Fill\nColor"), kSymbols.fillColor)
        .relevantFor(kSymbols.fillMode, {FillMode_SpecificColor}),
};

static constexpr ColumnTable kTable =
    ColumnTable(kColumns).primary(4).layer(style::linePlotLayers.showSymbols).rowMustBeShown();

const ColumnTable& LineSymbolsModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
