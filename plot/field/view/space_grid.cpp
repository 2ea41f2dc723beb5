// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/space_grid.h"

#include "plot/field/view/decorations.h"

#include <QSize>

#include <vtkActor2D.h>
#include <vtkCellArray.h>
#include <vtkCoordinate.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper2D.h>
#include <vtkProperty2D.h>
#include <vtkRenderer.h>

namespace corvala::plot {

SpaceGrid::SpaceGrid(vtkRenderer& paper)
    : m_paper(paper)
{
    vtkNew<vtkCoordinate> shares;
    shares->SetCoordinateSystemToNormalizedViewport();
    m_mapper->SetTransformCoordinate(shares);
    m_actor->SetMapper(m_mapper);
    m_actor->VisibilityOff();
    const QColor ink = inkColor();
    const auto onWhite = [](double part) { return 1.0 - kGridStrength * (1.0 - part); };
    m_actor->GetProperty()->SetColor(onWhite(ink.redF()), onWhite(ink.greenF()),
                                     onWhite(ink.blueF()));
    m_paper.AddActor2D(m_actor);
}

SpaceGrid::~SpaceGrid()
{
    m_paper.RemoveActor2D(m_actor);
}

void SpaceGrid::show(const std::vector<QLineF>& lines, const QSize& size, double width)
{
    m_actor->SetVisibility(!lines.empty());
    if (lines.empty())
        return;
    vtkNew<vtkPoints> points;
    points->SetDataTypeToDouble();
    vtkNew<vtkCellArray> cells;
    for (const QLineF& line : lines) {
        cells->InsertNextCell(2);
        for (const QPointF& end : {line.p1(), line.p2()})
            cells->InsertCellPoint(points->InsertNextPoint(end.x() / size.width(),
                                                           1.0 - end.y() / size.height(), 0.0));
    }
    vtkNew<vtkPolyData> grid;
    grid->SetPoints(points);
    grid->SetLines(cells);
    m_mapper->SetInputData(grid);
    m_actor->GetProperty()->SetLineWidth(static_cast<float>(width));
}

} // namespace corvala::plot
