// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/shape_pieces.h"

#include <vtkCellArray.h>
#include <vtkCellArrayIterator.h>
#include <vtkIdList.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPoints.h>

#include <array>
#include <numeric>

namespace corvala::plot {

enum Kind { Verts, Lines, Polys, KindCount };
/// Of a corner: lines and points are made wider than they are.
static constexpr vtkIdType kCosts[KindCount] = {4, 2, 1};

/// Fills one piece after the other with cells.
class PieceCutter
{
public:
    PieceCutter(vtkPolyData& whole, vtkIdType largest)
        : m_whole(whole)
        , m_largest(largest)
        , m_local(static_cast<std::size_t>(whole.GetNumberOfPoints()), -1)
    {
        begin();
    }

    ShapePieces cut()
    {
        add(m_whole.GetVerts(), Verts);
        add(m_whole.GetLines(), Lines);
        add(m_whole.GetPolys(), Polys);
        finish();
        return std::move(m_pieces);
    }

private:
    void begin();
    void add(vtkCellArray* cells, Kind kind);
    void finish();
    vtkIdType local(vtkIdType point);

    vtkPolyData& m_whole;
    vtkIdType m_largest;
    std::vector<vtkIdType> m_local; ///< by point of the whole, that of the piece; -1 for none
    vtkNew<vtkIdList> m_points; ///< of the whole, by point of the piece
    std::array<vtkSmartPointer<vtkCellArray>, KindCount> m_cells;
    vtkIdType m_corners = 0;
    ShapePieces m_pieces;
};

void PieceCutter::begin()
{
    for (auto& cells : m_cells)
        cells = vtkSmartPointer<vtkCellArray>::New();
    m_points->Reset();
    m_corners = 0;
}

vtkIdType PieceCutter::local(vtkIdType point)
{
    vtkIdType& number = m_local[static_cast<std::size_t>(point)];
    if (number < 0)
        number = m_points->InsertNextId(point);
    return number;
}

void PieceCutter::add(vtkCellArray* cells, Kind kind)
{
    const auto cell = vtk::TakeSmartPointer(cells->NewIterator());
    for (cell->GoToFirstCell(); !cell->IsDoneWithTraversal(); cell->GoToNextCell()) {
        vtkIdType count = 0;
        const vtkIdType* corners = nullptr;
        cell->GetCurrentCell(count, corners);
        const vtkIdType cost = kCosts[kind] * count;
        if (m_corners > 0 && m_corners + cost > m_largest)
            finish();
        m_cells[kind]->InsertNextCell(static_cast<int>(count));
        for (vtkIdType i = 0; i < count; ++i)
            m_cells[kind]->InsertCellPoint(local(corners[i]));
        m_corners += cost;
    }
}

void PieceCutter::finish()
{
    if (m_corners == 0)
        return;
    auto piece = vtkSmartPointer<vtkPolyData>::New();
    vtkNew<vtkPoints> points;
    points->SetDataType(m_whole.GetPoints()->GetDataType());
    m_whole.GetPoints()->GetPoints(m_points, points);
    piece->SetPoints(points);
    piece->SetVerts(m_cells[Verts]);
    piece->SetLines(m_cells[Lines]);
    piece->SetPolys(m_cells[Polys]);
    const vtkIdType count = m_points->GetNumberOfIds();
    vtkNew<vtkIdList> all;
    all->SetNumberOfIds(count);
    std::iota(all->begin(), all->end(), vtkIdType {0});
    piece->GetPointData()->CopyAllocate(m_whole.GetPointData(), count);
    piece->GetPointData()->CopyData(m_whole.GetPointData(), m_points, all);
    piece->GetBounds(); // are kept
    m_pieces.push_back(std::move(piece));
    for (const vtkIdType point : *m_points)
        m_local[static_cast<std::size_t>(point)] = -1;
    begin();
}

vtkIdType shapeCost(vtkPolyData& shape)
{
    return kCosts[Verts] * shape.GetVerts()->GetNumberOfConnectivityIds()
        + kCosts[Lines] * shape.GetLines()->GetNumberOfConnectivityIds()
        + kCosts[Polys] * shape.GetPolys()->GetNumberOfConnectivityIds();
}

ShapePieces inPieces(vtkPolyData& shape, vtkIdType largest)
{
    return shapeCost(shape) <= largest ? ShapePieces {&shape} : PieceCutter(shape, largest).cut();
}

} // namespace corvala::plot
