// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/decorations.h"

#include "plot/common/nice_steps.h"
#include "plot/field/color_map.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

static constexpr double kLegendWidth = 7.5; ///< in heights of text, each

static QColor inkColor()
{
    return {40, 40, 40};
}

FieldLayout layOut(const QSize& size, bool flat, std::size_t legendCount)
{
    FieldLayout layout;
    layout.font = std::clamp(std::min(size.height() / 45.0, size.width() / 50.0), 9.0, 40.0);
    const double font = layout.font;
    QRectF area(0, 0, size.width(), size.height());
    if (legendCount > 0) {
        const double width =
            std::min(kLegendWidth * font * static_cast<double>(legendCount), size.width() / 2.0);
        layout.legends =
            QRectF(area.right() - width, 1.5 * font, width, area.height() - 5.5 * font);
        area.setRight(area.right() - width);
    }
    layout.plot = flat ? area.adjusted(6.0 * font, 1.5 * font, -1.5 * font, -4.0 * font) : area;
    if (layout.plot.width() < 1.0 || layout.plot.height() < 1.0)
        layout.plot = area;
    return layout;
}

static void setFont(QPainter& painter, double pixels, bool bold = false)
{
    QFont font = painter.font();
    font.setPixelSize(std::max(static_cast<int>(std::lround(pixels)), 1));
    font.setBold(bold);
    painter.setFont(font);
}

/// Ticks and numbers of one axis; `along` places a value on the picture, `down` is the direction
/// away from the plot.
template<class Place>
static void paintTicks(QPainter& painter, const std::vector<double>& ticks, double font,
                       const QPointF& down, int alignment, Place place)
{
    if (ticks.empty())
        return;
    const double step = ticks.size() > 1 ? ticks[1] - ticks[0] : std::max(std::abs(ticks[0]), 1.0);
    for (const double tick : ticks) {
        const QPointF at = place(tick);
        painter.drawLine(at, at + down * 0.4 * font);
        const QPointF text = at + down * 0.7 * font;
        QRectF box(-100.0 * font, -font, 200.0 * font, 2.0 * font);
        box.moveCenter(text);
        if (alignment & Qt::AlignRight)
            box.moveRight(text.x());
        if (alignment & Qt::AlignTop)
            box.moveTop(text.y());
        painter.drawText(box, alignment, tickText(tick, step));
    }
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
    setFont(painter, font);
    const double xSpan = window.xMaximum - window.xMinimum;
    const double ySpan = window.yMaximum - window.yMinimum;
    const int xCount = std::max(static_cast<int>(plot.width() / (4.5 * font)), 2);
    const int yCount = std::max(static_cast<int>(plot.height() / (3.0 * font)), 2);
    paintTicks(painter, niceTicks(window.xMinimum, window.xMaximum, xCount), font, {0.0, 1.0},
               Qt::AlignHCenter | Qt::AlignTop, [&](double x) {
                   const double share = (x - window.xMinimum) / xSpan;
                   return QPointF(plot.left() + share * plot.width(), plot.bottom());
               });
    paintTicks(painter, niceTicks(window.yMinimum, window.yMaximum, yCount), font, {-1.0, 0.0},
               Qt::AlignRight | Qt::AlignVCenter, [&](double y) {
                   const double share = (y - window.yMinimum) / ySpan;
                   return QPointF(plot.left(), plot.bottom() - share * plot.height());
               });
    setFont(painter, 1.1 * font, true);
    painter.drawText(QRectF(plot.left(), plot.bottom() + 2.1 * font, plot.width(), 1.6 * font),
                     Qt::AlignHCenter | Qt::AlignTop, xTitle);
    painter.translate(0.3 * font, plot.center().y());
    painter.rotate(-90.0);
    painter.drawText(QRectF(-plot.height() / 2, 0.0, plot.height(), 1.6 * font),
                     Qt::AlignHCenter | Qt::AlignTop, yTitle);
    painter.restore();
}

