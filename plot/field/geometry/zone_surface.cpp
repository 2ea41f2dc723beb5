// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/zone_surface.h"

#include "plot/field/geometry/index_faces.h"
#include "plot/field/geometry/surface_builder.h"

#include <vtkCell.h>
#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkGeometryFilter.h>
#include <vtkIdTypeArray.h>
#include <vtkPointData.h>
#include <vtkPointSet.h>
#include <vtkPoints.h>
#include <vtkSMPTools.h>
#include <vtkTriangleFilter.h>

#include <algorithm>
#include <numeric>
#include <set>
#include <type_traits>

namespace corvala::plot {

static constexpr const char* kZonePoint = "zone point";
static constexpr const char* kZoneCell = "zone cell";

SurfaceChoice SurfaceChoice::normalized(const host::ZoneInfo& zone) const
{
    SurfaceChoice result;
    if (!zone.isVolume())
        return result;
    result.surfaces = surfaces;
    if (zone.ordered && surfaces >= SurfacesToPlot_IPlanes && surfaces <= SurfacesToPlot_IJKPlanes)
        result.planes = planes;
    return result;
}

bool operator==(const SurfaceChoice& left, const SurfaceChoice& right)
{
    const auto equalRanges = [](const IndexRange& a, const IndexRange& b) {
        return a.minimum == b.minimum && a.maximum == b.maximum && a.skip == b.skip;
    };
    return left.surfaces == right.surfaces
        && std::equal(left.planes.begin(), left.planes.end(), right.planes.begin(), equalRanges);
}

vtkSmartPointer<vtkPolyData> separateShape(vtkPolyData& shape)
{
    auto result = vtkSmartPointer<vtkPolyData>::New();
    const auto separate = [](auto* shared) {
        auto own = vtkSmartPointer<std::remove_pointer_t<decltype(shared)>>::New();
        own->ShallowCopy(shared);
        return own;
    };
    if (shape.GetPoints())
        result->SetPoints(separate(shape.GetPoints()));
    result->SetVerts(separate(shape.GetVerts()));
    result->SetLines(separate(shape.GetLines()));
    result->SetPolys(separate(shape.GetPolys()));
    return result;
}

void runFiltersInOrder()
{
    static const bool isSequential = vtkSMPTools::SetBackend("Sequential");
    static_cast<void>(isSequential);
}

std::size_t ZoneSurface::memoryUse() const
{
    const std::size_t shapeBytes = shape ? shape->GetActualMemorySize() * 1024 : 0;
    return shapeBytes + (pointIds.size() + cellIds.size()) * sizeof(vtkIdType);
}

static vtkSmartPointer<vtkIdTypeArray> numbering(const char* name, vtkIdType count)
{
    auto ids = vtkSmartPointer<vtkIdTypeArray>::New();
    ids->SetName(name);
    ids->SetNumberOfValues(count);
    std::iota(ids->Begin(), ids->End(), vtkIdType {0});
    return ids;
}

/// The points and cells of a zone without its values, numbered so that filters pass the numbers on.
static vtkSmartPointer<vtkDataSet> numberedStructure(vtkDataSet& data)
{
    auto result = vtkSmartPointer<vtkDataSet>::Take(data.NewInstance());
    result->CopyStructure(&data);
    result->GetPointData()->AddArray(numbering(kZonePoint, data.GetNumberOfPoints()));
    result->GetCellData()->AddArray(numbering(kZoneCell, data.GetNumberOfCells()));
    if (vtkUnsignedCharArray* ghosts = data.GetCellGhostArray())
        result->GetCellData()->AddArray(ghosts);
    if (vtkUnsignedCharArray* ghosts = data.GetPointGhostArray())
        result->GetPointData()->AddArray(ghosts);
    return result;
}

static std::vector<vtkIdType> takeNumbers(vtkDataSetAttributes& attributes, const char* name)
{
    auto* ids = vtkIdTypeArray::SafeDownCast(attributes.GetArray(name));
    return ids ? std::vector<vtkIdType>(ids->Begin(), ids->End()) : std::vector<vtkIdType>();
}

static ZoneSurface withoutValues(vtkPolyData& numbered)
{
    ZoneSurface surface;
    surface.pointIds = takeNumbers(*numbered.GetPointData(), kZonePoint);
    surface.cellIds = takeNumbers(*numbered.GetCellData(), kZoneCell);
    surface.shape = vtkSmartPointer<vtkPolyData>::New();
    surface.shape->CopyStructure(&numbered);
    return surface;
}

/// Strips become triangles, so that every face is a polygon.
static vtkSmartPointer<vtkPolyData> withoutStrips(vtkPolyData* data)
{
    if (data->GetNumberOfStrips() == 0)
        return data;
    vtkNew<vtkTriangleFilter> triangles;
    triangles->SetInputData(data);
    triangles->Update();
    return triangles->GetOutput();
}

static ZoneSurface outerSurface(vtkDataSet& data)
{
    vtkNew<vtkGeometryFilter> geometry;
    geometry->SetInputData(numberedStructure(data));
    // Mid-side points of quadratic faces are dropped: points made up by subdivision have no number.
    geometry->SetNonlinearSubdivisionLevel(0);
    geometry->Update();
    return withoutValues(*withoutStrips(geometry->GetOutput()));
}

/// Every face of every volume cell, once, and the cells of two dimensions.
static ZoneSurface allFaces(vtkDataSet& shared)
{
    // Cells are handed out in a data set's own storage, which threads must not share.
    const auto own = vtkSmartPointer<vtkDataSet>::Take(shared.NewInstance());
    own->CopyStructure(&shared);
    vtkDataSet& data = *own;
    SurfaceBuilder builder(data);
    std::set<std::vector<vtkIdType>> known;
    const auto addFace = [&](vtkCell& face, vtkIdType zoneCell) {
        vtkIdList* corners = face.GetPointIds();
        std::vector<vtkIdType> key(corners->begin(), corners->end());
        std::sort(key.begin(), key.end());
        if (known.insert(std::move(key)).second)
            builder.addFace(corners->GetPointer(0), corners->GetNumberOfIds(), zoneCell);
    };
    for (vtkIdType id = 0; id < data.GetNumberOfCells(); ++id) {
        vtkCell* cell = data.GetCell(id);
        if (cell->GetCellDimension() == 2)
            addFace(*cell, id);
        for (int face = 0; cell->GetCellDimension() == 3 && face < cell->GetNumberOfFaces(); ++face)
            addFace(*cell->GetFace(face), id);
    }
    return builder.finish();
}

ZoneSurface extractSurface(vtkDataSet& data, const host::ZoneInfo& zone,
                           const SurfaceChoice& choice)
{
    if (zone.ordered)
        return extractOrderedSurface(data, zone, choice);
    const bool isVolume = zone.isVolume();
    if (isVolume
        && (choice.surfaces == SurfacesToPlot_None
            || (choice.surfaces >= SurfacesToPlot_IPlanes
                && choice.surfaces <= SurfacesToPlot_IJKPlanes))) {
        ZoneSurface nothing;
        nothing.shape = vtkSmartPointer<vtkPolyData>::New();
        return nothing;
    }
    if (isVolume && choice.surfaces == SurfacesToPlot_All)
        return allFaces(data);
    return outerSurface(data);
}

} // namespace corvala::plot
