// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineF>

#include <vtkNew.h>

#include <vector>

class QSize;
class vtkActor2D;
class vtkPolyDataMapper2D;
class vtkRenderer;

namespace corvala::plot {

/// Grid lines on the paper, behind all that is drawn in space.
class SpaceGrid
{
public:
    /// The renderer draws them, under those of further layers.
    explicit SpaceGrid(vtkRenderer& paper);
    ~SpaceGrid();
    SpaceGrid(const SpaceGrid&) = delete;
    SpaceGrid& operator=(const SpaceGrid&) = delete;

    /// Places from the upper left of a picture of this size; `width` in pixels of the window.
    void show(const std::vector<QLineF>& lines, const QSize& size, double width);

private:
    vtkRenderer& m_paper;
    vtkNew<vtkPolyDataMapper2D> m_mapper;
    vtkNew<vtkActor2D> m_actor;
};

} // namespace corvala::plot
