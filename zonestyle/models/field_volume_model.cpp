// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_volume_model.h"

#include "zonestyle/models/columns/column_kinds.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kObjects = style::fieldMap.volumeObjects;

static constexpr ColumnDescriptor box(const char* header, style::SwitchKey key)
{
    return checkBox(header, key).existsWhere(hasVolumeZones).relevantWhen(isInSpace);
}

static constexpr ColumnDescriptor kColumns[] = {
    box(QT_TRANSLATE_NOOP("Column", "Show\nIso-Surfaces"), kObjects.showIsosurfaces),
    box(QT_TRANSLATE_NOOP("Column", "Show\nSlices"), kObjects.showSlices),
    box(QT_TRANSLATE_NOOP("Column", "Show\nStreamtraces"), kObjects.showStreamtraces),
};

static constexpr ColumnTable kTable = ColumnTable(kColumns).primary(3);

const ColumnTable& FieldVolumeModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