void paintOrientation(QPainter& painter, const FieldLayout& layout,
                      const std::array<std::array<double, 3>, 3>& directions,
                      const std::array<QString, 3>& titles)
{
    static const QColor kColors[] = {{200, 40, 40}, {30, 140, 50}, {40, 70, 200}};
    const double length = 3.2 * layout.font;
    const QPointF origin(1.6 * length, layout.plot.bottom() - 1.6 * length);
    std::array<std::size_t, 3> order = {0, 1, 2};
    std::sort(order.begin(), order.end(), [&](std::size_t left, std::size_t right) {
        return directions[left][2] < directions[right][2];
    });
    painter.save();
    setFont(painter, layout.font, true);
    for (const std::size_t axis : order) {
        const QPointF direction(directions[axis][0], -directions[axis][1]);
        painter.setPen(QPen(kColors[axis], layout.font / 5.0, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(origin, origin + direction * length);
        QRectF box(0.0, 0.0, 8.0 * layout.font, 1.6 * layout.font);
        box.moveCenter(origin + direction * (length + 0.9 * layout.font));
        painter.drawText(box, Qt::AlignCenter, titles[axis]);
    }
    painter.restore();
}

static void paintLegend(QPainter& painter, const QRectF& area, double font,
                        const FieldLegend& legend)
{
    const ContourLevels& levels = legend.levels;
    setFont(painter, 1.1 * font, true);
    const QRectF titleBox(area.left(), area.top(), area.width(), 1.6 * font);
    painter.drawText(titleBox, Qt::AlignLeft | Qt::AlignTop,
                     QFontMetricsF(painter.font(), painter.device())
                         .elidedText(legend.title, Qt::ElideRight, area.width() - 0.5 * font));
    const QRectF bar(area.left(), area.top() + 2.0 * font, 1.4 * font,
                     std::min(area.height() - 2.0 * font, 26.0 * font));
    const std::vector<host::Rgb> colors = bandColors(levels.bands);
    const double height = bar.height() / levels.bands;
    for (int band = 0; band < levels.bands; ++band) {
        const host::Rgb& color = colors[static_cast<std::size_t>(band)];
        painter.fillRect(
            QRectF(bar.left(), bar.bottom() - height * (band + 1), bar.width(), height),
            QColor(color.red, color.green, color.blue));
    }
    painter.drawRect(bar);
    setFont(painter, font);
    const int every = std::max(1, static_cast<int>(std::ceil(1.5 * font / height)));
    for (int level = 0; level <= levels.bands; level += every) {
        const double y = bar.bottom() - height * level;
        painter.drawLine(QPointF(bar.right(), y), QPointF(bar.right() + 0.35 * font, y));
        painter.drawText(QRectF(bar.right() + 0.6 * font, y - font, area.width(), 2.0 * font),
                         Qt::AlignLeft | Qt::AlignVCenter,
                         tickText(levels.minimum + levels.step * level, levels.step));
    }
}

void paintLegends(QPainter& painter, const FieldLayout& layout,
                  const std::vector<FieldLegend>& legends)
{
    painter.save();
    painter.setPen(QPen(inkColor(), std::max(1.0, layout.font / 12.0)));
    painter.setBrush(Qt::NoBrush);
    QRectF area = layout.legends;
    area.setWidth(area.width() / std::max<double>(static_cast<double>(legends.size()), 1.0));
    for (const FieldLegend& legend : legends) {
        paintLegend(painter, area, layout.font, legend);
        area.translate(area.width(), 0.0);
    }
    painter.restore();
}

void paintNotice(QPainter& painter, const FieldLayout& layout, const QString& text)
{
    if (text.isEmpty())
        return;
    painter.save();
    setFont(painter, layout.font);
    painter.setPen(inkColor());
    const QRectF box(layout.plot.left() + layout.font / 2, layout.plot.top() + layout.font / 2,
                     layout.plot.width() - layout.font, 2.0 * layout.font);
    painter.drawText(box, Qt::AlignLeft | Qt::AlignTop, text);
    painter.restore();
}

} // namespace corvala::plot
