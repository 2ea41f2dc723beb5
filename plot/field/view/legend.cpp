// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/legend.h"

#include "plot/common/axis_ticks.h"
#include "plot/common/nice_steps.h"
#include "plot/field/geometry/color_map.h"
#include "plot/field/scene/vector_scale.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

// Sizes are in heights of text.
static constexpr double kNarrowest = 7.5;
static constexpr double kWidest = 16.0;
static constexpr double kWidestLine = 10.0; ///< of a title, before it takes two lines
static constexpr double kBarWidth = 1.4;
static constexpr double kTallestBar = 26.0;
static constexpr double kSingleBand = 3.0;
static constexpr double kTitleLine = 1.3;
static constexpr double kBarTop = 2.0; ///< below a title of one line

/// That of the last digit with which all levels are told apart, and told exactly where two digits
/// more than those of their distance do.
static double lastUnit(const ContourLevels& levels)
{
    constexpr int kMoreDigits = 2;
    constexpr double kExact = 1e-3; // of the distance
    const auto isTold = [&](int level, double unit) {
        const double units = (levels.minimum + levels.step * level) / unit;
        return std::abs(units - std::round(units)) * unit < kExact * levels.step;
    };
    const int coarsest = static_cast<int>(std::floor(std::log10(levels.step) + 1e-9));
    for (int power = coarsest; power > coarsest - kMoreDigits; --power) {
        const double unit = std::pow(10.0, power);
        int level = 0;
        while (level <= levels.bands && isTold(level, unit))
            ++level;
        if (level > levels.bands)
            return unit;
    }
    return std::pow(10.0, coarsest - kMoreDigits);
}

std::vector<LegendText> legendTexts(const std::optional<ContourLevels>& levels, double gap)
{
    if (!levels)
        return {{0.5, QCoreApplication::translate("corvala::plot", "no values")}};
    if (levels->isSingleValue())
        return {{0.5, withMinusSign(QString::number(levels->minimum + levels->step / 2, 'g', 7))}};
    const int bands = levels->bands;
    const double unit = lastUnit(*levels);
    const auto valueAt = [&](int level) { return levels->minimum + levels->step * level; };
    const double largest = std::max(std::abs(valueAt(0)), std::abs(valueAt(bands)));
    const auto textAt = [&](int level) {
        return LegendText {static_cast<double>(level), tickText(valueAt(level), unit, largest)};
    };
    static constexpr int kStrides[] = {1, 2, 5, 10};
    const auto* const found = std::find_if(std::begin(kStrides), std::end(kStrides),
                                           [gap](int stride) { return stride >= gap; });
    const int stride = found == std::end(kStrides) ? bands : *found;
    // Multiples of the stride count from zero, so that these are the roundest of the levels.
    const auto first = std::llround(levels->minimum / levels->step) % stride;
    std::vector<LegendText> texts = {textAt(0)};
    for (int level = 1; level < bands; ++level)
        if ((level + first) % stride == 0 && level >= gap && bands - level >= gap)
            texts.push_back(textAt(level));
    texts.push_back(textAt(bands));
    return texts;
}

static bool canBreakAfter(QChar letter)
{
    static const QString kBreaks = QStringLiteral(" _-/,.)");
    return kBreaks.contains(letter);
}

/// What a title takes in one line, or in two where that is too wide.
static double titleWidth(const QString& title, double font)
{
    const QFontMetricsF metrics(plotFont(1.1 * font, true));
    const auto widthOf = [&](const QString& line) {
        return metrics.horizontalAdvance(line.trimmed()) + 0.8 * font;
    };
    double narrowest = widthOf(title);
    if (narrowest <= kWidestLine * font)
        return narrowest;
    for (int length = 1; length < title.size(); ++length)
        if (canBreakAfter(title[length - 1]))
            narrowest = std::min(narrowest,
                                 std::max(widthOf(title.left(length)), widthOf(title.mid(length))));
    return std::max(narrowest, kWidestLine * font);
}

double legendWidth(const FieldLegend& legend, double font)
{
    const QFontMetricsF numbers(plotFont(font));
    const double title = titleWidth(legend.title, font);
    double widest = 0.0;
    for (const LegendText& text : legendTexts(legend.levels, 1.0))
        widest = std::max(widest, numbers.horizontalAdvance(text.text));
    const double needed = std::max(title, widest + (kBarWidth + 1.1) * font);
    const double least =
        legend.place ? 0.0 : kNarrowest; // over the plot it hides no more than that
    return std::clamp(needed, least * font, kWidest * font);
}

static int bandsOf(const FieldLegend& legend)
{
    return legend.levels ? legend.levels->bands : 1;
}

/// How many letters stand in the first line: up to the last place where a name may be broken.
static int firstLineLength(const QString& title, double width, const QFontMetricsF& metrics)
{
    int fitting = 1;
    while (fitting < title.size()
           && metrics.horizontalAdvance(title.left(fitting + 1).trimmed()) <= width)
        ++fitting;
    for (int length = fitting; length > fitting / 3; --length)
        if (canBreakAfter(title[length - 1]))
            return length;
    return fitting;
}

QStringList legendTitleLines(const QString& title, double width, double font)
{
    const QFontMetricsF metrics(plotFont(1.1 * font, true));
    const double room = width - 0.3 * font;
    if (metrics.horizontalAdvance(title) <= room)
        return {title};
    const int length = firstLineLength(title, room, metrics);
    return {title.left(length).trimmed(),
            metrics.elidedText(title.mid(length).trimmed(), Qt::ElideMiddle, room)};
}

