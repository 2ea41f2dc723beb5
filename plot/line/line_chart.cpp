// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_chart.h"

#include "plot/common/axis_ticks.h"
#include "plot/line/broken_text.h"
#include "plot/line/cover_grid.h"

#include <cmath>

namespace corvala::plot {

/// What the plot knows of the shapes: something to draw between its grid and its axes.
class LineChart::Sheet : public QCPLayerable
{
public:
    Sheet(QCustomPlot& plot, LineChart& chart)
        : QCPLayerable(&plot, QStringLiteral("main"))
        , m_chart(chart)
    {
    }

protected:
    void applyDefaultAntialiasingHint(QCPPainter*) const override { }
    QRect clipRect() const override { return m_chart.outline().boundingRect().toAlignedRect(); }
    void draw(QCPPainter* painter) override { m_chart.draw(*painter); }

private:
    LineChart& m_chart;
};

struct LineChart::Cover
{
    ChartView view;
    std::int64_t changes; ///< of the ink
    CoverGrid grid;
};

BrokenTitle::BrokenTitle(QCustomPlot& plot)
    : QCPTextElement(&plot)
{
}

void BrokenTitle::set(const QString& text, const QFont& font)
{
    m_whole = text;
    setFont(font);
}

void BrokenTitle::update(UpdatePhase phase)
{
    constexpr double kShare = 0.95; // of the width
    if (phase == upPreparation) {
        const int gap = QFontMetrics(font()).height() / 4;
        setMargins({gap, gap, gap, gap});
        setText(brokenText(m_whole, font(), kShare * parentPlot()->viewport().width()));
    }
    QCPTextElement::update(phase);
}

LineChart::LineChart(QCustomPlot& plot)
    : m_plot(plot)
    , m_sheet(std::make_unique<Sheet>(plot, *this))
{
}

LineChart::~LineChart() = default;

void LineChart::takeTitle(const ChartLook& look)
{
    constexpr double kTimesLarger = 1.2;
    QCPLayoutGrid& layout = *m_plot.plotLayout();
    layout.setRowSpacing(look.share(0.23));
    if (!m_title && !look.title.isEmpty()) {
        m_title = new BrokenTitle(m_plot);
        layout.insertRow(0);
        layout.addElement(0, 0, m_title);
    } else if (m_title && look.title.isEmpty()) {
        layout.remove(std::exchange(m_title, nullptr));
        layout.simplify();
    }
    if (m_title)
        m_title->set(look.title, plotFont(kTimesLarger * look.font, true));
}

int LineChart::titleHeight() const
{
    return m_title ? m_title->minimumOuterSizeHint().height() + m_plot.plotLayout()->rowSpacing()
                   : 0;
}

ChartView LineChart::seenIn(const QRectF& place) const
{
    ChartView seen = view();
    seen.visible = {place.left(), place.right(), place.top(), place.bottom()};
    return seen;
}

void LineChart::draw(QCPPainter& painter)
{
    if (m_beforeDrawing)
        m_beforeDrawing();
    const QPainterPath shape = outline();
    const QRect place = shape.boundingRect().toAlignedRect();
    const ChartView seen = seenIn(place);
    painter.setClipPath(shape, Qt::IntersectClip);
    if (painter.modes().testFlag(QCPPainter::pmVectorized)) {
        m_ink.paint(painter, seen);
        return;
    }
    const double ratio = painter.device()->devicePixelRatioF();
    const QSize size(static_cast<int>(std::ceil(place.width() * ratio)),
                     static_cast<int>(std::ceil(place.height() * ratio)));
    m_ink.setView(seen.seenFrom(place.topLeft(), ratio), size, ratio);
    if (m_ink.isStale())
        m_ink.advance(m_patience);
    QImage picture = m_ink.picture();
    picture.setDevicePixelRatio(ratio);
    painter.drawImage(place.topLeft(), picture);
}

/// What is covered of a view, as long as shapes and view stay.
const CoverGrid& LineChart::cover()
{
    const ChartView seen = seenIn(area());
    if (m_cover && m_cover->view == seen && m_cover->changes == m_ink.changeCount())
        return m_cover->grid;
    m_cover = std::make_unique<Cover>(Cover {seen, m_ink.changeCount(), CoverGrid(area())});
    for (const auto& [key, placed] : m_ink.shapes())
        if (m_ink.isShown(key) && key.layer != ShapeKey::kMarks)
            placed.shape->cover(m_cover->grid, seen.along(placed.axes));
    coverTexts(m_cover->grid);
    return m_cover->grid;
}

bool LineChart::seesSomething() const
{
    const ChartView seen = seenIn(outline().boundingRect());
    bool isEmpty = true;
    for (const auto& [key, placed] : m_ink.shapes()) {
        const LineBox bounds = placed.shape->bounds();
        if (!m_ink.isShown(key) || bounds.isEmpty())
            continue;
        isEmpty = false;
        if (seen.along(placed.axes).pixels(bounds).meets(seen.visible))
            return !m_ink.isBlank(); // the inside of a box may be empty
    }
    return isEmpty;
}

int LineChart::hiddenBy(const QRectF& box)
{
    return cover().count(box);
}

std::int64_t LineChart::mapAt(const QPointF& pixel, double tolerance)
{
    const QPainterPath shape = outline();
    return shape.contains(pixel) ? m_ink.mapAt(seenIn(shape.boundingRect()), pixel, tolerance) : 0;
}

} // namespace corvala::plot
