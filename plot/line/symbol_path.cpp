// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/symbol_path.h"

#include "plot/common/character_path.h"
#include "vocabulary/enums.h"

#include <QTransform>

namespace corvala::plot {

static QPainterPath polygon(std::initializer_list<QPointF> corners)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(QVector<QPointF>(corners)));
    path.closeSubpath();
    return path;
}

static QPainterPath strokes(std::initializer_list<std::pair<QPointF, QPointF>> lines)
{
    QPainterPath path;
    for (const auto& [from, to] : lines) {
        path.moveTo(from);
        path.lineTo(to);
    }
    return path;
}

static QPainterPath circle()
{
    QPainterPath path;
    path.addEllipse(QPointF(), 1.0, 1.0);
    return path;
}

/// Seen from above one edge.
static SymbolPath cube()
{
    constexpr double kSide = 0.866;
    const QPointF top(0, -1);
    const QPointF middle(0, 0);
    const QPointF left(-kSide, -0.5);
    const QPointF right(kSide, -0.5);
    return {polygon({top, right, {kSide, 0.5}, {0, 1}, {-kSide, 0.5}, left}),
            strokes({{left, middle}, {right, middle}, {{0, 1}, middle}})};
}

static SymbolPath sphere()
{
    SymbolPath path {circle(), {}};
    path.details.arcMoveTo(QRectF(-0.65, -0.65, 1.3, 1.3), 100);
    path.details.arcTo(QRectF(-0.65, -0.65, 1.3, 1.3), 100, 70);
    return path;
}

static QPainterPath pie()
{
    QPainterPath path;
    path.moveTo(0, 0);
    path.arcTo(QRectF(-1, -1, 2, 2), 90, 270);
    path.closeSubpath();
    return path;
}

static SymbolPath star()
{
    constexpr double kDiagonal = 0.7071;
    return {{},
            strokes({{{-1, 0}, {1, 0}},
                     {{0, -1}, {0, 1}},
                     {{-kDiagonal, -kDiagonal}, {kDiagonal, kDiagonal}},
                     {{-kDiagonal, kDiagonal}, {kDiagonal, -kDiagonal}}})};
}

SymbolPath symbolPath(int shape, const std::string& character, int font)
{
    constexpr double kPoint = 0.35; // of a symbol's size
    switch (shape) {
    case GeomShape_Delta: return {polygon({{0, -1}, {1, 1}, {-1, 1}}), {}};
    case GeomShape_Gradient: return {polygon({{0, 1}, {1, -1}, {-1, -1}}), {}};
    case GeomShape_RightTriangle: return {polygon({{1, 0}, {-1, 1}, {-1, -1}}), {}};
    case GeomShape_LeftTriangle: return {polygon({{-1, 0}, {1, 1}, {1, -1}}), {}};
    case GeomShape_Diamond: return {polygon({{0, -1}, {1, 0}, {0, 1}, {-1, 0}}), {}};
    case GeomShape_Circle: return {circle(), {}};
    case GeomShape_Cube: return cube();
    case GeomShape_Sphere: return sphere();
    case GeomShape_Octahedron:
        return {polygon({{0, -1}, {1, 0}, {0, 1}, {-1, 0}}),
                strokes({{{-1, 0}, {0, 0.3}},
                         {{1, 0}, {0, 0.3}},
                         {{0, -1}, {0, 0.3}},
                         {{0, 1}, {0, 0.3}}})};
    case GeomShape_Point: return {QTransform::fromScale(kPoint, kPoint).map(circle()), {}, true};
    case GeomShape_PieChart: return {pie(), {}};
    case GeomShape_LineArt: return star();
    case GeomShape_Character:
        return {QTransform::fromScale(1, -1).map(
                    characterPath(QString::fromStdString(character), font)),
                {},
                true};
    default: return {polygon({{-1, -1}, {1, -1}, {1, 1}, {-1, 1}}), {}};
    }
}

} // namespace corvala::plot
