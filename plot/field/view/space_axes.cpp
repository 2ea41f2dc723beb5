// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/space_axes.h"

#include "plot/common/axis_ticks.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QPainter>

#include <vtkBox.h>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

using Point = std::array<double, 3>;

Point SpaceView::fromEye(const Point& point) const
{
    Point seen {};
    for (std::size_t axis = 0; axis < 3; ++axis)
        for (std::size_t part = 0; part < 3; ++part)
            seen[part] += directions[axis][part] * (point[axis] - eye[axis]);
    return seen;
}

std::optional<QPointF> SpaceView::project(const Point& point, const QRectF& plot) const
{
    const Point seen = fromEye(point);
    if (!(seen[2] < 0.0))
        return std::nullopt;
    return plot.center()
        + QPointF(seen[0], -seen[1]) * (pixelsPerSlope / std::max(-seen[2], 1e-300));
}

QSizeF spaceAxesMargin(double font)
{
    return {5.0 * font, 3.5 * font};
}

/// An edge of the box that serves as axis.
struct AxisEdge
{
    Point from;
    Point to;
    QLineF line; ///< on the picture
};

/// Whether the viewer looks at the face of the box at its lower or upper end of an axis.
static bool isFaceSeen(const vtkBoundingBox& box, const Point& eye, std::size_t axis, bool upper)
{
    return upper ? eye[axis] > box.GetMaxPoint()[axis] : eye[axis] < box.GetMinPoint()[axis];
}

/// The edges along an axis between a face that is seen and one that is not.
static std::vector<AxisEdge> outerEdges(const vtkBoundingBox& box, const SpaceView& view,
                                        const QRectF& plot, std::size_t axis)
{
    const std::size_t first = (axis + 1) % 3;
    const std::size_t second = (axis + 2) % 3;
    std::vector<AxisEdge> edges;
    for (const bool firstUpper : {false, true}) {
        for (const bool secondUpper : {false, true}) {
            if (isFaceSeen(box, view.eye, first, firstUpper)
                == isFaceSeen(box, view.eye, second, secondUpper))
                continue;
            AxisEdge edge;
            edge.from[axis] = box.GetMinPoint()[axis];
            edge.from[first] = (firstUpper ? box.GetMaxPoint() : box.GetMinPoint())[first];
            edge.from[second] = (secondUpper ? box.GetMaxPoint() : box.GetMinPoint())[second];
            edge.to = edge.from;
            edge.to[axis] = box.GetMaxPoint()[axis];
            const auto from = view.project(edge.from, plot);
            const auto to = view.project(edge.to, plot);
            if (from && to) {
                edge.line = {*from, *to};
                edges.push_back(edge);
            }
        }
    }
    return edges;
}

/// The edge that lies lowest on the picture; the leftmost of upright ones.
static const AxisEdge& bestEdge(const std::vector<AxisEdge>& edges)
{
    const auto rank = [&](const AxisEdge& edge) {
        const bool isUpright = std::abs(edge.line.dy()) > 2.0 * std::abs(edge.line.dx());
        return isUpright ? edge.line.center().x() : -edge.line.center().y();
    };
    return *std::min_element(
        edges.begin(), edges.end(),
        [&](const AxisEdge& left, const AxisEdge& right) { return rank(left) < rank(right); });
}

/// Away from a point, across the line.
static QPointF outward(const QLineF& line, const QPointF& inside)
{
    const double length = std::max(line.length(), 1e-6);
    const QPointF across(-line.dy() / length, line.dx() / length);
    return QPointF::dotProduct(across, line.center() - inside) < 0.0 ? -across : across;
}

/// Writes a text beside a place, so that it keeps clear by `gap`, but wholly within an area.
/// Returns how far it reaches.
static double paintBeside(QPainter& painter, const QRectF& area, const QPointF& place,
                          const QPointF& direction, double gap, const QString& text)
{
    const QFontMetricsF metrics(painter.font());
    QRectF box(0.0, 0.0, metrics.horizontalAdvance(text) + 2.0, metrics.height());
    const double reach =
        (std::abs(direction.x()) * box.width() + std::abs(direction.y()) * box.height()) / 2;
    box.moveCenter(place + direction * (gap + reach));
    box.moveRight(std::min(box.right(), area.right()));
    box.moveLeft(std::max(box.left(), area.left()));
    box.moveBottom(std::min(box.bottom(), area.bottom()));
    box.moveTop(std::max(box.top(), area.top()));
    painter.drawText(box, Qt::AlignCenter | Qt::TextDontClip, text);
    return gap + 2.0 * reach;
}

static bool isUpright(const AxisEdge& edge)
{
    return std::abs(edge.line.dy()) > std::abs(edge.line.dx());
}

/// Long titles of upright axes run upwards.
static void paintTitle(QPainter& painter, const FieldLayout& layout, const AxisEdge& edge,
                       const QPointF& away, double gap, const QString& title)
{
    const QFontMetricsF metrics(painter.font());
    const QPointF middle = edge.line.center();
    if (!isUpright(edge) || metrics.horizontalAdvance(title) < 3.0 * layout.font) {
        paintBeside(painter, layout.plot, middle, away, gap, title);
        return;
    }
    const QString shown = metrics.elidedText(title, Qt::ElideMiddle, layout.plot.height());
    QRectF box(0.0, 0.0, metrics.horizontalAdvance(shown) + 2.0, metrics.height());
    box.moveCenter({0.0, 0.0});
    painter.save();
    painter.translate(middle + away * (gap + metrics.height() / 2));
    painter.rotate(-90.0);
    painter.drawText(box, Qt::AlignCenter | Qt::TextDontClip, shown);
    painter.restore();
}

