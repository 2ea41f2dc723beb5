// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_shade_3d_model.h"

#include "zonestyle/models/columns/column_kinds.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Use\nLighting"), style::fieldMap.shade.useLightingEffect),
};

// The shade columns before it govern it, with their layer.
static constexpr ColumnTable kTable {kColumns};

const ColumnTable& FieldShade3DModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
