// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/decorations.h"

#include "plot/common/axis_ticks.h"
#include "plot/field/view/legend.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace corvala::plot {

// Sizes are in heights of text.
static constexpr double kTickLength = 0.4;
static constexpr double kTextGap = 0.7; ///< from the axis to its numbers
static constexpr double kTitleHeight = 1.6;
static constexpr double kSmallestLeftMargin = 6.0;
static constexpr double kVectorKeyWidth = 8.5;

QColor inkColor()
{
    return {40, 40, 40};
}

/// As large as beside the plot, and within the picture.
static QRectF placedLegend(const FieldLegend& legend, const QSizeF& picture, double font)
{
    const QSizeF size =
        QSizeF(legendWidth(legend, font), legendHeight(legend, font)).boundedTo(picture);
    return {
        QPointF(std::min((*legend.place)[0] * picture.width(), picture.width() - size.width()),
                std::min((*legend.place)[1] * picture.height(), picture.height() - size.height())),
        size};
}

/// Rows of legends, each with so many of them and as wide as they are together.
static double widestRow(const std::vector<double>& widths, std::size_t perRow)
{
    double widest = 0.0;
    for (std::size_t first = 0; first < widths.size(); first += perRow) {
        double all = 0.0;
        for (std::size_t i = first; i < std::min(first + perRow, widths.size()); ++i)
            all += widths[i];
        widest = std::max(widest, all);
    }
    return widest;
}

/// As few rows as leave the plot its share of the picture, as long as bars have a height.
static std::size_t legendsPerRow(const std::vector<double>& widths, double picture, double height)
{
    constexpr double kMostWidth = 0.4; // of the picture
    constexpr double kLeastHeight = 9.0; // of a row
    const std::size_t count = widths.size();
    for (std::size_t rows = 1; rows < count; ++rows) {
        const std::size_t perRow = (count + rows - 1) / rows;
        if (widestRow(widths, perRow) <= kMostWidth * picture
            || height / static_cast<double>(rows + 1) < kLeastHeight)
            return perRow;
    }
    return 1;
}

/// Where the legends beside the plot stand, by rows; one that is too wide for the room has narrower
/// legends.
static std::vector<QRectF> inRows(const std::vector<double>& widths, const QRectF& room,
                                  std::size_t perRow, double gap)
{
    const std::size_t rows = (widths.size() + perRow - 1) / perRow;
    const double height = room.height() / static_cast<double>(std::max<std::size_t>(rows, 1));
    std::vector<QRectF> places;
    for (std::size_t first = 0; first < widths.size(); first += perRow) {
        const auto begin = widths.begin() + static_cast<std::ptrdiff_t>(first);
        const auto end =
            widths.begin() + static_cast<std::ptrdiff_t>(std::min(first + perRow, widths.size()));
        const double shrink = std::min(room.width() / std::accumulate(begin, end, 0.0), 1.0);
        QPointF corner(room.left(), room.top() + height * static_cast<double>(first / perRow));
        for (auto width = begin; width != end; ++width) {
            places.emplace_back(corner, QSizeF(*width * shrink, height - (rows > 1 ? gap : 0.0)));
            corner.rx() += *width * shrink;
        }
    }
    return places;
}

static double fontFor(const QSize& size, double fontScale)
{
    constexpr double kLargestShare = 10.0; // of the picture, in heights of text
    const double usual = std::max(std::min(size.height() / 45.0, size.width() / 50.0), 9.0);
    return std::max(
        1.0, std::min(usual * fontScale, std::min(size.width(), size.height()) / kLargestShare));
}

FieldLayout layOut(const QSize& size, bool flat, const std::vector<FieldLegend>& legends,
                   double yTexts, bool hasVectorKey, double fontScale)
{
    FieldLayout layout;
    layout.font = fontFor(size, fontScale);
    const double font = layout.font;
    QRectF area(0, 0, size.width(), size.height());
    std::vector<double> widths;
    for (const FieldLegend& legend : legends)
        if (!legend.place)
            widths.push_back(legendWidth(legend, font));
    const double top = 1.5 * font;
    const double below = (hasVectorKey ? 8.5 : 5.5) * font;
    const std::size_t perRow = legendsPerRow(widths, size.width(), (size.height() - below) / font);
    const double key = hasVectorKey ? kVectorKeyWidth * font : 0.0;
    const double beside = std::min(std::max(widestRow(widths, perRow), key), size.width() / 2.0);
    area.setRight(area.right() - beside);
    if (hasVectorKey)
        layout.vectorKey = {area.right(), area.height() - 6.0 * font, std::min(beside, 1.5 * key),
                            4.5 * font};
    const std::vector<QRectF> places =
        inRows(widths, {area.right(), top, beside, area.height() - below}, perRow, top);
    std::size_t next = 0;
    for (const FieldLegend& legend : legends)
        layout.legends.push_back(legend.place ? placedLegend(legend, size, font) : places[next++]);
    const double leftMargin =
        std::max(kSmallestLeftMargin * font, yTexts + (kTextGap + kTitleHeight + 0.6) * font);
    layout.plot = flat ? area.adjusted(leftMargin, 1.5 * font, -1.5 * font, -4.0 * font) : area;
    if (layout.plot.width() < 1.0 || layout.plot.height() < 1.0)
        layout.plot = area;
    return layout;
}

static AxisTicks xTicks(const FieldLayout& layout, const PlaneWindow& window)
{
    return axisTicks(window.xMinimum, window.xMaximum, layout.plot.width(), layout.font,
                     TickTexts::SideBySide);
}

static AxisTicks yTicks(const FieldLayout& layout, const PlaneWindow& window)
{
    return axisTicks(window.yMinimum, window.yMaximum, layout.plot.height(), layout.font,
                     TickTexts::Stacked);
}

