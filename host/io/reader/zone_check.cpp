// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/zone_check.h"

#include <QCoreApplication>

#include <vtkCell.h>
#include <vtkCellArray.h>
#include <vtkDataArray.h>
#include <vtkGenericCell.h>
#include <vtkIdTypeArray.h>
#include <vtkPointSet.h>
#include <vtkPolyData.h>
#include <vtkRectilinearGrid.h>
#include <vtkSmartPointer.h>
#include <vtkStructuredGrid.h>
#include <vtkUnsignedCharArray.h>
#include <vtkUnstructuredGrid.h>

#include <array>
#include <cstdint>

namespace corvala::host::io::reader {

static constexpr int kUnknownType = -1;

/// All points that the cells name exist.
static bool namesPoints(vtkCellArray* cells, vtkIdType points)
{
    if (!cells || cells->GetNumberOfCells() == 0)
        return true;
    if (!cells->IsValid())
        return false;
    vtkDataArray* names = cells->GetConnectivityArray();
    double range[2] = {0.0, -1.0};
    if (names->GetNumberOfTuples() > 0)
        names->GetRange(range, 0);
    return names->GetNumberOfTuples() == 0
        || (range[0] >= 0 && range[1] < static_cast<double>(points));
}

/// No cell has fewer points than the kind of all of them needs; VTK would not know what it is.
static bool haveSizes(vtkCellArray* cells, vtkIdType least)
{
    return !cells || cells->Visit([least](auto& known) {
        const vtkIdType count = known.GetNumberOfCells();
        for (vtkIdType cell = 0; cell < count; ++cell)
            if (known.GetCellSize(cell) < least)
                return false;
        return true;
    });
}

/// Fewest points of a cell of each type, or kUnknownType.
static std::array<int, 256> leastPointCounts()
{
    std::array<int, 256> result;
    for (int type = 0; type < 256; ++type) {
        const auto cell = vtkSmartPointer<vtkCell>::Take(vtkGenericCell::InstantiateCell(type));
        result[static_cast<std::size_t>(type)] =
            cell ? static_cast<int>(cell->GetNumberOfPoints()) : kUnknownType;
    }
    return result;
}

static bool hasSoundCells(vtkUnstructuredGrid& grid)
{
    static const std::array<int, 256> least = leastPointCounts();
    vtkCellArray* cells = grid.GetCells();
    vtkUnsignedCharArray* types = grid.GetCellTypesArray();
    const vtkIdType count = grid.GetNumberOfCells();
    if (count == 0)
        return true;
    if (!cells || !types || types->GetNumberOfTuples() != count
        || cells->GetNumberOfCells() != count)
        return false;
    const unsigned char* const type = types->GetPointer(0);
    return cells->Visit([&](auto& known) {
        for (vtkIdType cell = 0; cell < count; ++cell) {
            const int needed = least[type[cell]];
            if (needed == kUnknownType || known.GetCellSize(cell) < needed)
                return false;
        }
        return true;
    });
}

/// The faces of a polyhedron from a place in the list of faces: their number, and for each the
/// number of its points and the points.
static bool isSoundPolyhedron(vtkIdTypeArray& faces, vtkIdType place, vtkIdType points)
{
    const vtkIdType size = faces.GetNumberOfTuples();
    if (place < 0 || place >= size)
        return false;
    vtkIdType facesLeft = faces.GetValue(place++);
    while (facesLeft-- > 0) {
        if (place >= size)
            return false;
        const vtkIdType corners = faces.GetValue(place++);
        if (corners < 0 || corners > size - place)
            return false;
        for (const vtkIdType end = place + corners; place < end; ++place)
            if (faces.GetValue(place) < 0 || faces.GetValue(place) >= points)
                return false;
    }
    return true;
}

static bool hasSoundFaces(vtkUnstructuredGrid& grid)
{
    vtkIdTypeArray* faces = grid.GetFaces();
    vtkIdTypeArray* places = grid.GetFaceLocations();
    const vtkIdType count = grid.GetNumberOfCells();
    const unsigned char* const type = count > 0 ? grid.GetCellTypesArray()->GetPointer(0) : nullptr;
    for (vtkIdType cell = 0; cell < count; ++cell) {
        if (type[cell] != VTK_POLYHEDRON)
            continue;
        if (!faces || !places || cell >= places->GetNumberOfTuples()
            || !isSoundPolyhedron(*faces, places->GetValue(cell), grid.GetNumberOfPoints()))
            return false;
    }
    return true;
}

static bool hasSoundCells(vtkDataSet& zone)
{
    const vtkIdType points = zone.GetNumberOfPoints();
    if (auto* grid = vtkUnstructuredGrid::SafeDownCast(&zone))
        return namesPoints(grid->GetCells(), points) && hasSoundCells(*grid)
            && hasSoundFaces(*grid);
    if (auto* surface = vtkPolyData::SafeDownCast(&zone))
        return namesPoints(surface->GetVerts(), points) && namesPoints(surface->GetLines(), points)
            && namesPoints(surface->GetPolys(), points)
            && namesPoints(surface->GetStrips(), points);
    return true;
}

static bool hasSoundSizes(vtkDataSet& zone)
{
    auto* surface = vtkPolyData::SafeDownCast(&zone);
    return !surface
        || (haveSizes(surface->GetVerts(), 1) && haveSizes(surface->GetLines(), 2)
            && haveSizes(surface->GetPolys(), 3) && haveSizes(surface->GetStrips(), 3));
}

static bool hasAllCoordinates(vtkDataSet& zone)
{
    if (auto* grid = vtkStructuredGrid::SafeDownCast(&zone)) {
        int size[3];
        grid->GetDimensions(size);
        const vtkIdType product = vtkIdType(size[0]) * size[1] * size[2];
        return grid->GetPoints() && grid->GetPoints()->GetNumberOfPoints() == product;
    }
    if (auto* grid = vtkRectilinearGrid::SafeDownCast(&zone)) {
        int size[3];
        grid->GetDimensions(size);
        const auto fits = [](vtkDataArray* axis, int length) {
            return axis && axis->GetNumberOfTuples() == length;
        };
        return fits(grid->GetXCoordinates(), size[0]) && fits(grid->GetYCoordinates(), size[1])
            && fits(grid->GetZCoordinates(), size[2]);
    }
    return true;
}

ReadMessage faultOf(vtkDataSet& zone)
{
    if (!hasAllCoordinates(zone))
        return ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "coordinates are missing"));
    if (!hasSoundCells(zone))
        return ReadMessage(QT_TRANSLATE_NOOP(
            "ReadMessage", "a cell is of an unknown kind, or its points do not exist"));
    if (!hasSoundSizes(zone))
        return ReadMessage(QT_TRANSLATE_NOOP(
            "ReadMessage", "a vertex, line, polygon or strip has too few points"));
    return {};
}

} // namespace corvala::host::io::reader
