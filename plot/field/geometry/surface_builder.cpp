// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/surface_builder.h"

#include <vtkCellType.h>
#include <vtkDataSet.h>

namespace corvala::plot {

SurfaceBuilder::SurfaceBuilder(vtkDataSet& data)
    : m_data(data)
    , m_newNumbers(static_cast<std::size_t>(data.GetNumberOfPoints()), -1)
{
    m_points->SetDataType(VTK_DOUBLE);
}

void SurfaceBuilder::add(vtkCellArray& cells, const vtkIdType* corners, vtkIdType count,
                         vtkIdType zoneCell)
{
    cells.InsertNextCell(static_cast<int>(count));
    for (vtkIdType i = 0; i < count; ++i) {
        vtkIdType& number = m_newNumbers[static_cast<std::size_t>(corners[i])];
        if (number < 0) {
            double point[3]; // and not the data set's own: threads may share it
            m_data.GetPoint(corners[i], point);
            number = m_points->InsertNextPoint(point);
            m_surface.pointIds.push_back(corners[i]);
        }
        cells.InsertCellPoint(number);
    }
    m_surface.cellIds.push_back(zoneCell);
}

void SurfaceBuilder::addCell(int type, const vtkIdList& corners, vtkIdType zoneCell)
{
    const bool isOfVertices = type == VTK_VERTEX || type == VTK_POLY_VERTEX;
    const bool isOfLines = type == VTK_LINE || type == VTK_POLY_LINE;
    add(isOfVertices    ? *m_vertices
            : isOfLines ? *m_lines
                        : *m_faces,
        corners.begin(), corners.GetNumberOfIds(), zoneCell);
}

ZoneSurface SurfaceBuilder::finish()
{
    m_surface.shape = vtkSmartPointer<vtkPolyData>::New();
    m_surface.shape->SetPoints(m_points);
    m_surface.shape->SetVerts(m_vertices);
    m_surface.shape->SetLines(m_lines);
    m_surface.shape->SetPolys(m_faces);
    return std::move(m_surface);
}

} // namespace corvala::plot
