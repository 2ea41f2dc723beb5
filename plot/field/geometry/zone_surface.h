// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/zone_blanking.h"

#include <vtkPolyData.h>

#include <array>

namespace corvala::plot {

/// Planes of one index: numbers from 1, `maximum` 0 stands for the last.
struct IndexRange
{
    int minimum = 1;
    int maximum = 0;
    int skip = 1;

    auto tied() const { return std::tie(minimum, maximum, skip); }
};

inline bool operator==(const IndexRange& left, const IndexRange& right)
{
    return left.tied() == right.tied();
}
inline bool operator<(const IndexRange& left, const IndexRange& right)
{
    return left.tied() < right.tied();
}

/// Surfaces on which a variable has one of these values: of a coordinate, planes.
struct IsoChoice
{
    std::int64_t variable = 0; ///< 0: none
    std::vector<double> values;

    auto tied() const { return std::tie(variable, values); }
};

inline bool operator==(const IsoChoice& left, const IsoChoice& right)
{
    return left.tied() == right.tied();
}
inline bool operator<(const IsoChoice& left, const IsoChoice& right)
{
    return left.tied() < right.tied();
}

/// Which faces of a volume zone are drawn, and which cells of any zone count.
struct SurfaceChoice
{
    SurfacesToPlot_e surfaces = SurfacesToPlot_BoundaryCellFaces;
    std::array<IndexRange, 3> planes; ///< I, J, K
    IsoChoice iso; ///< through a volume zone, in place of its surfaces
    BlankingChoice blanking;

    auto tied() const { return std::tie(surfaces, planes, iso, blanking); }

    /// With everything that does not matter for this zone set to its default, so that equal
    /// surfaces have equal choices.
    SurfaceChoice normalized(const host::ZoneInfo& zone) const;
};

inline bool operator==(const SurfaceChoice& left, const SurfaceChoice& right)
{
    return left.tied() == right.tied();
}
inline bool operator!=(const SurfaceChoice& left, const SurfaceChoice& right)
{
    return !(left == right);
}
inline bool operator<(const SurfaceChoice& left, const SurfaceChoice& right)
{
    return left.tied() < right.tied();
}

/// What can be drawn of a zone: its points, lines and faces, without values.
struct ZoneSurface
{
    vtkSmartPointer<vtkPolyData> shape; ///< points, vertices, lines and polygons
    std::vector<vtkIdType> pointIds; ///< the zone's point of each point; empty if it is the same
    std::vector<vtkIdType> cellIds; ///< the zone's cell of each cell; empty if it is the same
    bool isCut = false; ///< its points lie between those of the zone, and have no numbers
    SurfaceChoice choice; ///< of a surface that is cut: values are brought there by cutting again

    std::size_t memoryUse() const; ///< bytes
};

/// A shape with points and cells of its own about the same numbers. VTK notes things in shapes that
/// are only looked at, and when a reference to one goes: threads must not share them.
vtkSmartPointer<vtkPolyData> separateShape(vtkPolyData& shape);

/// The points and cells of a zone without its values and hidden cells, with the numbers that they
/// have in the zone; filters pass these on.
vtkSmartPointer<vtkDataSet> visiblePart(vtkDataSet& data);

/// The outside of what `visiblePart` gives, with the arrays that it has.
vtkSmartPointer<vtkPolyData> outerFaces(vtkDataSet& numbered);

/// The numbers in the zone that filters have passed on.
std::vector<vtkIdType> pointNumbers(vtkDataSet& numbered);
ZoneSurface fromNumbered(vtkPolyData& numbered);
/// Lets filters pass on the zone's numbers of the cells.
void addCellNumbers(vtkPolyData& shape, const std::vector<vtkIdType>& zoneCells);

/// The surface of a zone's points and cells. A volume zone gives the faces of the choice, nothing
/// for "None" and, being without index planes, nothing for planes of a zone that is not ordered;
/// any other zone gives all its faces, lines and points. Hidden cells are left out; faces that this
/// opens belong to the exposed ones only. The blanking of the choice is not looked at.
ZoneSurface extractSurface(vtkDataSet& data, const host::ZoneInfo& zone,
                           const SurfaceChoice& choice);

} // namespace corvala::plot
