// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/field_surfaces_model.h"

#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/index_prompts.h"

#include <sdk/base/cvl.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using namespace kinds;

static constexpr const auto& kSurfaces = style::fieldMap.surfaces;

static QVariant rangeOfVolume(const Cell& cell)
{
    return hasVolumeZones(cell) ? tripleText(cell) : QVariant();
}

static bool hasIndexPlanes(const Cell& cell)
{
    return CvlUtilFieldMapHasIJKOrderedZonesForFrame(cell.frame, cell.map);
}

/// The planes of one index; `without` are the choices of surfaces for which they do not apply.
/// Deliberate: no surfaces at all are not among them, all surfaces are.
static constexpr ColumnDescriptor planes(const char* header, const style::IndexRange& range,
                                         const StyleTarget& edited,
                                         std::initializer_list<SurfacesToPlot_e> without)
{
    return triple(header, keysOf(range), prompts::kRange)
        .shows(rangeOfVolume)
        .editsText(nullptr)
        .writes(writeNumber)
        .editWrites(edited)
        .relevantUnless(kSurfaces.surfacesToPlot, without)
        .relevantWhen(hasIndexPlanes);
}

// Deliberate: an edit of a range goes to no value, and that of the last one to another group.
static constexpr ColumnDescriptor kColumns[] = {
    choice(QT_TRANSLATE_NOOP("Column", "Surfaces\nto Plot"), kSurfaces.surfacesToPlot)
        .rawValue(enumValue<SurfacesToPlot_e>)
        .existsWhere(hasVolumeZones),
    planes(QT_TRANSLATE_NOOP("Column", "I-Plane\nRange"), kSurfaces.ranges.iRange,
           StyleTarget::noValue("FieldMap", "Surfaces", "IRange"),
           {SurfacesToPlot_JPlanes, SurfacesToPlot_KPlanes, SurfacesToPlot_JKPlanes,
            SurfacesToPlot_All}),
    planes(QT_TRANSLATE_NOOP("Column", "J-Plane\nRange"), kSurfaces.ranges.jRange,
           StyleTarget::noValue("FieldMap", "Surfaces", "JRange"),
           {SurfacesToPlot_IPlanes, SurfacesToPlot_KPlanes, SurfacesToPlot_IKPlanes,
            SurfacesToPlot_All}),
    planes(QT_TRANSLATE_NOOP("Column", "K-Plane\nRange"), kSurfaces.ranges.kRange,
           StyleTarget::noValue("FieldMap", "Scatter", "KRange"),
           {SurfacesToPlot_IPlanes, SurfacesToPlot_JPlanes, SurfacesToPlot_IJPlanes,
            SurfacesToPlot_All}),
};

static constexpr ColumnTable kTable = ColumnTable(kColumns).primary(1);

const ColumnTable& FieldSurfacesModel::columnTable() const
{
    return kTable;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
