// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/field_scene.h"

#include <QRectF>
#include <QString>

#include <array>
#include <vector>

class QPainter;

namespace corvala::plot {

/// Where the plot and what belongs to it lie in a picture, in pixels.
struct FieldLayout
{
    QRectF plot; ///< coordinates are drawn here
    QRectF legends; ///< empty without legends
    double font = 12.0; ///< height of text
};

/// A flat plot leaves room for its axes; legends stand at the right.
FieldLayout layOut(const QSize& size, bool flat, std::size_t legendCount);

/// The part of the plane that is seen.
struct PlaneWindow
{
    double xMinimum = 0.0;
    double xMaximum = 1.0;
    double yMinimum = 0.0;
    double yMaximum = 1.0;
};

/// Frame, ticks, numbers and titles round the plot.
void paintPlaneAxes(QPainter& painter, const FieldLayout& layout, const PlaneWindow& window,
                    const QString& xTitle, const QString& yTitle);

/// Small arrows that show how the coordinates X, Y and Z lie: right, up and towards the viewer for
/// each of them.
void paintOrientation(QPainter& painter, const FieldLayout& layout,
                      const std::array<std::array<double, 3>, 3>& directions,
                      const std::array<QString, 3>& titles);

void paintLegends(QPainter& painter, const FieldLayout& layout,
                  const std::vector<FieldLegend>& legends);

/// A remark in the upper left corner; nothing when it is empty.
void paintNotice(QPainter& painter, const FieldLayout& layout, const QString& text);

} // namespace corvala::plot
