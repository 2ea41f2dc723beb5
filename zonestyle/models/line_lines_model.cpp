// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/line_lines_model.h"

#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/size_prompts.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kLines = style::lineMap.lines;

// Deliberate: an edit of a thickness or pattern length goes to no value, the menu writes the
// line's.
static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Show\nLines"), kLines.show),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Line\nColor"), kLines.color),
    percent(QT_TRANSLATE_NOOP("Column", "Line\nThickness"), kLines.lineThickness,
            prompts::kLineThickness)
        .editWrites(StyleTarget::noValue("FieldMap", "Lines", "LineThickness")),
    choice(QT_TRANSLATE_NOOP("Column", "Line\nPattern"), kLines.linePattern).rawValue(integerValue),
    percent(QT_TRANSLATE_NOOP("Column", "Pattern\nLength"), kLines.patternLength,
            prompts::kLinePatternLength)
        .editWrites(StyleTarget::noValue("FieldMap", "Lines", "PatternLength"))
        .relevantUnless(kLines.linePattern, {LinePattern_Solid}),
};

static constexpr ColumnTable kTable =
    ColumnTable(kColumns).primary(1).layer(style::linePlotLayers.showLines).rowMustBeShown();

const ColumnTable& LineLinesModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
