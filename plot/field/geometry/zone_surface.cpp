// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/zone_surface.h"

#include "plot/field/geometry/index_faces.h"
#include "plot/field/geometry/plain_outside.h"
#include "plot/field/geometry/surface_builder.h"

#include <vtkCell.h>
#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkDataSetAttributes.h>
#include <vtkDataSetSurfaceFilter.h>
#include <vtkIdList.h>
#include <vtkIdTypeArray.h>
#include <vtkPointData.h>
#include <vtkPointSet.h>
#include <vtkPoints.h>
#include <vtkThreshold.h>
#include <vtkTriangleFilter.h>
#include <vtkUnsignedCharArray.h>
#include <vtkUnstructuredGrid.h>

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
    result.blanking = blanking;
    result.iso = iso;
    if (!zone.isVolume() || iso.variable != 0)
        return result;
    result.surfaces = surfaces;
    if (zone.ordered && surfaces >= SurfacesToPlot_IPlanes && surfaces <= SurfacesToPlot_IJKPlanes)
        result.planes = planes;
    return result;
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
static vtkSmartPointer<vtkDataSet> numberedStructure(vtkDataSet& data,
                                                     vtkUnsignedCharArray* cellGhosts)
{
    auto result = vtkSmartPointer<vtkDataSet>::Take(data.NewInstance());
    result->CopyStructure(&data);
    result->GetPointData()->AddArray(numbering(kZonePoint, data.GetNumberOfPoints()));
    result->GetCellData()->AddArray(numbering(kZoneCell, data.GetNumberOfCells()));
    if (cellGhosts)
        result->GetCellData()->AddArray(cellGhosts);
    if (vtkUnsignedCharArray* ghosts = data.GetPointGhostArray())
        result->GetPointData()->AddArray(ghosts);
    return result;
}

/// Whether a cell is hidden; `ghosts` may be null.
static bool isHidden(const vtkUnsignedCharArray* ghosts, vtkIdType cell)
{
    return ghosts && (ghosts->GetValue(cell) & vtkDataSetAttributes::HIDDENCELL) != 0;
}

vtkSmartPointer<vtkDataSet> visiblePart(vtkDataSet& data)
{
    vtkUnsignedCharArray* const ghosts = data.GetCellGhostArray();
    auto numbered = numberedStructure(data, ghosts);
    vtkNew<vtkUnsignedCharArray> shown;
    shown->SetName("shown");
    shown->SetNumberOfValues(data.GetNumberOfCells());
    bool isWhole = true;
    for (vtkIdType cell = 0; cell < data.GetNumberOfCells(); ++cell) {
        shown->SetValue(cell, isHidden(ghosts, cell) ? 0 : 1);
        isWhole = isWhole && shown->GetValue(cell) == 1;
    }
    if (isWhole)
        return numbered;
    numbered->GetCellData()->AddArray(shown);
    vtkNew<vtkThreshold> threshold;
    threshold->SetInputData(numbered);
    threshold->SetInputArrayToProcess(0, 0, 0, vtkDataObject::FIELD_ASSOCIATION_CELLS, "shown");
    threshold->SetThresholdFunction(vtkThreshold::THRESHOLD_UPPER);
    threshold->SetUpperThreshold(1.0);
    threshold->Update();
    return threshold->GetOutput();
}

static std::vector<vtkIdType> takeNumbers(vtkDataSetAttributes& attributes, const char* name)
{
    auto* ids = vtkIdTypeArray::SafeDownCast(attributes.GetArray(name));
    return ids ? std::vector<vtkIdType>(ids->Begin(), ids->End()) : std::vector<vtkIdType>();
}

std::vector<vtkIdType> pointNumbers(vtkDataSet& numbered)
{
    return takeNumbers(*numbered.GetPointData(), kZonePoint);
}

void addCellNumbers(vtkPolyData& shape, const std::vector<vtkIdType>& zoneCells)
{
    const auto numbers = numbering(kZoneCell, shape.GetNumberOfCells());
    std::copy(zoneCells.begin(), zoneCells.end(), numbers->Begin());
    shape.GetCellData()->AddArray(numbers);
}

