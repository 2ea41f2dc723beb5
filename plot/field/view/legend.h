// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/view/decorations.h"

#include <QStringList>

namespace corvala::plot {

/// A text beside the bar of a legend, and where: in bands from its lower end.
struct LegendText
{
    double place = 0.0;
    QString text;
};

/// Both ends, and between them the roundest levels that leave at least `gap` bands between two
/// texts. A single value is named in the middle of its band.
std::vector<LegendText> legendTexts(const std::optional<ContourLevels>& levels, double gap);

/// A title in one line, where it is no wider than `width` pixels, else in two, the second one with
/// its middle left out where it is too long.
QStringList legendTitleLines(const QString& title, double width, double font);

/// Width in pixels that a legend needs with texts `font` pixels high.
double legendWidth(const FieldLegend& legend, double font);

/// Height in pixels of a legend with its tallest bar.
double legendHeight(const FieldLegend& legend, double font);

/// Draws the legends where the layout has them.
void paintLegends(QPainter& painter, const FieldLayout& layout,
                  const std::vector<FieldLegend>& legends);

/// Draws an arrow and what magnitude it stands for; `pixelsPerUnit` is the size of the coordinates.
void paintVectorKey(QPainter& painter, const FieldLayout& layout, const VectorKey& key,
                    double pixelsPerUnit);

} // namespace corvala::plot