static double barTop(int titleLines)
{
    return kBarTop + kTitleLine * (titleLines - 1);
}

static double barHeight(const FieldLegend& legend)
{
    return bandsOf(legend) > 1 ? kTallestBar : kSingleBand;
}

double legendHeight(const FieldLegend& legend, double font)
{
    constexpr double kHalfText = 0.7; // of the lowest number
    const auto lines = legendTitleLines(legend.title, legendWidth(legend, font), font).size();
    return (barTop(lines) + barHeight(legend) + kHalfText) * font;
}

/// Each band reaches below all above it, so that no paper shines through between two.
static void paintBands(QPainter& painter, const QRectF& bar, const std::vector<host::Rgb>& colors)
{
    const double height = bar.height() / static_cast<double>(colors.size());
    double bottom = bar.bottom();
    for (const host::Rgb& color : colors) {
        painter.fillRect(QRectF(bar.topLeft(), QPointF(bar.right(), bottom)),
                         QColor(color.red, color.green, color.blue));
        bottom -= height;
    }
    painter.drawRect(bar);
}

static void paintTitle(QPainter& painter, const QRectF& area, double font, const QStringList& lines)
{
    painter.setFont(plotFont(1.1 * font, true));
    QRectF place(area.topLeft(), QSizeF(area.width(), 1.6 * font));
    for (const QString& line : lines) {
        painter.drawText(place, Qt::AlignLeft | Qt::AlignTop, line);
        place.translate(0.0, kTitleLine * font);
    }
}

/// The bar begins below `titleLines` lines.
static void paintBar(QPainter& painter, const QRectF& area, double font, const FieldLegend& legend,
                     int titleLines)
{
    const int bands = bandsOf(legend);
    const double top = barTop(titleLines) * font;
    const QRectF bar(
        QPointF(area.left(), area.top() + top),
        QSizeF(kBarWidth * font,
               std::max(std::min(area.height() - top, barHeight(legend) * font), font)));
    paintBands(painter, bar,
               legend.levels ? bandColors(legend.colors, bands)
                             : std::vector<host::Rgb> {noValueColor()});
    painter.setFont(plotFont(font));
    const double height = bar.height() / bands;
    for (const LegendText& text : legendTexts(legend.levels, 1.4 * font / height)) {
        const double y = bar.bottom() - height * text.place;
        painter.drawLine(QPointF(bar.right(), y), QPointF(bar.right() + 0.35 * font, y));
        painter.drawText(QRectF(bar.right() + 0.6 * font, y - font, area.width(), 2.0 * font),
                         Qt::AlignLeft | Qt::AlignVCenter, text.text);
    }
}

/// Bars beside the plot begin at one height.
static int besideTitleLines(const FieldLayout& layout, const std::vector<FieldLegend>& legends)
{
    int most = 1;
    for (std::size_t i = 0; i < legends.size(); ++i)
        if (!legends[i].place)
            most = std::max(
                most,
                legendTitleLines(legends[i].title, layout.legends[i].width(), layout.font).size());
    return most;
}

void paintLegends(QPainter& painter, const FieldLayout& layout,
                  const std::vector<FieldLegend>& legends)
{
    painter.save();
    painter.setPen(QPen(inkColor(), std::max(1.0, layout.font / 12.0)));
    painter.setBrush(Qt::NoBrush);
    const int beside = besideTitleLines(layout, legends);
    for (std::size_t i = 0; i < legends.size(); ++i) {
        const QRectF& area = layout.legends[i];
        const QStringList title = legendTitleLines(legends[i].title, area.width(), layout.font);
        const double rim = 0.5 * layout.font;
        if (area.intersects(layout.plot)) // it is read on any colour
            painter.fillRect(area.adjusted(-rim, -rim, 0.0, rim), QColor(255, 255, 255, 200));
        paintTitle(painter, area, layout.font, title);
        paintBar(painter, area, layout.font, legends[i], legends[i].place ? title.size() : beside);
    }
    painter.restore();
}

static void paintArrow(QPainter& painter, const QPointF& tail, double length, const VectorKey& key)
{
    const double size = key.headSize * length;
    const double half = size * std::tan(qDegreesToRadians(key.headAngle));
    const QPointF tip = tail + QPointF(length, 0.0);
    painter.drawLine(tail, tip);
    painter.drawPolyline(QPolygonF({tip + QPointF(-size, -half), tip, tip + QPointF(-size, half)}));
}

void paintVectorKey(QPainter& painter, const FieldLayout& layout, const VectorKey& key,
                    double pixelsPerUnit)
{
    const QRectF area = layout.vectorKey.adjusted(0.0, 0.0, -layout.font, 0.0);
    const double font = layout.font;
    const ReferenceArrow arrow =
        referenceArrow(key.lengthOfOne, area.width() / pixelsPerUnit, key.wanted);
    painter.save();
    painter.setPen(QPen(inkColor(), std::max(1.0, font / 9.0)));
    painter.setFont(plotFont(1.1 * font, true));
    painter.drawText(
        area, Qt::AlignLeft | Qt::AlignTop,
        QFontMetricsF(painter.font()).elidedText(key.title, Qt::ElideRight, area.width()));
    paintArrow(painter, area.topLeft() + QPointF(0.0, 2.4 * font), arrow.length * pixelsPerUnit,
               key);
    painter.setFont(plotFont(font));
    painter.drawText(area, Qt::AlignLeft | Qt::AlignBottom, QString::number(arrow.magnitude));
    painter.restore();
}

} // namespace corvala::plot
