// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_static_area_model.h"

#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/host_lists.h"
#include "zonestyle/models/columns/identity_columns.h"

#include <sdk/base/cvl.h>

#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static CvlInt64 candidateZone(const Cell& cell)
{
    return CvlUtilFieldMapGetCandidateZoneForFrame(cell.frame, cell.map);
}

static QVariant zoneNumber(const Cell& cell)
{
    const CvlInt64 zone = candidateZone(cell);
    if (zone == 0)
        return QCoreApplication::translate("Cell", "N/A");
    const bool isOneOfStrand =
        CvlUtilFieldMapGetModeForFrame(cell.frame, cell.map) == FieldMapMode_Strand;
    return QString(QString::number(zone) + QLatin1String(isOneOfStrand ? "*" : ""));
}

static QVariant zoneName(const Cell& cell)
{
    const CvlInt64 zone = candidateZone(cell);
    if (zone != 0)
        return takeText(CvlUtilZoneGetNameForFrame(cell.frame, zone));
    return QCoreApplication::translate(
               "Cell", "Strand ID %1 has no relevant zones at the current solution time")
        .arg(CvlUtilFieldMapGetStrandID(cell.frame, cell.map));
}

static QVariant isActive(const Cell& cell)
{
    return CvlUtilFieldMapIsActiveForFrame(cell.frame, cell.map) ? Qt::Checked : Qt::Unchecked;
}

static constexpr ColumnDescriptor column(const char* header, CellReader display)
{
    ColumnDescriptor descriptor {header};
    return descriptor.shows(display);
}

static constexpr ColumnDescriptor group(const char* header)
{
    ColumnDescriptor descriptor {header, style::fieldMap.group};
    return descriptor.shows(integerValue)
        .writes(writeNumber)
        .editsOnly(Qt::EditRole)
        .editable()
        .editor(EditorType_TextPopup, 0);
}

static constexpr ColumnDescriptor kColumns[] = {
    column(QT_TRANSLATE_NOOP("Column", "Zone\nNumber"), zoneNumber),
    // Deliberate: a text editor without the editable flag. The name is shown, not edited, here.
    column(QT_TRANSLATE_NOOP("Column", "Zone\nName"), zoneName).editor(EditorType_TextPopup, 2),
    group(QT_TRANSLATE_NOOP("Column", "Group\nNumber")),
    activeBox(QT_TRANSLATE_NOOP("Column", "Show\nZone"), style::activeFieldMaps, isActive)
        .editsOnly(Qt::CheckStateRole),
};

static constexpr ColumnTable kTable = ColumnTable(kColumns).identity();

const ColumnTable& FieldStaticAreaModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