double yTextsWidth(const FieldLayout& layout, const PlaneWindow& window)
{
    return yTicks(layout, window).widest;
}

/// Ticks and numbers of one axis; `along` places a value on the picture, `down` is the direction
/// away from the plot.
template<class Place>
static void paintTicks(QPainter& painter, const AxisTicks& ticks, double font, const QPointF& down,
                       int alignment, Place along)
{
    for (std::size_t i = 0; i < ticks.places.size(); ++i) {
        const QPointF at = along(ticks.places[i]);
        painter.drawLine(at, at + down * kTickLength * font);
        const QPointF text = at + down * kTextGap * font;
        QRectF box(-100.0 * font, -font, 200.0 * font, 2.0 * font);
        box.moveCenter(text);
        if (alignment & Qt::AlignRight)
            box.moveRight(text.x());
        if (alignment & Qt::AlignTop)
            box.moveTop(text.y());
        painter.drawText(box, alignment, ticks.texts[static_cast<int>(i)]);
    }
}

void paintPlaneGrid(QPainter& painter, const FieldLayout& layout, const PlaneWindow& window)
{
    const QRectF& plot = layout.plot;
    QColor color = inkColor();
    color.setAlphaF(kGridStrength);
    painter.save();
    painter.setPen(QPen(color, std::max(1.0, layout.font / 16.0)));
    for (const double x : xTicks(layout, window).places) {
        const double share = (x - window.xMinimum) / (window.xMaximum - window.xMinimum);
        const double place = plot.left() + share * plot.width();
        painter.drawLine(QPointF(place, plot.top()), QPointF(place, plot.bottom()));
    }
    for (const double y : yTicks(layout, window).places) {
        const double share = (y - window.yMinimum) / (window.yMaximum - window.yMinimum);
        const double place = plot.bottom() - share * plot.height();
        painter.drawLine(QPointF(plot.left(), place), QPointF(plot.right(), place));
    }
    painter.restore();
}

static QString cutTo(double width, const QString& text, const QPainter& painter)
{
    return QFontMetricsF(painter.font()).elidedText(text, Qt::ElideMiddle, width);
}

void paintPlaneAxes(QPainter& painter, const FieldLayout& layout, const PlaneWindow& window,
                    const QString& xTitle, const QString& yTitle)
{
    const QRectF& plot = layout.plot;
    const double font = layout.font;
    painter.save();
    painter.setPen(QPen(inkColor(), std::max(1.0, font / 12.0)));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(plot);
    painter.setFont(plotFont(font));
    const double xSpan = window.xMaximum - window.xMinimum;
    const double ySpan = window.yMaximum - window.yMinimum;
    paintTicks(painter, xTicks(layout, window), font, {0.0, 1.0}, Qt::AlignHCenter | Qt::AlignTop,
               [&](double x) {
                   const double share = (x - window.xMinimum) / xSpan;
                   return QPointF(plot.left() + share * plot.width(), plot.bottom());
               });
    paintTicks(painter, yTicks(layout, window), font, {-1.0, 0.0},
               Qt::AlignRight | Qt::AlignVCenter, [&](double y) {
                   const double share = (y - window.yMinimum) / ySpan;
                   return QPointF(plot.left(), plot.bottom() - share * plot.height());
               });
    painter.setFont(plotFont(1.1 * font, true));
    painter.drawText(
        QRectF(plot.left(), plot.bottom() + 2.1 * font, plot.width(), kTitleHeight * font),
        Qt::AlignHCenter | Qt::AlignTop, cutTo(plot.width(), xTitle, painter));
    painter.translate(0.3 * font, plot.center().y());
    painter.rotate(-90.0);
    painter.drawText(QRectF(-plot.height() / 2, 0.0, plot.height(), kTitleHeight * font),
                     Qt::AlignHCenter | Qt::AlignTop, cutTo(plot.height(), yTitle, painter));
    painter.restore();
}

void paintOrientation(QPainter& painter, const FieldLayout& layout,
                      const AxisDirections& directions, const std::array<QString, 3>& titles)
{
    static const QColor kColors[] = {{200, 40, 40}, {30, 140, 50}, {40, 70, 200}};
    const double length = 3.2 * layout.font;
    const QPointF origin(1.6 * length, layout.plot.bottom() - 1.6 * length);
    std::array<std::size_t, 3> order = {0, 1, 2};
    std::sort(order.begin(), order.end(), [&](std::size_t left, std::size_t right) {
        return directions[left][2] < directions[right][2];
    });
    painter.save();
    painter.setFont(plotFont(layout.font, true));
    for (const std::size_t axis : order) {
        const QPointF direction(directions[axis][0], -directions[axis][1]);
        painter.setPen(QPen(kColors[axis], layout.font / 5.0, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(origin, origin + direction * length);
        QRectF box(0.0, 0.0, 8.0 * layout.font, 1.6 * layout.font);
        box.moveCenter(origin + direction * (length + 0.9 * layout.font));
        painter.drawText(box, Qt::AlignCenter, cutTo(box.width(), titles[axis], painter));
    }
    painter.restore();
}

void paintNotice(QPainter& painter, const FieldLayout& layout, double lower, const QString& text)
{
    if (text.isEmpty())
        return;
    painter.save();
    painter.setFont(plotFont(layout.font));
    painter.setPen(inkColor());
    const QRectF box(layout.plot.left() + layout.font / 2,
                     layout.plot.top() + layout.font / 2 + lower, layout.plot.width() - layout.font,
                     2.0 * layout.font);
    painter.drawText(box, Qt::AlignLeft | Qt::AlignTop, text);
    painter.restore();
}

} // namespace corvala::plot
