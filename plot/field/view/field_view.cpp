// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/field_view.h"

#include "plot/field/view/camera_fit.h"
#include "plot/field/view/legend.h"

#include <QPainter>

#include <vtkCamera.h>
#include <vtkMath.h>
#include <vtkRenderWindow.h>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

static constexpr double kAfar = 100.0; ///< of the depth of what is seen; more would round
static constexpr double kPickPixels = 4.0;

/// How many times what is translucent is drawn, each time for the nearest and the farthest faces
/// that are left: for few faces until nothing is left, for many as often as takes about a second.
static int peelCount(std::int64_t cost)
{
    constexpr std::int64_t kMostCost = 10 * kLargestPiece;
    constexpr std::int64_t kMostPeels = 16;
    return static_cast<int>(
        std::clamp(kMostCost / std::max<std::int64_t>(cost, 1), std::int64_t {1}, kMostPeels));
}

FieldView::FieldView(std::shared_ptr<SurfaceCache> cache)
    : m_scene(std::make_unique<FieldScene>(*m_back, *m_front, std::move(cache)))
    , m_parts({m_paper, m_back, m_front},
              [this](vtkProp* prop) { return m_scene->drawingCost(prop); })
    , m_grid(*m_paper)
{
    m_paper->SetBackground(1.0, 1.0, 1.0);
    m_paper->SetInteractive(0);
    m_light->SetLightTypeToCameraLight();
    m_light->SetFocalPoint(0.0, 0.0, 0.0);
    m_back->AddLight(m_light);
    m_back->SetLayer(1);
    m_back->SetUseDepthPeeling(true);
    m_back->SetOcclusionRatio(0.0);
    m_front->SetLayer(2);
    m_front->SetInteractive(0);
    m_front->SetActiveCamera(m_back->GetActiveCamera());
}

FieldView::~FieldView()
{
    m_scene.reset();
    attach(nullptr);
}

void FieldView::attach(vtkRenderWindow* window)
{
    for (vtkRenderer* const renderer : {m_paper.Get(), m_back.Get(), m_front.Get()}) {
        if (m_window)
            m_window->RemoveRenderer(renderer);
        if (window) {
            window->SetNumberOfLayers(3);
            window->AddRenderer(renderer);
        }
    }
    m_window = window;
}

void FieldView::setFlat(bool flat)
{
    m_flat = flat;
    m_back->GetActiveCamera()->SetParallelProjection(flat || m_isParallel);
}

void FieldView::setSize(const QSize& size, double magnification)
{
    m_magnification = magnification;
    m_size = size.expandedTo({1, 1});
}

void FieldView::layOutPlot(double yTexts)
{
    m_layout = layOut(m_size, m_flat, m_legends, yTexts, m_vectorKey.has_value(), m_axes.fontScale);
    placeCamera();
}

void FieldView::setViewport()
{
    layOutPlot(0.0);
    if (m_flat)
        layOutPlot(yTextsWidth(m_layout, planeWindow()));
    const QRectF& plot = m_layout.plot;
    const double width = m_size.width();
    const double height = m_size.height();
    for (vtkRenderer* const renderer : {m_back.Get(), m_front.Get()}) {
        renderer->SetViewport(plot.left() / width, 1.0 - plot.bottom() / height,
                              plot.right() / width, 1.0 - plot.top() / height);
    }
}

void FieldView::updateFitBox(const vtkBoundingBox& box)
{
    if (!m_isFitted || !box.IsValid())
        return;
    if (m_followsScene)
        m_fitBox = box;
    else if (m_widens)
        m_fitBox.AddBox(box);
    if (!m_scene->hasWork())
        m_followsScene = m_widens = false;
}

void FieldView::prepare()
{
    m_light->SetPosition(m_scene->lightDirection().data());
    m_legends = m_scene->legends();
    m_vectorKey = m_scene->vectorKey();
    m_axes = m_scene->axes();
    const vtkBoundingBox box = m_scene->bounds();
    updateFitBox(box);
    setViewport();
    m_time = m_scene->timeText();
    m_timePlace = placeOf(m_time, {{0.0, 0.0}, QSizeF(m_size)}, m_layout.plot, m_layout.font);
    if (box.IsValid()) {
        double bounds[6];
        m_scene->drawnBounds().GetBounds(bounds);
        bounds[4] -= m_flat ? 1.0 : 0.0;
        bounds[5] += m_flat ? 1.0 : 0.0;
        m_back->ResetCameraClippingRange(bounds);
    }
    showGrid(box);
    m_scene->prepare(viewScale());
    m_back->SetMaximumNumberOfPeels(peelCount(m_scene->translucentCost()));
}