static AxisTicks ticksAlong(const AxisEdge& edge, std::size_t axis, double font)
{
    return axisTicks(edge.from[axis], edge.to[axis], edge.line.length(), font,
                     isUpright(edge) ? TickTexts::Stacked : TickTexts::SideBySide);
}

static void paintAxis(QPainter& painter, const FieldLayout& layout, const SpaceView& view,
                      const AxisEdge& edge, std::size_t axis, const QPointF& inside,
                      const QString& title)
{
    const double font = layout.font;
    const QPointF away = outward(edge.line, inside);
    painter.drawLine(edge.line);
    painter.setFont(plotFont(font));
    double reach = 0.5 * font;
    const AxisTicks ticks = ticksAlong(edge, axis, font);
    for (std::size_t i = 0; i < ticks.places.size() && edge.line.length() > 4.0 * font; ++i) {
        Point place = edge.from;
        place[axis] = ticks.places[i];
        const auto at = view.project(place, layout.plot);
        if (!at || !layout.plot.contains(*at))
            continue;
        painter.drawLine(*at, *at + away * 0.4 * font);
        reach = std::max(reach,
                         paintBeside(painter, layout.plot, *at, away, 0.5 * font,
                                     ticks.texts[static_cast<int>(i)]));
    }
    painter.setFont(plotFont(1.1 * font, true));
    if (layout.plot.contains(edge.line.center()))
        paintTitle(painter, layout, edge, away, reach + 0.1 * font, title);
}

/// Of the axes, a little outside.
static vtkBoundingBox axesBox(const vtkBoundingBox& shown)
{
    constexpr double kDistance = 0.02;
    vtkBoundingBox box = shown;
    box.Inflate(kDistance * shown.GetMaxLength());
    return box;
}

/// What of a line between two points is seen within the plot.
static std::optional<QLineF> seenLine(const Point& from, const Point& to, const SpaceView& view,
                                      const QRectF& plot)
{
    const auto start = view.project(from, plot);
    const auto end = view.project(to, plot);
    if (!start || !end)
        return std::nullopt;
    const double first[] = {start->x(), start->y(), 0.0};
    const double last[] = {end->x(), end->y(), 0.0};
    double area[] = {plot.left(), plot.right(), plot.top(), plot.bottom(), -1.0, 1.0};
    double shares[2];
    double ends[2][3];
    int planes[2];
    if (!vtkBox::IntersectWithLine(area, first, last, shares[0], shares[1], ends[0], ends[1],
                                   planes[0], planes[1]))
        return std::nullopt;
    return QLineF(ends[0][0], ends[0][1], ends[1][0], ends[1][1]);
}

/// The line at a place along an axis, across the face at the far end of another one.
static std::optional<QLineF> gridLine(const vtkBoundingBox& box, const SpaceView& view,
                                      const QRectF& plot, std::size_t axis, double place,
                                      std::size_t across)
{
    const bool isUpperSeen = isFaceSeen(box, view.eye, across, true);
    if (!isUpperSeen && !isFaceSeen(box, view.eye, across, false))
        return std::nullopt; // from between both
    const std::size_t along = 3 - axis - across;
    Point from {};
    from[axis] = place;
    from[across] = (isUpperSeen ? box.GetMinPoint() : box.GetMaxPoint())[across];
    from[along] = box.GetMinPoint()[along];
    Point to = from;
    to[along] = box.GetMaxPoint()[along];
    return seenLine(from, to, view, plot);
}

std::vector<QLineF> spaceGrid(const FieldLayout& layout, const vtkBoundingBox& shown,
                              const SpaceView& view)
{
    const vtkBoundingBox box = axesBox(shown);
    std::vector<QLineF> lines;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const auto edges = outerEdges(box, view, layout.plot, axis);
        if (edges.empty() || !(shown.GetLength(static_cast<int>(axis)) > 0.0))
            continue;
        for (const double place : ticksAlong(bestEdge(edges), axis, layout.font).places)
            for (const std::size_t across : {(axis + 1) % 3, (axis + 2) % 3})
                if (const auto line = gridLine(box, view, layout.plot, axis, place, across))
                    lines.push_back(*line);
    }
    return lines;
}

void paintSpaceAxes(QPainter& painter, const FieldLayout& layout, const vtkBoundingBox& shown,
                    const SpaceView& view, const std::array<QString, 3>& titles)
{
    const vtkBoundingBox box = axesBox(shown);
    Point middle;
    box.GetCenter(middle.data());
    const std::optional<QPointF> inside = view.project(middle, layout.plot);
    if (!inside)
        return;
    painter.save();
    painter.setPen(QPen(inkColor(), std::max(1.0, layout.font / 12.0)));
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const auto edges = outerEdges(box, view, layout.plot, axis);
        if (!edges.empty() && shown.GetLength(static_cast<int>(axis)) > 0.0)
            paintAxis(painter, layout, view, bestEdge(edges), axis, *inside, titles[axis]);
    }
    painter.restore();
}

} // namespace corvala::plot
