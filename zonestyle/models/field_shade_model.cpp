// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_shade_model.h"

#include "zonestyle/models/columns/column_kinds.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr StylePath kShade {"FieldMap", "Shade"};

static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Show\nShade"), kShade / "Show"),
    // Deliberate: a shade cannot follow a contour group or RGB.
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Shade\nColor"), kShade / "Color").withoutGroupColors(),
};

static constexpr ColumnTable kTable =
    ColumnTable(kColumns).primary(2).layer("ShowShade").rowMustBeShown().governsFollowing();

const ColumnTable& FieldShadeModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
