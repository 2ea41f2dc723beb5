// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/private/curve_fit_icon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace corvala::propertybindings {

static constexpr int kSide = 16; // units of the picture
static constexpr int kPixelSides[] = {16, 24, 32, 48};

static constexpr QPointF kPoints[] = {{2, 12}, {6, 5}, {10, 9}, {14, 3}};

static QPainterPath curveOf(CurveType_e type, ExtendedFit_e extended)
{
    QPainterPath path(kPoints[0]);
    switch (type) {
    case CurveType_LineSegments:
        for (const QPointF& point : kPoints)
            path.lineTo(point);
        break;
    case CurveType_PolynomialFit: path.quadTo(QPointF(6, 5), QPointF(14, 4)); break;
    case CurveType_ExponentialFit: path.quadTo(QPointF(12, 11), QPointF(14, 3)); break;
    case CurveType_PowerFit: path.quadTo(QPointF(3, 5), QPointF(14, 4)); break;
    case CurveType_Spline:
        path.cubicTo(QPointF(3, 8), QPointF(4, 5), kPoints[1]);
        path.cubicTo(QPointF(8, 5), QPointF(8, 9), kPoints[2]);
        path.cubicTo(QPointF(12, 9), QPointF(13, 6), kPoints[3]);
        break;
    case CurveType_ParametricSpline:
        path.cubicTo(QPointF(1, 6), QPointF(5, 2), kPoints[1]);
        path.cubicTo(QPointF(7, 9), QPointF(8, 11), kPoints[2]);
        path.cubicTo(QPointF(12, 7), QPointF(11, 2), kPoints[3]);
        break;
    case CurveType_Extended:
        if (extended == ExtendedFit_Gaussian) {
            path = QPainterPath(QPointF(1, 13));
            path.cubicTo(QPointF(6, 13), QPointF(6, 4), QPointF(8, 4));
            path.cubicTo(QPointF(10, 4), QPointF(10, 13), QPointF(15, 13));
        } else {
            path.cubicTo(QPointF(6, 5), QPointF(9, 10), kPoints[3]);
        }
        break;
    }
    return path;
}

static QPixmap painted(const QPainterPath& curve, int side)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(double(side) / kSide, double(side) / kSide);
    painter.setPen(QPen(QColor(58, 90, 149), 1.2));
    painter.drawPath(curve);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(194, 72, 9));
    for (const QPointF& point : kPoints)
        painter.drawEllipse(point, 1.4, 1.4);
    return pixmap;
}

QIcon curveFitIcon(CurveType_e type, ExtendedFit_e extended)
{
    QIcon icon;
    for (const int side : kPixelSides)
        icon.addPixmap(painted(curveOf(type, extended), side));
    return icon;
}

} // namespace corvala::propertybindings
