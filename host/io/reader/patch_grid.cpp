// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/patch_grid.h"

#include <vtkCell.h>
#include <vtkCellData.h>
#include <vtkGenericCell.h>
#include <vtkIdList.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkStructuredGrid.h>
#include <vtkUnstructuredGrid.h>

#include <algorithm>
#include <map>

namespace corvala::host::io::reader {

using Ids = std::vector<vtkIdType>;

/// A face and the cell that it bounds; -1 for none.
struct BoundedFace
{
    BoundaryPatch::Face face;
    vtkIdType cell;
};

static vtkSmartPointer<vtkIdList> listOf(const Ids& ids)
{
    auto list = vtkSmartPointer<vtkIdList>::New();
    list->SetNumberOfIds(static_cast<vtkIdType>(ids.size()));
    std::copy(ids.begin(), ids.end(), list->GetPointer(0));
    return list;
}

/// Of the arrays that have as many values as there are tuples.
static void copyValues(vtkDataSetAttributes& from, vtkIdType tuples, const Ids& ids,
                       vtkDataSetAttributes& to)
{
    const vtkSmartPointer<vtkIdList> list = listOf(ids);
    for (int i = 0; i < from.GetNumberOfArrays(); ++i) {
        vtkAbstractArray* const source = from.GetAbstractArray(i);
        if (source->GetNumberOfTuples() != tuples)
            continue;
        const auto part = vtkSmartPointer<vtkAbstractArray>::Take(source->NewInstance());
        part->SetName(source->GetName());
        part->SetNumberOfComponents(source->GetNumberOfComponents());
        part->CopyComponentNames(source);
        part->SetNumberOfTuples(list->GetNumberOfIds());
        source->GetTuples(list, part);
        to.AddArray(part);
    }
}

static void copyPoints(vtkPointSet& zone, const Ids& ids, vtkPointSet& part)
{
    const auto points = vtkSmartPointer<vtkPoints>::New();
    points->SetDataType(zone.GetPoints()->GetDataType());
    points->SetNumberOfPoints(static_cast<vtkIdType>(ids.size()));
    zone.GetPoints()->GetPoints(listOf(ids), points);
    part.SetPoints(points);
    copyValues(*zone.GetPointData(), zone.GetNumberOfPoints(), ids, *part.GetPointData());
}

static vtkSmartPointer<vtkPointSet> blockGrid(vtkPointSet& zone, const BoundaryPatch& patch)
{
    auto* const grid = vtkStructuredGrid::SafeDownCast(&zone);
    int sizes[3] = {0, 0, 0};
    if (grid)
        grid->GetDimensions(sizes);
    const auto& block = patch.block;
    for (int i = 0; i < 3; ++i)
        if (block[2 * i + 1] >= sizes[i])
            return nullptr;
    Ids points;
    Ids cells;
    for (std::int64_t k = block[4]; k <= block[5]; ++k)
        for (std::int64_t j = block[2]; j <= block[3]; ++j)
            for (std::int64_t i = block[0]; i <= block[1]; ++i) {
                points.push_back((k * sizes[1] + j) * sizes[0] + i);
                const std::int64_t at[] = {i, j, k};
                vtkIdType cell = 0;
                bool isCorner = true; // the first of a cell of the block
                for (int axis = 3; axis-- > 0;) {
                    const std::int64_t count = std::max(sizes[axis] - 1, 1);
                    cell = cell * count + std::min(at[axis], count - 1);
                    isCorner = isCorner
                        && (at[axis] < block[2 * axis + 1]
                            || block[2 * axis] == block[2 * axis + 1]);
                }
                if (isCorner)
                    cells.push_back(cell);
            }
    auto part = vtkSmartPointer<vtkStructuredGrid>::New();
    part->SetDimensions(static_cast<int>(block[1] - block[0] + 1),
                        static_cast<int>(block[3] - block[2] + 1),
                        static_cast<int>(block[5] - block[4] + 1));
    copyPoints(zone, points, *part);
    copyValues(*zone.GetCellData(), zone.GetNumberOfCells(), cells, *part->GetCellData());
    return part;
}

/// The cell that has all points of the face.
static std::vector<BoundedFace> bounded(vtkPointSet& zone,
                                        const std::vector<BoundaryPatch::Face>& faces)
{
    std::vector<BoundedFace> result;
    const bool hasValues = zone.GetCellData()->GetNumberOfArrays() > 0;
    vtkNew<vtkIdList> neighbours;
    if (auto* const grid = vtkUnstructuredGrid::SafeDownCast(&zone); grid && hasValues)
        grid->BuildLinks();
    for (const BoundaryPatch::Face& face : faces) {
        if (hasValues)
            zone.GetCellNeighbors(-1, listOf(face.points), neighbours);
        result.push_back({face, neighbours->GetNumberOfIds() > 0 ? neighbours->GetId(0) : -1});
    }
    return result;
}

/// The sides of cells all of whose points are chosen, when no other cell has the same side.
static std::vector<BoundedFace> outerFaces(vtkPointSet& zone, const std::vector<bool>& isChosen)
{
    std::map<Ids, std::pair<BoundedFace, int>> sides; // by their points in order
    vtkNew<vtkIdList> corners;
    vtkNew<vtkGenericCell> cell;
    const auto areChosen = [&](vtkIdList& ids) {
        return std::all_of(ids.begin(), ids.end(),
                           [&](vtkIdType id) { return isChosen[static_cast<std::size_t>(id)]; });
    };
    for (vtkIdType i = 0; i < zone.GetNumberOfCells(); ++i) {
        zone.GetCellPoints(i, corners);
        if (std::none_of(corners->begin(), corners->end(),
                         [&](vtkIdType id) { return isChosen[static_cast<std::size_t>(id)]; }))
            continue;
        zone.GetCell(i, cell);
        const bool isVolume = cell->GetCellDimension() == 3;
        const int count = isVolume          ? cell->GetNumberOfFaces()
            : cell->GetCellDimension() == 2 ? cell->GetNumberOfEdges()
                                            : 0;
        for (int n = 0; n < count; ++n) {
            vtkCell* const side = isVolume ? cell->GetFace(n) : cell->GetEdge(n);
            if (!areChosen(*side->PointIds))
                continue;
            const Ids ids(side->PointIds->begin(), side->PointIds->end());
            Ids key = ids;
            std::sort(key.begin(), key.end());
            auto& [bounded, uses] = sides[key];
            bounded = {{side->GetCellType(), ids}, i};
            ++uses;
        }
    }
    std::vector<BoundedFace> result;
    for (auto& [key, side] : sides)
        if (side.second == 1)
            result.push_back(std::move(side.first));
    return result;
}

static std::vector<BoundedFace> facesAt(vtkPointSet& zone, const Ids& points)
{
    std::vector<bool> isChosen(static_cast<std::size_t>(zone.GetNumberOfPoints()));
    for (const vtkIdType point : points)
        isChosen[static_cast<std::size_t>(point)] = true;
    std::vector<BoundedFace> faces = outerFaces(zone, isChosen);
    if (faces.empty())
        for (const vtkIdType point : points)
            faces.push_back({{VTK_VERTEX, {point}}, -1});
    return faces;
}

static vtkSmartPointer<vtkPointSet> gridOf(vtkPointSet& zone, const std::vector<BoundedFace>& faces)
{
    Ids points;
    Ids cells;
    for (const BoundedFace& bounded : faces) {
        points.insert(points.end(), bounded.face.points.begin(), bounded.face.points.end());
        cells.push_back(bounded.cell);
    }
    std::sort(points.begin(), points.end());
    points.erase(std::unique(points.begin(), points.end()), points.end());
    auto part = vtkSmartPointer<vtkUnstructuredGrid>::New();
    part->Allocate(static_cast<vtkIdType>(faces.size()));
    copyPoints(zone, points, *part);
    for (const BoundedFace& bounded : faces) {
        Ids corners = bounded.face.points;
        for (vtkIdType& corner : corners)
            corner = std::lower_bound(points.begin(), points.end(), corner) - points.begin();
        part->InsertNextCell(bounded.face.kind, static_cast<vtkIdType>(corners.size()),
                             corners.data());
    }
    if (std::find(cells.begin(), cells.end(), -1) == cells.end())
        copyValues(*zone.GetCellData(), zone.GetNumberOfCells(), cells, *part->GetCellData());
    return part;
}

vtkSmartPointer<vtkPointSet> patchGrid(vtkPointSet& zone, const BoundaryPatch& patch)
{
    if (patch.isBlock)
        return blockGrid(zone, patch);
    const auto isThere = [&](const Ids& points) {
        return std::all_of(points.begin(), points.end(),
                           [&](vtkIdType point) { return point < zone.GetNumberOfPoints(); });
    };
    if (!isThere(patch.points)
        || !std::all_of(patch.faces.begin(), patch.faces.end(),
                        [&](const BoundaryPatch::Face& face) { return isThere(face.points); }))
        return nullptr;
    return gridOf(zone,
                  patch.faces.empty() ? facesAt(zone, patch.points) : bounded(zone, patch.faces));
}

} // namespace corvala::host::io::reader
