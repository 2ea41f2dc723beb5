// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/zone_surface.h"

#include <vtkCellArray.h>
#include <vtkIdList.h>
#include <vtkNew.h>
#include <vtkPoints.h>

namespace corvala::plot {

/// Collects cells by the zone's point numbers and keeps only the points that they use.
class SurfaceBuilder
{
public:
    explicit SurfaceBuilder(vtkDataSet& data);

    /// Cells must be added vertices first, then lines, then faces.
    void addVertex(vtkIdType point, vtkIdType zoneCell) { add(*m_vertices, &point, 1, zoneCell); }
    void addLine(const std::array<vtkIdType, 2>& ends, vtkIdType zoneCell)
    {
        add(*m_lines, ends.data(), 2, zoneCell);
    }
    void addFace(const vtkIdType* corners, vtkIdType count, vtkIdType zoneCell)
    {
        add(*m_faces, corners, count, zoneCell);
    }
    /// A cell of a shape, by its type.
    void addCell(int type, const vtkIdList& corners, vtkIdType zoneCell);
    ZoneSurface finish();

private:
    void add(vtkCellArray& cells, const vtkIdType* corners, vtkIdType count, vtkIdType zoneCell);

    vtkDataSet& m_data;
    std::vector<vtkIdType> m_newNumbers;
    vtkNew<vtkPoints> m_points;
    vtkNew<vtkCellArray> m_vertices;
    vtkNew<vtkCellArray> m_lines;
    vtkNew<vtkCellArray> m_faces;
    ZoneSurface m_surface;
};

} // namespace corvala::plot
