// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/index_faces.h"

#include "plot/field/geometry/index_space.h"
#include "plot/field/geometry/surface_builder.h"

#include <vtkDataSet.h>

#include <algorithm>

namespace corvala::plot {

static std::size_t at(int axis)
{
    return static_cast<std::size_t>(axis);
}

enum class FaceRule {
    AnyNeighbour, ///< a cell on at least one side is there
    OneNeighbour ///< a cell is there on exactly one side
};

/// Adds the faces between the cells below and above index plane `plane` of `axis`.
static void addPlane(SurfaceBuilder& builder, const IndexSpace& space, int axis, std::int64_t plane,
                     FaceRule rule)
{
    const int first = (axis + 1) % 3;
    const int second = (axis + 2) % 3;
    Index low {};
    low[at(axis)] = plane;
    for (low[at(second)] = 0; low[at(second)] < space.dimension(second) - 1; ++low[at(second)]) {
        for (low[at(first)] = 0; low[at(first)] < space.dimension(first) - 1; ++low[at(first)]) {
            const vtkIdType upper = space.visibleCell(low);
            const vtkIdType lower = space.visibleCell(shifted(low, axis, -1));
            const int neighbours = (upper >= 0 ? 1 : 0) + (lower >= 0 ? 1 : 0);
            if (neighbours == 0 || (rule == FaceRule::OneNeighbour && neighbours != 1))
                continue;
            // The face looks away from the cell that it belongs to.
            const Index right = shifted(low, lower >= 0 ? first : second, 1);
            const Index top = shifted(low, lower >= 0 ? second : first, 1);
            const vtkIdType corners[] = {space.point(low), space.point(right),
                                         space.point(shifted(shifted(low, first, 1), second, 1)),
                                         space.point(top)};
            builder.addFace(corners, 4, lower >= 0 ? lower : upper);
        }
    }
}

/// Planes of one axis that the choice draws, from 0.
static std::vector<std::int64_t> chosenPlanes(const SurfaceChoice& choice, int axis,
                                              std::int64_t dimension, bool hasBlanking)
{
    static constexpr int kAxesOfPlanes[] = {1, 2, 4, 3,
                                            6, 5, 7}; // by SurfacesToPlot_e from I planes
    const IndexRange everything;
    const IndexRange ends {1, 0, static_cast<int>(std::max<std::int64_t>(dimension - 1, 1))};
    IndexRange range = everything;
    if (choice.surfaces == SurfacesToPlot_BoundaryCellFaces
        || (choice.surfaces == SurfacesToPlot_ExposedCellFaces && !hasBlanking)) {
        range = ends;
    } else if (choice.surfaces >= SurfacesToPlot_IPlanes
               && choice.surfaces <= SurfacesToPlot_IJKPlanes) {
        if (!(kAxesOfPlanes[choice.surfaces - SurfacesToPlot_IPlanes] & (1 << axis)))
            return {};
        range = choice.planes[static_cast<std::size_t>(axis)];
    }
    const std::int64_t last =
        range.maximum == 0 ? dimension : std::min<std::int64_t>(range.maximum, dimension);
    std::vector<std::int64_t> planes;
    for (std::int64_t plane = range.minimum; plane <= last; plane += range.skip)
        planes.push_back(plane - 1);
    return planes;
}

static void addVolumeFaces(SurfaceBuilder& builder, const IndexSpace& space,
                           const SurfaceChoice& choice)
{
    if (choice.surfaces == SurfacesToPlot_None)
        return;
    const FaceRule rule = choice.surfaces == SurfacesToPlot_ExposedCellFaces
        ? FaceRule::OneNeighbour
        : FaceRule::AnyNeighbour;
    for (int axis = 0; axis < 3; ++axis)
        for (const std::int64_t plane :
             chosenPlanes(choice, axis, space.dimension(axis), space.hasBlanking()))
            addPlane(builder, space, axis, plane, rule);
}

static void addLine(SurfaceBuilder& builder, const IndexSpace& space, int axis)
{
    Index from {};
    for (; from[at(axis)] < space.dimension(axis) - 1; ++from[at(axis)]) {
        const vtkIdType cell = space.visibleCell(from);
        if (cell >= 0)
            builder.addLine({space.point(from), space.point(shifted(from, axis, 1))}, cell);
    }
}

ZoneSurface extractOrderedSurface(vtkDataSet& data, const host::ZoneInfo& zone,
                                  const SurfaceChoice& choice)
{
    SurfaceBuilder builder(data);
    const IndexSpace space(data, zone.dimensions);
    std::vector<int> longAxes;
    for (int axis = 0; axis < 3; ++axis)
        if (space.dimension(axis) > 1)
            longAxes.push_back(axis);
    if (longAxes.size() == 3)
        addVolumeFaces(builder, space, choice);
    else if (longAxes.size() == 2)
        addPlane(builder, space, 3 - longAxes[0] - longAxes[1], 0, FaceRule::AnyNeighbour);
    else if (longAxes.size() == 1)
        addLine(builder, space, longAxes[0]);
    else if (data.GetNumberOfPoints() > 0 && space.visibleCell({}) >= 0)
        builder.addVertex(0, 0);
    return builder.finish();
}

} // namespace corvala::plot
