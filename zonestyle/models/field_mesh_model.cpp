// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_mesh_model.h"

#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/size_prompts.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kMesh = style::fieldMap.mesh;

// Deliberate: unlike in the other field tables, choices and sizes take edits of the edit role only.
static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Show\nMesh"), kMesh.show),
    choice(QT_TRANSLATE_NOOP("Column", "Mesh\nType"), kMesh.meshType).editsOnly(Qt::EditRole),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Mesh\nColor"), kMesh.color),
    choice(QT_TRANSLATE_NOOP("Column", "Line\nPattern"), kMesh.linePattern).editsOnly(Qt::EditRole),
    percent(QT_TRANSLATE_NOOP("Column", "Pattern\nLength"), kMesh.patternLength,
            prompts::kFieldPatternLength)
        .editsOnly(Qt::EditRole)
        .relevantUnless(kMesh.linePattern, {LinePattern_Solid}),
    percent(QT_TRANSLATE_NOOP("Column", "Line\nThickness"), kMesh.lineThickness,
            prompts::kFieldLineThickness)
        .editsOnly(Qt::EditRole),
};

static constexpr ColumnTable kTable =
    ColumnTable(kColumns).primary(3).layer(style::fieldLayers.showMesh).rowMustBeShown();

const ColumnTable& FieldMeshModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
