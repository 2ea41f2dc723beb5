// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_mesh_model.h"

#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/relevance_rules.h"
#include "zonestyle/models/columns/size_prompts.h"
#include "zonestyle/tables/line_names.h"
#include "zonestyle/tables/mesh_names.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr StylePath kMesh {"FieldMap", "Mesh"};

// Deliberate: unlike in the other field tables, choices and sizes take edits of the edit role only.
static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Show\nMesh"), kMesh / "Show"),
    choice<MeshType_e>(QT_TRANSLATE_NOOP("Column", "Mesh\nType"), kMesh / "MeshType",
                       tables::kMeshTypes)
        .editsOnly(Qt::EditRole),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Mesh\nColor"), kMesh / "Color"),
    choice<LinePattern_e>(QT_TRANSLATE_NOOP("Column", "Line\nPattern"), kMesh / "LinePattern",
                          tables::kLinePatterns)
        .editsOnly(Qt::EditRole),
    percent(QT_TRANSLATE_NOOP("Column", "Pattern\nLength"), kMesh / "PatternLength",
            prompts::kFieldPatternLength)
        .editsOnly(Qt::EditRole)
        .relevantWhen(rules::patternHasGaps),
    percent(QT_TRANSLATE_NOOP("Column", "Line\nThickness"), kMesh / "LineThickness",
            prompts::kFieldLineThickness)
        .editsOnly(Qt::EditRole),
};

static constexpr ColumnTable kTable =
    ColumnTable(kColumns).primary(3).layer("ShowMesh").rowMustBeShown();

const ColumnTable& FieldMeshModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
