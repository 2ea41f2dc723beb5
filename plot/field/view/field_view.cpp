// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/field_view.h"

#include "plot/field/view/legend.h"

#include <QPainter>

#include <vtkCamera.h>
#include <vtkMath.h>
#include <vtkMatrix4x4.h>
#include <vtkRenderWindow.h>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

static constexpr double kFitMargin = 1.06; ///< of what is shown, so that lines at the rim are whole
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
    m_back->GetActiveCamera()->SetParallelProjection(flat);
}

void FieldView::setSize(const QSize& size, double magnification)
{
    m_magnification = magnification;
    m_size = size.expandedTo({1, 1});
}

double FieldView::pixelsPerUnit() const
{
    vtkCamera* const camera = m_back->GetActiveCamera();
    const double halfHeight = m_flat
        ? camera->GetParallelScale()
        : camera->GetDistance() * std::tan(vtkMath::RadiansFromDegrees(camera->GetViewAngle() / 2));
    return m_layout.plot.height() / (2.0 * std::max(halfHeight, 1e-300));
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

void FieldView::placeCamera()
{
    if (!m_isFitted || !m_fitBox.IsValid())
        return;
    if (m_flat)
        fitFlat(m_axes.seen(m_fitBox));
    else
        fitSpace(m_axes.seen(m_fitBox));
}

void FieldView::fitFlat(const vtkBoundingBox& box)
{
    double center[3];
    double lengths[3];
    box.GetCenter(center);
    box.GetLengths(lengths);
    const double aspect = m_layout.plot.width() / m_layout.plot.height();
    for (const std::size_t axis : {0, 1}) // a range that was set is shown as it is
        lengths[axis] *= m_axes.ranges[axis] ? 1.0 : kFitMargin;
    const double halfHeight = std::max(lengths[1], lengths[0] / aspect) / 2;
    const double top = box.GetMaxPoint()[2];
    vtkCamera* const camera = m_back->GetActiveCamera();
    camera->SetFocalPoint(center[0], center[1], 0.0);
    camera->SetPosition(center[0], center[1], 2.0 * top + 10.0);
    camera->SetViewUp(0.0, 1.0, 0.0);
    camera->SetParallelScale(halfHeight > 0.0 ? halfHeight : 1.0);
}

static AxisDirections axisDirections(vtkCamera& camera)
{
    vtkMatrix4x4* const matrix = camera.GetViewTransformMatrix();
    AxisDirections directions;
    for (int axis = 0; axis < 3; ++axis) {
        for (int part = 0; part < 3; ++part) {
            directions[static_cast<std::size_t>(axis)][static_cast<std::size_t>(part)] =
                matrix->GetElement(part, axis);
        }
    }
    return directions;
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
    scale.nearness = 1.0 / (scale.pixelsPerUnit * camera->GetDistance());
    scale.depthSlope = (range[1] + range[0]) / (range[1] - range[0]);
    const AxisDirections directions = axisDirections(*camera);
    for (std::size_t axis = 0; axis < 3; ++axis)
        for (std::size_t part = 0; part < 3; ++part)
            scale.axes[axis][part] = static_cast<float>(directions[axis][part]);
    return scale;
}

/// Corners of a box from its centre: to the right, up and towards the viewer.
static std::array<std::array<double, 3>, 8> seenCorners(const vtkBoundingBox& box,
                                                        vtkCamera& camera)
{
    const AxisDirections directions = axisDirections(camera);
    double lengths[3];
    box.GetLengths(lengths);
    std::array<std::array<double, 3>, 8> corners {};
    for (std::size_t corner = 0; corner < corners.size(); ++corner)
        for (std::size_t axis = 0; axis < 3; ++axis)
            for (std::size_t part = 0; part < 3; ++part)
                corners[corner][part] +=
                    directions[axis][part] * lengths[axis] * ((corner >> axis) & 1 ? 0.5 : -0.5);
    return corners;
}

/// Moves the corners so that they lie in the middle of what is seen from `distance`.
static void centre(std::array<std::array<double, 3>, 8>& corners, double distance,
                   std::array<double, 2>& moved)
{
    for (std::size_t part = 0; part < 2; ++part) {
        const auto slope = [&](const auto& corner) {
            return corner[part] / std::max(distance - corner[2], 1e-9 * distance);
        };
        double lowest = slope(corners[0]);
        double highest = lowest;
        for (const auto& corner : corners) {
            lowest = std::min(lowest, slope(corner));
            highest = std::max(highest, slope(corner));
        }
        const double by = -distance * (lowest + highest) / 2;
        moved[part] += by;
        for (auto& corner : corners)
            corner[part] += by;
    }
}

/// Size of what is shown when axes stand round it.
static QSizeF usedSize(const FieldLayout& layout)
{
    return (layout.plot.size() - 2.0 * spaceAxesMargin(layout.font))
        .expandedTo(layout.plot.size() / 2.0);
}

void FieldView::fitSpace(const vtkBoundingBox& box)
{
    constexpr int kRounds = 4;
    vtkCamera* const camera = m_back->GetActiveCamera();
    camera->SetFocalPoint(0.0, 0.0, 0.0);
    camera->SetPosition(0.5, -1.0, 0.6);
    camera->SetViewUp(0.0, 0.0, 1.0);
    const double slope = std::tan(vtkMath::RadiansFromDegrees(camera->GetViewAngle() / 2));
    const QSizeF used = usedSize(m_layout);
    const double slopes[] = {slope * used.width() / m_layout.plot.height(),
                             slope * used.height() / m_layout.plot.height()};
    auto corners = seenCorners(box, *camera);
    double distance = 1.0;
    std::array<double, 2> moved {};
    for (int round = 0; round < kRounds; ++round) {
        // Far enough away for each corner to lie inside the picture.
        distance = box.GetMaxLength() > 0.0 ? 1e-6 * box.GetMaxLength() : 1.0;
        for (const auto& corner : corners)
            for (const int part : {0, 1})
                distance =
                    std::max(distance,
                             corner[2]
                                 + kFitMargin * std::abs(corner[static_cast<std::size_t>(part)])
                                     / slopes[part]);
        if (round + 1 < kRounds)
            centre(corners, distance, moved);
    }
    const auto directions = axisDirections(*camera);
    double focalPoint[3];
    double position[3];
    box.GetCenter(focalPoint);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        focalPoint[axis] -= moved[0] * directions[axis][0] + moved[1] * directions[axis][1];
        position[axis] = focalPoint[axis] + distance * directions[axis][2];
    }
    camera->SetFocalPoint(focalPoint);
    camera->SetPosition(position);
}

CameraState FieldView::camera() const
{
    CameraState state;
    state.isFitted = m_isFitted;
    state.fitBox = m_fitBox;
    vtkCamera* const camera = m_back->GetActiveCamera();
    camera->GetPosition(state.position.data());
    camera->GetFocalPoint(state.focalPoint.data());
    camera->GetViewUp(state.viewUp.data());
    state.parallelScale = camera->GetParallelScale();
    return state;
}

void FieldView::setCamera(const CameraState& state)
{
    m_isFitted = state.isFitted;
    m_fitBox = state.fitBox;
    m_followsScene = !m_fitBox.IsValid();
    vtkCamera* const camera = m_back->GetActiveCamera();
    camera->SetPosition(state.position.data());
    camera->SetFocalPoint(state.focalPoint.data());
    camera->SetViewUp(state.viewUp.data());
    camera->SetParallelScale(state.parallelScale);
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
    view.directions = axisDirections(*camera);
    camera->GetPosition(view.eye.data());
    view.pixelsPerSlope = m_layout.plot.height() / 2
        / std::tan(vtkMath::RadiansFromDegrees(camera->GetViewAngle() / 2));
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
    const QString notice = m_scene->notice();
    paintNotice(painter, m_layout,
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
