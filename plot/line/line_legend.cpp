// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_legend.h"

#include "host/document/line_map_name.h"
#include "plot/common/axis_ticks.h"

#include <QCoreApplication>
#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace corvala::plot {

static constexpr std::size_t kMostEntries = 500; ///< that are looked at: more have no room

static std::vector<LegendSample> samplesOf(const ShownLine& line)
{
    std::vector<LegendSample> samples;
    for (std::size_t layer = 0; layer < lineSceneKind().layerCount; ++layer)
        if (isLayerOn(line.frame, layer) && isInLayer(line.frame, line.map, layer))
            if (LegendSample sample = sampleIn(layer, line))
                samples.push_back(std::move(sample));
    return samples;
}

/// Whether a legend would name nothing that a title does not, and tell no maps apart.
static bool isTold(const host::Frame& frame, const host::NumberSet& drawn, const LegendLook& look,
                   const QStringList& told)
{
    if (look.count != 1 || !told.contains(look.entries.front().name))
        return false;
    const std::string name = host::shownLineMapName(frame, look.entries.front().map);
    for (const std::uint32_t map : drawn) {
        const int mode = frame.lineInteger(style::lineMap.assign.showInLegend, map);
        if (isSeen(frame, map)
            && (mode != LegendShow_Auto || host::shownLineMapName(frame, map) != name))
            return false;
    }
    return drawn.contains(static_cast<std::uint32_t>(look.entries.front().map));
}

namespace {

/// The second axes along which lines are drawn, where there are several.
class SecondAxes
{
    Q_DECLARE_TR_FUNCTIONS(corvala::plot::SecondAxes)

public:
    SecondAxes(const host::Frame& frame, const host::NumberSet& drawn, const ChartLook& chart)
        : m_chart(chart)
    {
        for (const std::uint32_t map : drawn)
            if (frame.plotType() != PlotType_LinePolar && isSeen(frame, map))
                m_areUsed[axesOf(frame, map).second] = true;
    }

    /// What tells the axis of a line, behind its name; empty along the first one.
    QString mark(std::size_t axis) const
    {
        const bool isOpposite = m_chart.second[axis].isOpposite;
        std::size_t onSide = 0;
        std::size_t before = 0;
        for (std::size_t i = 0; i < kAxisCount; ++i) {
            before += m_areUsed[i] && i < axis ? 1 : 0;
            onSide += m_areUsed[i] && m_chart.second[i].isOpposite == isOpposite ? 1 : 0;
        }
        if (before == 0)
            return {};
        if (onSide > 1)
            return tr(" (axis Y%1)").arg(axis + 1);
        return isOpposite ? tr(" (right)") : tr(" (left)");
    }

private:
    const ChartLook& m_chart;
    std::array<bool, kAxisCount> m_areUsed {};
};

} // namespace

LegendLook legendLookOf(const host::Frame& frame, const host::NumberSet& drawn, int height,
                        const ChartLook& chart)
{
    LegendLook look;
    if (!frame.isOn(style::lineLegend.show))
        return look;
    look.font = chart.font;
    look.lineWidth = chart.lineWidth;
    look.hasBox = frame.isOn(style::lineLegend.showBox);
    if (!frame.isOn(style::lineLegend.automaticPlace))
        look.corner = {frame.real(style::lineLegend.x), frame.real(style::lineLegend.y)};
    const SecondAxes axes(frame, drawn, chart);
    std::unordered_set<std::string> names;
    for (CvlInt64 map = 1; map <= frame.lineMapCount(); ++map) {
        const int mode = frame.lineInteger(style::lineMap.assign.showInLegend, map);
        const bool isAutomatic = mode == LegendShow_Auto;
        const bool isDrawn = drawn.contains(static_cast<std::uint32_t>(map));
        if (mode == LegendShow_Never || !isSeen(frame, map) || (isAutomatic && !isDrawn))
            continue;
        const bool isKept = look.entries.size() < kMostEntries;
        const std::string name =
            isKept || isAutomatic ? host::shownLineMapName(frame, map) : std::string();
        if (!names.insert(name).second && isAutomatic)
            continue;
        ++look.count;
        if (isKept)
            look.entries.push_back(
                {map, QString::fromStdString(name) + axes.mark(axesOf(frame, map).second),
                 samplesOf({frame, map, height})});
    }
    return isTold(frame, drawn, look, chart.told) ? LegendLook() : look;
}

LineLegend::LineLegend(QCustomPlot& plot)
    : QCPLayerable(&plot, QStringLiteral("legend"))
    , m_plot(plot)
{
}

QSizeF LineLegend::Grid::size() const
{
    return {columns * columnWidth + 2.0 * padding, rows * rowHeight + 2.0 * padding};
}

QRectF LineLegend::Grid::place(const QPointF& corner, int number) const
{
    const QPointF first = corner + QPointF(padding, padding);
    return {first + QPointF(number / rows * columnWidth, number % rows * rowHeight),
            QSizeF(columnWidth, rowHeight)};
}

