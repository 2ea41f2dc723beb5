// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_contour_3d_model.h"

#include "zonestyle/models/columns/column_kinds.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Use\nLighting"),
             style::fieldMap.contour.useLightingEffect),
};

// Deliberate: no layer of its own, the contour columns before it govern it.
static constexpr ColumnTable kTable {kColumns};

const ColumnTable& FieldContour3DModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
