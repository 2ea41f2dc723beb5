// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/frame.h"

#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>

class QPainter;

namespace corvala::plot {

/// The solution time in a picture.
struct TimeText
{
    QString text; ///< empty without one
    std::optional<QPointF> corner; ///< upper left, in percent of the picture; nothing: of the plot
};

/// Of a field plot; of a line plot, where all the maps that are drawn show zones of one time.
TimeText timeTextOf(const host::Frame& frame, const host::NumberSet& drawnMaps);

/// Where it stands in a picture with a plot, wholly within the picture where there is room; texts
/// are `font` pixels high.
QRectF placeOf(const TimeText& time, const QRectF& picture, const QRectF& plot, double font);

/// Over what is there.
void paintTimeText(QPainter& painter, const TimeText& time, const QRectF& place, double font);

} // namespace corvala::plot
