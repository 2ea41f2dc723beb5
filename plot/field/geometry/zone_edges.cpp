// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/zone_edges.h"

#include "plot/field/geometry/edge_order.h"
#include "plot/field/geometry/index_space.h"
#include "plot/field/geometry/surface_builder.h"
#include "plot/field/geometry/zone_cuts.h"

#include <vtkAppendPolyData.h>
#include <vtkCellArray.h>
#include <vtkCellArrayIterator.h>
#include <vtkDataSet.h>
#include <vtkMath.h>
#include <vtkPolygon.h>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

/// Index positions of an axis where the borders lie; an axis of one point is all border.
static std::vector<std::int64_t> borderPositions(std::int64_t dimension, BorderLocation_e location)
{
    if (dimension == 1)
        return {0};
    std::vector<std::int64_t> positions;
    if (location == BorderLocation_MinOnly || location == BorderLocation_Both)
        positions.push_back(0);
    if (location == BorderLocation_MaxOnly || location == BorderLocation_Both)
        positions.push_back(dimension - 1);
    return positions;
}

static ZoneSurface indexBorders(vtkDataSet& data, const host::ZoneInfo& zone,
                                const EdgeChoice& choice)
{
    SurfaceBuilder builder(data);
    const IndexSpace space(data, zone.dimensions);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const std::size_t first = (axis + 1) % 3;
        const std::size_t second = (axis + 2) % 3;
        if (zone.dimensions[first] == 1 && zone.dimensions[second] == 1)
            continue;
        for (const auto i : borderPositions(zone.dimensions[first], choice.borders[first])) {
            for (const auto j : borderPositions(zone.dimensions[second], choice.borders[second])) {
                Index from {};
                from[first] = i;
                from[second] = j;
                const int along = static_cast<int>(axis);
                for (; from[axis] + 1 < zone.dimensions[axis]; ++from[axis])
                    if (!space.hasBlanking() || space.isVisibleEdge(from, along))
                        builder.addLine({space.point(from), space.point(shifted(from, along, 1))},
                                        0);
            }
        }
    }
    return builder.finish();
}

/// An edge of a face, in the direction in which the face goes round.
struct FaceEdge
{
    std::array<vtkIdType, 2> ends; ///< ascending
    bool isForward; ///< the face goes from the first end to the second
    std::size_t face;
};

static std::array<double, 3> normalOf(vtkPoints& points, vtkIdType count, const vtkIdType* corners)
{
    std::array<double, 3> normal;
    vtkPolygon::ComputeNormal(&points, static_cast<int>(count), corners, normal.data());
    return normal;
}

/// All edges of the polygons, those of the same ends next to each other; normals by face.
static std::vector<FaceEdge> sortedEdges(vtkPolyData& shape,
                                         std::vector<std::array<double, 3>>& normals)
{
    std::vector<FaceEdge> edges;
    edges.reserve(static_cast<std::size_t>(shape.GetPolys()->GetNumberOfConnectivityIds()));
    normals.reserve(static_cast<std::size_t>(shape.GetNumberOfPolys()));
    const auto cell = vtk::TakeSmartPointer(shape.GetPolys()->NewIterator());
    for (cell->GoToFirstCell(); !cell->IsDoneWithTraversal(); cell->GoToNextCell()) {
        vtkIdType count = 0;
        const vtkIdType* corners = nullptr;
        cell->GetCurrentCell(count, corners);
        for (vtkIdType i = 0; i < count; ++i) {
            const vtkIdType from = corners[i];
            const vtkIdType to = corners[(i + 1) % count];
            edges.push_back({{std::min(from, to), std::max(from, to)}, from < to, normals.size()});
        }
        normals.push_back(normalOf(*shape.GetPoints(), count, corners));
    }
    sortByEnds(edges, shape.GetNumberOfPoints(), [](const FaceEdge& edge) { return edge.ends; });
    return edges;
}

/// Whether two faces meet at a crease. Faces that go along their edge the same way look to opposite
/// sides.
static bool isCrease(const FaceEdge& one, const FaceEdge& other,
                     const std::vector<std::array<double, 3>>& normals, double cosineOfCrease)
{
    const double cosine = vtkMath::Dot(normals[one.face].data(), normals[other.face].data());
    return (one.isForward == other.isForward ? -cosine : cosine) < cosineOfCrease;
}

static vtkSmartPointer<vtkPolyData> faceEdges(vtkPolyData& shape, bool borders, bool creases,
                                              double creaseAngle)
{
    const double cosine = std::cos(vtkMath::RadiansFromDegrees(creaseAngle));
    SurfaceBuilder builder(shape);
    std::vector<std::array<double, 3>> normals;
    const std::vector<FaceEdge> edges = sortedEdges(shape, normals);
    for (std::size_t first = 0, last = 0; first < edges.size(); first = last) {
        while (last < edges.size() && edges[last].ends == edges[first].ends)
            ++last;
        const std::size_t faces = last - first;
        if ((borders && faces == 1)
            || (creases && faces == 2 && isCrease(edges[first], edges[first + 1], normals, cosine)))
            builder.addLine(edges[first].ends, 0);
    }
    return builder.finish().shape;
}

static vtkSmartPointer<vtkPolyData> joined(vtkPolyData* one, vtkPolyData* other)
{
    vtkNew<vtkAppendPolyData> both;
    both->AddInputData(one);
    both->AddInputData(other);
    both->Update();
    return both->GetOutput();
}

vtkSmartPointer<vtkPolyData> zoneEdges(vtkDataSet& data, const host::ZoneInfo& zone,
                                       const ZoneSurface& surface, const EdgeChoice& choice,
                                       const CutFields& fields)
{
    const bool borders = choice.type != EdgeType_Creases;
    const bool creases = choice.type != EdgeType_Borders && !(zone.ordered && zone.isVolume());
    vtkSmartPointer<vtkPolyData> ofIndices;
    if (zone.ordered && borders)
        ofIndices = cutFaces(indexBorders(data, zone, choice), fields).shape;
    const bool bordersOfFaces = borders && !zone.ordered;
    if (!creases && !bordersOfFaces)
        return ofIndices ? ofIndices : vtkSmartPointer<vtkPolyData>::New();
    const auto ofFaces = faceEdges(*surface.shape, bordersOfFaces, creases, choice.creaseAngle);
    if (!ofIndices || ofFaces->GetNumberOfLines() == 0)
        return ofIndices ? ofIndices : ofFaces;
    return joined(ofIndices, ofFaces);
}

} // namespace corvala::plot