/// The grid of a flat plot lies over the drawing, as its cells fill the plane.
void FieldView::showGrid(const vtkBoundingBox& box)
{
    const bool hasGrid = m_axes.hasGrid && !m_flat && box.IsValid();
    m_grid.show(hasGrid ? spaceGrid(m_layout, box, spaceView()) : std::vector<QLineF>(), m_size,
                m_magnification * std::max(1.0, m_layout.font / 16.0));
}

ViewScale FieldView::viewScale() const
{
    vtkCamera* const camera = m_back->GetActiveCamera();
    ViewScale scale;
    scale.frameHeight = static_cast<int>(std::lround(m_magnification * m_size.height()));
    scale.pixelsPerUnit = m_magnification * pixelsPerUnit();
    scale.thinnestLine = m_magnification;
    scale.viewport = {
        {m_magnification * m_layout.plot.width(), m_magnification * m_layout.plot.height()}};
    if (m_flat)
        return scale;
    const double* const range = camera->GetClippingRange();
    const double depth = range[1] - range[0];
    // Seen in parallel is seen from afar.
    scale.depthSlope = m_isParallel ? kAfar : (range[1] + range[0]) / depth;
    scale.nearness =
        1.0 / (scale.pixelsPerUnit * (m_isParallel ? kAfar * depth / 2 : camera->GetDistance()));
    const AxisDirections directions = directionsOfAxes(*camera);
    for (std::size_t axis = 0; axis < 3; ++axis)
        for (std::size_t part = 0; part < 3; ++part)
            scale.axes[axis][part] = static_cast<float>(directions[axis][part]);
    return scale;
}

CameraState FieldView::camera() const
{
    CameraState state;
    state.isFitted = m_isFitted;
    state.fitBox = m_fitBox;
    const vtkBoundingBox all = m_scene->bounds();
    state.isOfAll = m_followsScene || !all.IsValid() || m_fitBox == all;
    vtkCamera* const camera = m_back->GetActiveCamera();
    camera->GetPosition(state.position.data());
    camera->GetFocalPoint(state.focalPoint.data());
    camera->GetViewUp(state.viewUp.data());
    state.parallelScale = camera->GetParallelScale();
    state.isParallel = m_isParallel;
    if (m_isFitted && !m_flat) {
        state.focalPoint = {};
        state.position = m_fitFrom;
        state.viewUp = m_fitUp;
    }
    return state;
}

void FieldView::setCamera(const CameraState& state)
{
    m_isFitted = state.isFitted;
    m_fitBox = state.fitBox;
    m_followsScene = !m_fitBox.IsValid();
    m_isParallel = state.isParallel;
    const CameraState& fitted = m_isFitted && !m_flat ? state : CameraState();
    vtkMath::Subtract(fitted.position.data(), fitted.focalPoint.data(), m_fitFrom.data());
    m_fitUp = fitted.viewUp;
    vtkCamera* const camera = m_back->GetActiveCamera();
    camera->SetPosition(state.position.data());
    camera->SetFocalPoint(state.focalPoint.data());
    camera->SetViewUp(state.viewUp.data());
    camera->SetParallelScale(state.parallelScale);
    camera->SetParallelProjection(m_flat || m_isParallel);
}

PlaneWindow FieldView::planeWindow() const
{
    vtkCamera* const camera = m_back->GetActiveCamera();
    const double* const center = camera->GetFocalPoint();
    const double halfHeight = camera->GetParallelScale();
    const double halfWidth = halfHeight * m_layout.plot.width() / m_layout.plot.height();
    return {center[0] - halfWidth, center[0] + halfWidth, center[1] - halfHeight,
            center[1] + halfHeight};
}

SpaceView FieldView::spaceView() const
{
    vtkCamera* const camera = m_back->GetActiveCamera();
    SpaceView view;
    view.directions = directionsOfAxes(*camera);
    camera->GetPosition(view.eye.data());
    view.pixelsPerSlope = m_layout.plot.height() / 2 / slopeOfView(*camera);
    if (!m_isParallel)
        return view;
    constexpr double kTimes = 1e5; // as far away as what is seen is large
    const double distance =
        kTimes * std::max(camera->GetParallelScale(), m_scene->bounds().GetMaxLength());
    for (std::size_t axis = 0; axis < 3; ++axis)
        view.eye[axis] += distance * view.directions[axis][2];
    view.pixelsPerSlope = pixelsPerUnit() * (distance + camera->GetDistance());
    return view;
}