ZoneSurface fromNumbered(vtkPolyData& numbered)
{
    ZoneSurface surface;
    surface.pointIds = pointNumbers(numbered);
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

vtkSmartPointer<vtkPolyData> outerFaces(vtkDataSet& numbered)
{
    vtkNew<vtkDataSetSurfaceFilter> faces;
    faces->SetInputData(&numbered);
    // Its own way, a table of faces, takes a quarter of what vtkGeometryFilter does.
    faces->DelegationOff();
    // Mid-side points of quadratic faces are dropped: points made up by subdivision have no number.
    faces->SetNonlinearSubdivisionLevel(0);
    faces->Update();
    return withoutStrips(faces->GetOutput());
}

/// `part`, which has the numbers of `whole`, with those that this has in the zone.
static ZoneSurface inNumbersOf(ZoneSurface part, const ZoneSurface& whole)
{
    const auto translate = [](std::vector<vtkIdType>& ids, const std::vector<vtkIdType>& known) {
        for (vtkIdType& id : ids)
            id = known[static_cast<std::size_t>(id)];
    };
    translate(part.pointIds, whole.pointIds);
    translate(part.cellIds, whole.cellIds);
    return part;
}

/// What marks ghost cells without what hides cells.
static vtkSmartPointer<vtkUnsignedCharArray> allShown(vtkUnsignedCharArray& ghosts)
{
    auto result = vtkSmartPointer<vtkUnsignedCharArray>::New();
    result->SetName(ghosts.GetName());
    result->SetNumberOfValues(ghosts.GetNumberOfValues());
    std::transform(ghosts.Begin(), ghosts.End(), result->Begin(), [](unsigned char marks) {
        return static_cast<unsigned char>(marks & ~vtkDataSetAttributes::HIDDENCELL);
    });
    return result;
}

/// The outside of all cells, whether they are hidden or not.
static ZoneSurface outside(vtkDataSet& data, vtkUnsignedCharArray* ghosts)
{
    if (!ghosts && !data.GetPointGhostArray())
        if (std::optional<ZoneSurface> plain = plainOutside(data))
            return std::move(*plain);
    const auto shown = ghosts ? allShown(*ghosts) : nullptr;
    return fromNumbered(*outerFaces(*numberedStructure(data, shown)));
}

/// The outside of all cells, and of it what belongs to cells that are visible.
static ZoneSurface boundary(vtkDataSet& data)
{
    vtkUnsignedCharArray* const ghosts = data.GetCellGhostArray();
    ZoneSurface whole = outside(data, ghosts);
    const auto isKept = [&](vtkIdType zoneCell) { return !isHidden(ghosts, zoneCell); };
    if (std::all_of(whole.cellIds.begin(), whole.cellIds.end(), isKept))
        return whole;
    SurfaceBuilder builder(*whole.shape);
    vtkNew<vtkIdList> corners;
    for (vtkIdType cell = 0; cell < whole.shape->GetNumberOfCells(); ++cell) {
        whole.shape->GetCellPoints(cell, corners);
        if (isKept(whole.cellIds[static_cast<std::size_t>(cell)]))
            builder.addCell(whole.shape->GetCellType(cell), *corners, cell);
    }
    return inNumbersOf(builder.finish(), whole);
}

/// Every face of every volume cell, once, and the cells of two dimensions.
static ZoneSurface allFaces(vtkDataSet& data)
{
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
    ZoneSurface numbers;
    numbers.pointIds = pointNumbers(data);
    numbers.cellIds = takeNumbers(*data.GetCellData(), kZoneCell);
    return inNumbersOf(builder.finish(), numbers);
}

ZoneSurface extractSurface(vtkDataSet& data, const host::ZoneInfo& zone,
                           const SurfaceChoice& choice)
{
    if (zone.ordered)
        return extractOrderedSurface(data, zone, choice);
    if (!zone.isVolume() || choice.surfaces == SurfacesToPlot_BoundaryCellFaces)
        return boundary(data);
    if (choice.surfaces == SurfacesToPlot_ExposedCellFaces)
        return fromNumbered(*outerFaces(*visiblePart(data)));
    if (choice.surfaces == SurfacesToPlot_All)
        return allFaces(*visiblePart(data));
    ZoneSurface nothing;
    nothing.shape = vtkSmartPointer<vtkPolyData>::New();
    return nothing;
}

} // namespace corvala::plot
