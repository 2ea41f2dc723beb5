// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/time_text.h"

#include "plot/common/axis_ticks.h"
#include "plot/common/nice_steps.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>

namespace corvala::plot {

/// The one time of the zones that lines show; nothing when there are several, or none.
static std::optional<double> timeOfLines(const host::Frame& frame, const host::NumberSet& maps)
{
    std::optional<double> time;
    for (const std::uint32_t map : maps) {
        const CvlInt64 number = frame.lineInteger(style::lineMap.assign.zone, map);
        if (!frame.data()->hasZone(number) || frame.data()->zone(number).strand == 0)
            continue;
        const double own = frame.data()->zone(number).time;
        if (time && *time != own)
            return std::nullopt;
        time = own;
    }
    return time;
}

static std::optional<double> timeOf(const host::Frame& frame, const host::NumberSet& maps)
{
    if (!frame.hasData() || !frame.isOn(style::timeText.show))
        return std::nullopt;
    if (frame.isLinePlot())
        return timeOfLines(frame, maps);
    return frame.data()->isTransient() ? std::optional(frame.solutionTime()) : std::nullopt;
}

TimeText timeTextOf(const host::Frame& frame, const host::NumberSet& drawnMaps)
{
    constexpr const auto& kStyle = style::timeText;
    const std::optional<double> time = timeOf(frame, drawnMaps);
    if (!time)
        return {};
    const QString title = QString::fromStdString(frame.text(kStyle.title));
    const QString unit = QString::fromStdString(frame.text(kStyle.unit));
    TimeText result;
    result.text = QStringLiteral("%1: %2").arg(
        title.isEmpty() ? QCoreApplication::translate("corvala::plot", "Time") : title,
        withMinusSign(QString::number(*time, 'g', frame.integer(kStyle.digits))));
    if (!unit.isEmpty())
        result.text += QLatin1Char(' ') + unit;
    if (!frame.isOn(kStyle.automaticPlace))
        result.corner = QPointF(frame.real(kStyle.x), frame.real(kStyle.y));
    return result;
}

QRectF placeOf(const TimeText& time, const QRectF& picture, const QRectF& plot, double font)
{
    if (time.text.isEmpty())
        return {};
    const double width = QFontMetricsF(plotFont(font)).horizontalAdvance(time.text);
    const QSizeF size(width + font, 1.5 * font);
    const QPointF wanted = time.corner ? picture.topLeft()
            + QPointF(time.corner->x() * picture.width(), time.corner->y() * picture.height())
                / 100.0
                                       : plot.topLeft() + QPointF(font, font) / 2.0;
    return {
        QPointF(std::max(std::min(wanted.x(), picture.right() - size.width()), picture.left()),
                std::max(std::min(wanted.y(), picture.bottom() - size.height()), picture.top())),
        size};
}

void paintTimeText(QPainter& painter, const TimeText& time, const QRectF& place, double font)
{
    constexpr int kVeil = 200; // of 255, so that it can be read over anything
    if (time.text.isEmpty())
        return;
    painter.save();
    painter.fillRect(place, QColor(255, 255, 255, kVeil));
    painter.setPen(Qt::black);
    painter.setFont(plotFont(font));
    painter.drawText(place, Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, time.text);
    painter.restore();
}

} // namespace corvala::plot
