// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/symbol_marks.h"

#include "plot/line/cover_grid.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace corvala::plot {

namespace {

/// Pictures of a symbol, for places between the pixels.
class Stamps
{
public:
    Stamps(const SymbolStyle& style, double ratio);
    void put(QPainter& painter, const QPointF& pixel) const;

private:
    static constexpr int kPhases = 2; ///< of a pixel, each way
    int m_margin; ///< from the left edge to the middle
    std::array<QImage, kPhases * kPhases> m_images;
};

Stamps::Stamps(const SymbolStyle& style, double ratio)
    : m_margin(static_cast<int>(std::ceil(style.reach() * ratio)) + 1)
{
    const int side = 2 * m_margin + 1;
    for (std::size_t i = 0; i < m_images.size(); ++i) {
        QImage& image = m_images[i];
        image = QImage(side, side, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        const QPointF phase(static_cast<double>(i % kPhases) / kPhases,
                            static_cast<double>(i / kPhases) / kPhases);
        painter.translate(QPointF(m_margin, m_margin) + phase);
        painter.scale(ratio, ratio);
        style.paint(painter, {});
    }
}

void Stamps::put(QPainter& painter, const QPointF& pixel) const
{
    const auto halves = [](double at) { return static_cast<int>(std::floor(kPhases * at)); };
    const int x = halves(pixel.x());
    const int y = halves(pixel.y());
    const auto phase = [](int place) { return ((place % kPhases) + kPhases) % kPhases; };
    const auto whole = [&phase](int place) { return (place - phase(place)) / kPhases; };
    painter.drawImage(whole(x) - m_margin, whole(y) - m_margin,
                      m_images[static_cast<std::size_t>(phase(y) * kPhases + phase(x))]);
}

class SymbolDrawing : public ShapeDrawing
{
public:
    SymbolDrawing(const InkSheet& sheet, const SymbolMarks& marks, const LineView& view)
        : m_sheet(sheet)
        , m_points(marks.points())
        , m_walker(m_points, view, marks.style().reach() * sheet.ratio)
        , m_stamps(marks.style(), sheet.ratio)
        , m_places(view.visible, marks.style().reach() * sheet.ratio)
    {
        m_points.spacing.step *= m_points.spacing.isByDistance ? sheet.ratio : 1.0;
    }

    bool step() override
    {
        constexpr std::size_t kPoints = 2000;
        constexpr int kStamps = 200;
        QPainter painter(&m_sheet.picture);
        for (int i = 0; i < kStamps && !m_walker.isAtEnd(); ++i) {
            if (const auto point = m_walker.nextOf(kPoints)) {
                const QPointF pixel = m_walker.pixel(*point);
                if (m_places.isNew(pixel))
                    m_stamps.put(painter, pixel);
            }
        }
        return !m_walker.isAtEnd();
    }
    double share() const override { return m_walker.share(); }

private:
    InkSheet m_sheet;
    MarkedPoints m_points;
    MarkWalker m_walker;
    Stamps m_stamps;
    MarkPlaces m_places;
};

} // namespace

/// Characters may be wider than high.
double SymbolStyle::reach() const
{
    const QRectF box = path.outline.boundingRect().united(path.details.boundingRect());
    const double most = std::max({1.0, -box.left(), box.right(), -box.top(), box.bottom()});
    return most * size / 2.0 + lineWidth;
}

void SymbolStyle::paint(QPainter& painter, const QPointF& middle) const
{
    // Drawn within its size, whatever the width of the line.
    const double half = std::max((size - (path.isSolid ? 0.0 : lineWidth)) / 2.0, 0.5);
    const QTransform place = QTransform::fromTranslate(middle.x(), middle.y()).scale(half, half);
    const QPainterPath outline = place.map(path.outline);
    if (path.isSolid) {
        painter.fillPath(outline, line);
        return;
    }
    if (fill.isValid())
        painter.fillPath(outline, fill);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(line, lineWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawPath(outline);
    painter.drawPath(place.map(path.details));
}

double SymbolMarks::distance(const LineView& view, const QPointF& pixel, double limit) const
{
    LineView near = view;
    near.visible = {pixel.x() - limit, pixel.x() + limit, pixel.y() - limit, pixel.y() + limit};
    MarkWalker walker(m_points, near, m_style.reach());
    while (const auto point = walker.next()) {
        const QPointF way = walker.pixel(*point) - pixel;
        limit = std::min(limit, std::max(std::hypot(way.x(), way.y()) - m_style.size / 2.0, 0.0));
    }
    return limit;
}

void SymbolMarks::cover(CoverGrid& grid, const LineView& view) const
{
    const auto reach = [this](const LineBox& box) { return box.grown(m_style.reach()); };
    grid.addRuns(*m_points.places, view, reach, [&](std::size_t point) {
        LineBox box;
        const QPointF pixel = view.pixel(places().x(point), places().y(point));
        box.add(pixel.x(), pixel.y());
        grid.add(reach(box));
    });
}

std::unique_ptr<ShapeDrawing> SymbolMarks::begin(const InkSheet& sheet, const LineView& view) const
{
    return std::make_unique<SymbolDrawing>(sheet, *this, view);
}

void SymbolMarks::paint(QPainter& painter, const LineView& view) const
{
    MarkWalker walker(m_points, view, m_style.reach());
    MarkPlaces places(view.visible, m_style.reach());
    while (const auto point = walker.next())
        if (const QPointF pixel = walker.pixel(*point); places.isNew(pixel))
            m_style.paint(painter, pixel);
}

} // namespace corvala::plot
