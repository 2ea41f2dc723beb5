// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_vector_model.h"

#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/size_prompts.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kVector = style::fieldMap.vector;

static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Show\nVector"), kVector.show),
    choice(QT_TRANSLATE_NOOP("Column", "Vector\nType"), kVector.vectorType),
    checkBox(QT_TRANSLATE_NOOP("Column", "Vector\nTangents"), kVector.isTangent),
    choice(QT_TRANSLATE_NOOP("Column", "Head\nStyle"), kVector.arrowheadStyle),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Line\nColor"), kVector.color),
    choice(QT_TRANSLATE_NOOP("Column", "Line\nPattern"), kVector.linePattern)
        .rawValue(integerValue),
    percent(QT_TRANSLATE_NOOP("Column", "Pattern\nLength"), kVector.patternLength,
            prompts::kFieldPatternLength)
        .relevantUnless(kVector.linePattern, {LinePattern_Solid}),
    percent(QT_TRANSLATE_NOOP("Column", "Line\nThickness"), kVector.lineThickness,
            prompts::kFieldLineThickness),
};

static constexpr ColumnTable kTable =
    ColumnTable(kColumns).primary(3).layer(style::fieldLayers.showVector).rowMustBeShown();

const ColumnTable& FieldVectorModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