std::optional<double> FieldView::proposal(style::Key value, int index) const
{
    constexpr const auto& kAxes = style::fieldAxes;
    const auto legend = legendCorner(index);
    if (legend && value == style::contourGroups.legendX)
        return legend->x();
    if (legend && value == style::contourGroups.legendY)
        return legend->y();
    if (!m_timePlace.isEmpty() && value == style::timeText.x)
        return 100.0 * m_timePlace.left() / m_size.width();
    if (!m_timePlace.isEmpty() && value == style::timeText.y)
        return 100.0 * m_timePlace.top() / m_size.height();
    constexpr style::Key kEnds[] = {kAxes.x.rangeMin, kAxes.x.rangeMax, kAxes.y.rangeMin,
                                    kAxes.y.rangeMax, kAxes.z.rangeMin, kAxes.z.rangeMax};
    const auto* const end = std::find(std::begin(kEnds), std::end(kEnds), value);
    return end == std::end(kEnds) ? m_scene->proposal(value, index)
                                  : seenEnd(static_cast<int>(end - std::begin(kEnds)));
}

std::optional<double> FieldView::seenEnd(int number) const
{
    constexpr double kSame = 1e-9; // of what is seen
    const vtkBoundingBox box = m_scene->bounds();
    const auto& range = m_axes.ranges[static_cast<std::size_t>(number / 2)];
    const bool hasEnds = m_flat ? number < 4 : !range;
    if (!box.IsValid() || !hasEnds)
        return std::nullopt;
    if (!m_flat)
        return box.GetBound(number);
    const PlaneWindow window = planeWindow();
    const double ends[] = {window.xMinimum, window.xMaximum, window.yMinimum, window.yMaximum};
    const double set = !range ? ends[number] : number % 2 == 0 ? range->first : range->second;
    const double seen = window.yMaximum - window.yMinimum;
    return std::abs(ends[number] - set) < kSame * seen ? set : ends[number];
}

void FieldView::paintDecorations(QPainter& painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    const std::array<QString, 3>& titles = m_axes.titles;
    const vtkBoundingBox box = m_scene->bounds();
    if (box.IsValid() && m_flat) {
        if (m_axes.hasGrid)
            paintPlaneGrid(painter, m_layout, planeWindow());
        paintPlaneAxes(painter, m_layout, planeWindow(), titles[0], titles[1]);
    } else if (box.IsValid()) {
        const SpaceView view = spaceView();
        paintSpaceAxes(painter, m_layout, box, view, titles);
        paintOrientation(painter, m_layout, view.directions, titles);
    }
    paintLegends(painter, m_layout, m_legends);
    if (m_vectorKey)
        paintVectorKey(painter, m_layout, *m_vectorKey, pixelsPerUnit());
    paintTimeText(painter, m_time, m_timePlace, m_layout.font);
    const QString notice = m_scene->notice();
    const bool isFree = m_time.corner || m_time.text.isEmpty();
    paintNotice(painter, m_layout, isFree ? 0.0 : m_timePlace.height(),
                notice.isEmpty() && m_isCut
                    ? tr("Drawing was cancelled: the picture is not complete")
                    : notice);
}

PickRay FieldView::rayAt(const QPointF& point)
{
    const auto worldAt = [&](double depth) {
        m_back->SetDisplayPoint(m_magnification * point.x(),
                                m_magnification * (m_size.height() - point.y()) - 1.0, depth);
        m_back->DisplayToWorld();
        const double* const world = m_back->GetWorldPoint();
        return std::array<double, 3> {world[0] / world[3], world[1] / world[3],
                                      world[2] / world[3]};
    };
    return {worldAt(0.0), worldAt(1.0), kPickPixels / pixelsPerUnit()};
}

CvlInt64 FieldView::zoneAt(const QPointF& point)
{
    return m_layout.plot.contains(point) ? m_scene->zoneAt(rayAt(point)) : 0;
}

std::optional<std::array<double, 3>> FieldView::placeAt(const QPointF& point)
{
    return m_layout.plot.contains(point) ? m_scene->placeAt(rayAt(point)) : std::nullopt;
}

int FieldView::legendAt(const QPointF& point) const
{
    int group = 0;
    for (std::size_t i = 0; i < m_layout.legends.size(); ++i)
        if (m_layout.legends[i].contains(point)) // a later one covers those before
            group = m_legends[i].group;
    return group;
}

void FieldView::moveLegend(int group, const QPointF& pixels)
{
    for (std::size_t i = 0; i < m_layout.legends.size(); ++i) {
        QRectF& area = m_layout.legends[i];
        const double right = std::max(m_size.width() - area.width(), 0.0);
        const double bottom = std::max(m_size.height() - area.height(), 0.0);
        if (m_legends[i].group == group)
            area.moveTo(std::clamp(area.left() + pixels.x(), 0.0, right),
                        std::clamp(area.top() + pixels.y(), 0.0, bottom));
    }
}

std::optional<QPointF> FieldView::legendCorner(int group) const
{
    for (std::size_t i = 0; i < m_layout.legends.size(); ++i)
        if (m_legends[i].group == group)
            return QPointF(100.0 * m_layout.legends[i].left() / m_size.width(),
                           100.0 * m_layout.legends[i].top() / m_size.height());
    return std::nullopt;
}

} // namespace corvala::plot
