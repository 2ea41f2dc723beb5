// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_shade_model.h"

#include "zonestyle/models/columns/column_kinds.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kShade = style::fieldMap.shade;

static constexpr ColumnDescriptor kColumns[] = {
    checkBox(QT_TRANSLATE_NOOP("Column", "Show\nShade"), kShade.show),
    colorSwatch(QT_TRANSLATE_NOOP("Column", "Shade\nColor"), kShade.color),
};

static constexpr ColumnTable kTable = ColumnTable(kColumns)
                                          .primary(2)
                                          .layer(style::fieldLayers.showShade)
                                          .rowMustBeShown()
                                          .governsFollowing();

const ColumnTable& FieldShadeModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
