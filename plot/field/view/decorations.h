// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/scene/field_scene.h"

#include <QColor>
#include <QRectF>
#include <QString>

#include <array>
#include <vector>

class QPainter;

namespace corvala::plot {

/// Right, up and towards the viewer for each axis of the coordinates.
using AxisDirections = std::array<std::array<double, 3>, 3>;

/// The colour of axes and texts.
QColor inkColor();

/// How much ink grid lines have.
constexpr double kGridStrength = 0.25;

/// Where the plot and what belongs to it lie in a picture, in pixels.
struct FieldLayout
{
    QRectF plot; ///< coordinates are drawn here
    std::vector<QRectF> legends; ///< one for each
    QRectF vectorKey; ///< empty without one
    double font = 12.0; ///< height of text
};

/// A flat plot leaves room for its axes, whose numbers at the left side are `yTexts` pixels wide;
/// legends stand at the right, each as wide as its title and numbers need, in rows where they
/// would take too much of the picture, and below them what the length of arrows means. Legends with
/// a place lie over the plot, all within the picture. Texts are `fontScale` times as high as usual.
FieldLayout layOut(const QSize& size, bool flat, const std::vector<FieldLegend>& legends,
                   double yTexts = 0.0, bool hasVectorKey = false, double fontScale = 1.0);

/// The part of the plane that is seen.
struct PlaneWindow
{
    double xMinimum = 0.0;
    double xMaximum = 1.0;
    double yMinimum = 0.0;
    double yMaximum = 1.0;
};

/// Width in pixels of the widest number at the left side of the plot.
double yTextsWidth(const FieldLayout& layout, const PlaneWindow& window);

/// Lines across the plot at the ticks of its axes.
void paintPlaneGrid(QPainter& painter, const FieldLayout& layout, const PlaneWindow& window);

/// Frame, ticks, numbers and titles round the plot.
void paintPlaneAxes(QPainter& painter, const FieldLayout& layout, const PlaneWindow& window,
                    const QString& xTitle, const QString& yTitle);

/// Small arrows that show how the coordinates X, Y and Z lie.
void paintOrientation(QPainter& painter, const FieldLayout& layout,
                      const AxisDirections& directions, const std::array<QString, 3>& titles);

/// A remark in the upper left corner, so many pixels lower; nothing when it is empty.
void paintNotice(QPainter& painter, const FieldLayout& layout, double lower, const QString& text);

} // namespace corvala::plot
