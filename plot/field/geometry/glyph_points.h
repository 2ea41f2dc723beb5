// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/zone_blanking.h"
#include "plot/field/geometry/zone_surface.h"
#include "plot/field/geometry/zone_vectors.h"

#include <vtkPoints.h>

#include <tuple>

namespace corvala::plot {

/// Which points of a zone carry vectors and symbols.
struct PointChoice
{
    PointsToPlot_e points = PointsToPlot_SurfaceNodes;
    std::array<int, 3> skip {{1, 1, 1}}; ///< every so many along I, J, K; of other zones every I-th

    bool isOfSurface() const
    {
        return points == PointsToPlot_SurfaceNodes || points == PointsToPlot_SurfaceCellCenters;
    }
    bool isOfCells() const
    {
        return points == PointsToPlot_SurfaceCellCenters || points == PointsToPlot_AllCellCenters;
    }
    /// With what does not matter for this zone set to its default.
    PointChoice normalized(const host::ZoneInfo& zone) const;
};

inline bool operator==(const PointChoice& left, const PointChoice& right)
{
    return std::tie(left.points, left.skip) == std::tie(right.points, right.skip);
}

/// Points that carry something.
struct GlyphPoints
{
    vtkSmartPointer<vtkPoints> places; ///< of double precision
    std::vector<vtkIdType> ids; ///< by choice the points or cells of the surface or of the zone
};

/// The points of a zone. The first of each index is always there, blanked cells are left out, and
/// so are points that only they have. The skip counts along a surface: of a face in an I plane, J
/// and K count. `surface` is null for a choice that is not of the surface, `fields` cut away points
/// of one that is not.
GlyphPoints glyphPoints(vtkDataSet& zone, const host::ZoneInfo& info, const ZoneSurface* surface,
                        const PointChoice& choice, const CutFields& fields = {});

/// Values of a variable at these points. Null when the zone has no such values.
vtkSmartPointer<vtkDoubleArray> glyphValues(const host::DataSet& data, std::int64_t zone,
                                            std::int64_t variable, const ZoneSurface* surface,
                                            const PointChoice& choice, const GlyphPoints& points);

} // namespace corvala::plot