/// One column, as high as the chart at most, then more of them; long names lose their middle.
LineLegend::Grid LineLegend::layOut() const
{
    constexpr double kShareOfText = 0.3; // of the chart's width
    constexpr double kShareOfAll = 0.6;
    const QRectF area = m_chart->area();
    const QFontMetricsF metrics(plotFont(m_look.font));
    double widest = 0.0;
    for (const LegendEntry& entry : m_look.entries)
        widest = std::max(widest, metrics.horizontalAdvance(entry.name));
    Grid grid;
    grid.padding = 0.5 * m_look.font;
    grid.rowHeight = std::ceil(1.4 * m_look.font);
    grid.sampleWidth = 3.5 * m_look.font;
    grid.columnWidth =
        std::ceil(grid.sampleWidth + m_look.font + std::min(widest, kShareOfText * area.width()));
    const int count = static_cast<int>(m_look.entries.size());
    const double room = area.height() - 2.0 * (grid.padding + m_look.font);
    const int mostRows = std::max(static_cast<int>(room / grid.rowHeight), 1);
    if (count > mostRows) // the rest may have to be told
        grid.columnWidth = std::max(grid.columnWidth, grid.sampleWidth + 6.0 * m_look.font);
    const int mostColumns =
        std::max(static_cast<int>(kShareOfAll * area.width() / grid.columnWidth), 1);
    grid.columns = std::clamp((count + mostRows - 1) / mostRows, 1, mostColumns);
    grid.rows = std::min((count + grid.columns - 1) / grid.columns, mostRows);
    return grid;
}

QRectF LineLegend::leastHiding(const QSizeF& size) const
{
    const QRectF area = m_chart->area();
    const double margin = 0.8 * m_look.font;
    const double right = area.right() - margin - size.width();
    const double lower = area.bottom() - margin - size.height();
    const QPointF upperLeft = area.topLeft() + QPointF(margin, margin);
    QRectF best;
    int least = -1;
    for (const QPointF& corner : {QPointF(right, upperLeft.y()), upperLeft, QPointF(right, lower),
                                  QPointF(upperLeft.x(), lower)}) {
        const QRectF box(corner, size);
        const int hidden = m_chart->hiddenBy(box);
        if (least >= 0 && hidden >= least)
            continue;
        least = hidden;
        best = box;
        if (hidden == 0)
            break;
    }
    return best;
}

/// A box with its outline, which lies half outside, within the plot.
static QRectF within(const QRectF& whole, QRectF box, double outline)
{
    const double before = std::floor(outline / 2.0);
    const double behind = std::ceil(outline / 2.0);
    const QRectF plot = whole.adjusted(before, before, -behind, -behind);
    box.moveLeft(std::max(std::min(box.left(), plot.right() - box.width()), plot.left()));
    box.moveTop(std::max(std::min(box.top(), plot.bottom() - box.height()), plot.top()));
    return box;
}

/// Within the plot, whatever was set.
QRectF LineLegend::place(const QSizeF& size) const
{
    const QRectF plot = m_plot.viewport();
    const auto set = [&plot](const QPointF& corner) {
        return plot.topLeft()
            + QPointF(corner.x() / 100.0 * plot.width(), corner.y() / 100.0 * plot.height());
    };
    QRectF box = m_held ? QRectF(*m_held, size)
        : m_look.corner ? QRectF(set(*m_look.corner), size)
                        : leastHiding(size);
    box = within(plot, box, m_look.lineWidth);
    return {QPointF(std::round(box.left()), std::round(box.top())), size};
}

void LineLegend::drawEntry(QPainter& painter, const LegendEntry& entry, const QRectF& place) const
{
    const QRectF sample(place.topLeft(), QSizeF(m_grid.sampleWidth, place.height()));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    for (const LegendSample& draw : entry.samples)
        draw(painter, sample);
    painter.restore();
    const QRectF text = place.adjusted(m_grid.sampleWidth + 0.5 * m_look.font, 0.0, 0.0, 0.0);
    const double room = text.width() - 0.4 * m_look.font;
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine | Qt::TextDontClip,
                     QFontMetricsF(painter.font()).elidedText(entry.name, Qt::ElideMiddle, room));
}

int LineLegend::drawnCount() const
{
    const int room = std::min(m_grid.places(), static_cast<int>(m_look.entries.size()));
    return m_look.count <= room ? room : room - 1;
}

void LineLegend::draw(QCPPainter* painter)
{
    m_box = {};
    if (m_look.entries.empty() || !m_chart)
        return;
    m_grid = layOut();
    const int drawn = drawnCount();
    if (drawn == 0) // no room for a name
        return;
    m_box = place(m_grid.size());
    painter->save();
    if (m_look.hasBox) {
        painter->setPen(
            QPen(Qt::black, m_look.lineWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter->setBrush(m_paper == Paper::White ? QBrush(Qt::white) : QBrush(Qt::NoBrush));
        painter->drawRect(m_box);
    }
    painter->setPen(Qt::black);
    painter->setBrush(Qt::NoBrush);
    painter->setFont(plotFont(m_look.font));
    for (int i = 0; i < drawn; ++i)
        drawEntry(*painter, m_look.entries[static_cast<std::size_t>(i)],
                  m_grid.place(m_box.topLeft(), i));
    if (m_look.count > drawn) {
        const auto more = static_cast<int>(m_look.count - drawn);
        drawEntry(*painter, {0, QStringLiteral("\u2026 ") + tr("%Ln more", nullptr, more), {}},
                  m_grid.place(m_box.topLeft(), drawn));
    }
    painter->restore();
}

void LineLegend::move(const QPointF& by)
{
    m_held = m_held.value_or(m_box.topLeft()) + by;
    m_box = place(m_box.size());
}

QPointF LineLegend::corner() const
{
    const QRectF plot = m_plot.viewport();
    return {100.0 * (m_box.left() - plot.left()) / std::max(plot.width(), 1.0),
            100.0 * (m_box.top() - plot.top()) / std::max(plot.height(), 1.0)};
}

CvlInt64 LineLegend::mapAt(const QPointF& pixel) const
{
    for (int i = 0; i < drawnCount() && m_box.contains(pixel); ++i)
        if (m_grid.place(m_box.topLeft(), i).contains(pixel))
            return m_look.entries[static_cast<std::size_t>(i)].map;
    return 0;
}

} // namespace corvala::plot
