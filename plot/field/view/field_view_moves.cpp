// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/camera_fit.h"
#include "plot/field/view/field_view.h"

#include <vtkCamera.h>
#include <vtkMath.h>

#include <algorithm>
#include <cmath>

/// What moves the camera of a field view.
namespace corvala::plot {

using Point = std::array<double, 3>;

double FieldView::pixelsPerUnit() const
{
    vtkCamera* const camera = m_back->GetActiveCamera();
    const double halfHeight = camera->GetParallelProjection()
        ? camera->GetParallelScale()
        : camera->GetDistance() * slopeOfView(*camera);
    return m_layout.plot.height() / (2.0 * std::max(halfHeight, 1e-300));
}

void FieldView::placeCamera()
{
    if (!m_isFitted || !m_fitBox.IsValid())
        return;
    vtkCamera* const camera = m_back->GetActiveCamera();
    if (m_flat) {
        fitFlat(m_axes.seen(m_fitBox));
    } else {
        camera->SetFocalPoint(0.0, 0.0, 0.0);
        camera->SetPosition(m_fitFrom.data());
        camera->SetViewUp(m_fitUp.data());
        fitSpace(m_axes.seen(m_fitBox));
    }
}

void FieldView::fitFlat(const vtkBoundingBox& box)
{
    double center[3];
    double lengths[3];
    box.GetCenter(center);
    box.GetLengths(lengths);
    const double aspect = m_layout.plot.width() / m_layout.plot.height();
    for (const std::size_t axis : {0, 1}) // a range that was set is shown as it is
        lengths[axis] *= m_isFitted && m_axes.ranges[axis] ? 1.0 : kFitMargin;
    const double halfHeight = std::max(lengths[1], lengths[0] / aspect) / 2;
    const double top = std::max(box.GetMaxPoint()[2], m_fitBox.GetMaxPoint()[2]);
    vtkCamera* const camera = m_back->GetActiveCamera();
    camera->SetFocalPoint(center[0], center[1], 0.0);
    camera->SetPosition(center[0], center[1], 2.0 * top + 10.0);
    camera->SetViewUp(0.0, 1.0, 0.0);
    camera->SetParallelScale(halfHeight > 0.0 ? halfHeight : 1.0);
}

/// Where axes stand round it.
void FieldView::fitSpace(const vtkBoundingBox& box)
{
    const QSizeF size = m_layout.plot.size();
    const QSizeF used = (size - 2.0 * spaceAxesMargin(m_layout.font)).expandedTo(size / 2.0);
    fitToBox(*m_back->GetActiveCamera(), box, used, size.height());
}

void FieldView::lookFrom(const Point& direction, const Point& up)
{
    m_fitFrom = direction;
    m_fitUp = up;
    m_isFitted = m_followsScene = true;
}

/// The camera stays in front of everything: what is behind it is not drawn.
void FieldView::setParallel(bool isParallel)
{
    if (m_flat || m_isParallel == isParallel)
        return;
    vtkCamera* const camera = m_back->GetActiveCamera();
    m_isParallel = isParallel;
    camera->SetParallelProjection(isParallel);
    const double slope = slopeOfView(*camera);
    if (isParallel) {
        camera->SetParallelScale(camera->GetDistance() * slope);
        standAway(camera->GetDistance());
    } else {
        standAt(camera->GetParallelScale() / slope);
    }
}

void FieldView::standAt(double distance)
{
    vtkCamera* const camera = m_back->GetActiveCamera();
    Point position;
    camera->GetFocalPoint(position.data());
    const double* const ahead = camera->GetDirectionOfProjection();
    for (std::size_t axis = 0; axis < 3; ++axis)
        position[axis] -= distance * ahead[axis];
    camera->SetPosition(position.data());
}

void FieldView::standAway(double least)
{
    const vtkBoundingBox box = m_scene->bounds();
    standAt(std::max(least, box.IsValid() ? 3.0 * box.GetMaxLength() : 0.0));
}

/// What is seen in the middle of a box; where nothing is, as far away as what is looked at.
Point FieldView::middleOf(const QRectF& box)
{
    const PickRay ray = rayAt(box.center());
    if (const auto seen = placeAt(box.center()))
        return *seen;
    vtkCamera* const camera = m_back->GetActiveCamera();
    const double* const ahead = camera->GetDirectionOfProjection();
    Point way;
    Point toFocus;
    vtkMath::Subtract(ray.to.data(), ray.from.data(), way.data());
    vtkMath::Subtract(camera->GetFocalPoint(), ray.from.data(), toFocus.data());
    const double along = vtkMath::Dot(toFocus.data(), ahead) / vtkMath::Dot(way.data(), ahead);
    for (std::size_t axis = 0; axis < 3; ++axis)
        way[axis] = ray.from[axis] + along * way[axis];
    return way;
}

void FieldView::zoomToBox(const QRectF& box)
{
    const QSizeF plot = m_layout.plot.size();
    const double factor = std::min(plot.width() / std::max(box.width(), 1e-3),
                                   plot.height() / std::max(box.height(), 1e-3));
    vtkCamera* const camera = m_back->GetActiveCamera();
    m_isFitted = false;
    if (m_flat) {
        pan(m_layout.plot.center() - box.center());
        camera->SetParallelScale(camera->GetParallelScale() / factor);
        return;
    }
    const Point middle = middleOf(box);
    Point position;
    camera->GetPosition(position.data());
    Point away;
    vtkMath::Subtract(middle.data(), position.data(), away.data());
    const double depth = vtkMath::Dot(away.data(), camera->GetDirectionOfProjection());
    const Point ahead = {camera->GetDirectionOfProjection()[0],
                         camera->GetDirectionOfProjection()[1],
                         camera->GetDirectionOfProjection()[2]};
    camera->SetFocalPoint(middle.data());
    for (std::size_t axis = 0; axis < 3; ++axis)
        position[axis] = middle[axis] - depth * ahead[axis];
    camera->SetPosition(position.data());
    if (m_isParallel) {
        camera->SetParallelScale(camera->GetParallelScale() / factor);
        standAway(depth);
    } else {
        standAt(depth / factor);
    }
}

void FieldView::zoomTo(const vtkBoundingBox& box)
{
    m_isFitted = false;
    if (m_flat)
        fitFlat(box);
    else
        fitSpace(box);
}

/// Whether a box lies on the wrong side of one of the planes round what is seen of space.
static bool isBeside(const vtkBoundingBox& box, const SpaceView& view, const QSizeF& plot)
{
    constexpr std::size_t kPlanes = 5;
    const double across = plot.width() / 2 / view.pixelsPerSlope;
    const double up = plot.height() / 2 / view.pixelsPerSlope;
    std::array<bool, kPlanes> isBeyond {true, true, true, true, true};
    for (int corner = 0; corner < 8; ++corner) {
        Point place;
        box.GetCorner(corner, place.data());
        const Point seen = view.fromEye(place);
        const double depth = -seen[2];
        const std::array<double, kPlanes> beyond {seen[0] - across * depth,
                                                  -seen[0] - across * depth, seen[1] - up * depth,
                                                  -seen[1] - up * depth, -depth};
        for (std::size_t plane = 0; plane < kPlanes; ++plane)
            isBeyond[plane] = isBeyond[plane] && beyond[plane] > 0.0;
    }
    return std::find(isBeyond.begin(), isBeyond.end(), true) != isBeyond.end();
}

/// Boxes are seen or not; what is in a box may yet lie beside.
bool FieldView::seesSomething() const
{
    const QSizeF plot = m_layout.plot.size();
    const PlaneWindow window = planeWindow();
    const SpaceView view = spaceView();
    return m_scene->hasBoxIn([&](const vtkBoundingBox& box) {
        if (!m_flat)
            return !isBeside(box, view, plot);
        return box.GetBound(0) <= window.xMaximum && box.GetBound(1) >= window.xMinimum
            && box.GetBound(2) <= window.yMaximum && box.GetBound(3) >= window.yMinimum;
    });
}

QRect FieldView::pixelsOfPlot(double magnification) const
{
    QRectF plot = m_layout.plot;
    plot.moveTop(m_size.height() - plot.bottom());
    return QRectF(magnification * plot.topLeft(), magnification * plot.size())
        .toRect()
        .intersected(QRect({0, 0}, m_size * magnification));
}

void FieldView::pan(const QPointF& pixels)
{
    vtkCamera* const camera = m_back->GetActiveCamera();
    const double unit = 1.0 / pixelsPerUnit();
    double place[3];
    camera->GetFocalPoint(place);
    camera->SetFocalPoint(place[0] - pixels.x() * unit, place[1] + pixels.y() * unit, place[2]);
    camera->GetPosition(place);
    camera->SetPosition(place[0] - pixels.x() * unit, place[1] + pixels.y() * unit, place[2]);
    m_isFitted = false;
}

void FieldView::magnify(double factor, const QPointF& center)
{
    const QPointF toCenter = m_layout.plot.center() - center;
    pan(toCenter);
    vtkCamera* const camera = m_back->GetActiveCamera();
    camera->SetParallelScale(camera->GetParallelScale() / factor);
    pan(-toCenter);
}

} // namespace corvala::plot
