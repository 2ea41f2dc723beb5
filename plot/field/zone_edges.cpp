// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/zone_edges.h"

#include "plot/field/surface_builder.h"

#include <vtkAppendPolyData.h>
#include <vtkDataSet.h>
#include <vtkFeatureEdges.h>
#include <vtkPolyDataNormals.h>

namespace corvala::plot {

static constexpr double kCreaseAngle = 30.0;

bool operator==(const EdgeChoice& left, const EdgeChoice& right)
{
    return left.type == right.type && left.borders == right.borders;
}

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

static vtkSmartPointer<vtkPolyData> indexBorders(vtkDataSet& data, const host::ZoneInfo& zone,
                                                 const EdgeChoice& choice)
{
    SurfaceBuilder builder(data);
    const std::int64_t strides[] = {1, zone.dimensions[0], zone.dimensions[0] * zone.dimensions[1]};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const std::size_t first = (axis + 1) % 3;
        const std::size_t second = (axis + 2) % 3;
        if (zone.dimensions[first] == 1 && zone.dimensions[second] == 1)
            continue;
        for (const auto i : borderPositions(zone.dimensions[first], choice.borders[first])) {
            for (const auto j : borderPositions(zone.dimensions[second], choice.borders[second])) {
                vtkIdType point = i * strides[first] + j * strides[second];
                for (std::int64_t k = 1; k < zone.dimensions[axis]; ++k, point += strides[axis])
                    builder.addLine({point, point + strides[axis]}, 0);
            }
        }
    }
    return builder.finish().shape;
}

/// The shape with its polygons turned to look to one side, so that a change of direction is a
/// crease.
static vtkSmartPointer<vtkPolyData> consistentlyOriented(vtkPolyData* shape)
{
    vtkNew<vtkPolyDataNormals> orientation;
    orientation->SetInputData(shape);
    orientation->ConsistencyOn();
    orientation->SplittingOff();
    orientation->ComputePointNormalsOff();
    orientation->Update();
    return orientation->GetOutput();
}

static vtkSmartPointer<vtkPolyData> faceEdges(vtkPolyData* shape, bool borders, bool creases)
{
    vtkSmartPointer<vtkPolyData> faces = shape;
    if (creases)
        faces = consistentlyOriented(shape);
    vtkNew<vtkFeatureEdges> edges;
    edges->SetInputData(faces);
    edges->SetBoundaryEdges(borders);
    edges->SetFeatureEdges(creases);
    edges->SetFeatureAngle(kCreaseAngle);
    edges->NonManifoldEdgesOff();
    edges->ManifoldEdgesOff();
    edges->ColoringOff();
    edges->Update();
    return edges->GetOutput();
}

vtkSmartPointer<vtkPolyData> zoneEdges(vtkDataSet& data, const host::ZoneInfo& zone,
                                       const ZoneSurface& surface, const EdgeChoice& choice)
{
    const bool borders = choice.type != EdgeType_Creases;
    const bool creases = choice.type != EdgeType_Borders && !(zone.ordered && zone.isVolume());
    vtkNew<vtkAppendPolyData> all;
    if (zone.ordered && borders)
        all->AddInputData(indexBorders(data, zone, choice));
    const bool hasFaces = surface.shape->GetNumberOfPolys() > 0;
    if (hasFaces && (creases || (borders && !zone.ordered)))
        all->AddInputData(faceEdges(surface.shape, borders && !zone.ordered, creases));
    if (all->GetNumberOfInputConnections(0) == 0)
        return vtkSmartPointer<vtkPolyData>::New();
    all->Update();
    auto result = vtkSmartPointer<vtkPolyData>::New();
    result->CopyStructure(all->GetOutput());
    return result;
}

} // namespace corvala::plot
