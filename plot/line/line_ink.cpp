// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_ink.h"

#include <QElapsedTimer>
#include <QPainter>

#include <algorithm>

namespace corvala::plot {

LineInk::LineInk() = default;
LineInk::~LineInk() = default;

void LineInk::set(const ShapeKey& key, std::shared_ptr<const ChartShape> shape,
                  const LineAxes& axes)
{
    m_drawing.reset(); // which may be of the shape that goes
    m_shapes[key] = {std::move(shape), axes};
    ++m_changes;
    restart();
}

void LineInk::remove(const ShapeKey& key)
{
    const auto found = m_shapes.find(key);
    if (found == m_shapes.end())
        return;
    m_drawing.reset();
    m_shapes.erase(found);
    ++m_changes;
    restart();
}

void LineInk::setLayers(std::uint32_t layers)
{
    if (std::exchange(m_layers, layers) == layers)
        return;
    ++m_changes;
    restart();
}

void LineInk::restart()
{
    m_drawing.reset();
    m_hasWork = m_isStale = !m_picture.isNull();
    m_isCancelled = false;
    m_done = 0;
}

void LineInk::wipe()
{
    m_isStale = false;
    m_mask.clear();
    m_picture.fill(Qt::transparent);
    m_current = {};
    m_simplified = 0;
}

void LineInk::setView(const ChartView& view, const QSize& size, double ratio)
{
    if (view == m_view && size == m_picture.size() && ratio == m_ratio)
        return;
    m_view = view;
    m_ratio = ratio;
    if (size != m_picture.size()) {
        m_picture = QImage(size, QImage::Format_ARGB32_Premultiplied);
        m_picture.fill(Qt::transparent);
        m_mask.resize(size);
    }
    restart();
}

/// Begins with the next shape that is shown; false when there is none.
bool LineInk::beginNext()
{
    auto next = m_shapes.upper_bound(m_current);
    while (next != m_shapes.end() && !isShown(next->first))
        ++next;
    if (next == m_shapes.end())
        return false;
    m_current = next->first;
    const Placed& placed = next->second;
    m_drawing = placed.shape->begin({m_picture, m_mask, m_ratio}, m_view.along(placed.axes));
    m_simplified += m_drawing->isSimplified() ? 1 : 0;
    return true;
}

bool LineInk::advance(int milliseconds)
{
    QElapsedTimer clock;
    clock.start();
    if (m_isStale)
        wipe();
    while (hasWork()) {
        if (!m_drawing && !beginNext()) {
            m_hasWork = false;
            break;
        }
        if (!m_drawing->step()) {
            m_drawing.reset();
            ++m_done;
        }
        if (milliseconds >= 0 && clock.elapsed() >= milliseconds)
            break;
    }
    return hasWork();
}

std::int64_t LineInk::shownCount() const
{
    std::int64_t count = 0;
    for (const auto& [key, placed] : m_shapes)
        count += isShown(key) ? 1 : 0;
    return count;
}

std::pair<std::int64_t, std::int64_t> LineInk::progress() const
{
    constexpr int kPieces = 100;
    const auto part = m_drawing ? static_cast<std::int64_t>(kPieces * m_drawing->share()) : 0;
    return {kPieces * m_done + part, kPieces * shownCount()};
}

QImage LineInk::picture() const
{
    QImage picture = m_picture;
    if (m_drawing)
        m_drawing->addTo(picture);
    return picture;
}

bool LineInk::isBlank() const
{
    if (hasWork() || m_isCancelled || m_picture.isNull())
        return false;
    for (int y = 0; y < m_picture.height(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(m_picture.constScanLine(y));
        if (std::any_of(row, row + m_picture.width(), [](QRgb color) { return color != 0; }))
            return false;
    }
    return true;
}

std::int64_t LineInk::missingCount() const
{
    return m_isCancelled ? shownCount() - m_done : 0;
}

void LineInk::paint(QPainter& painter, const ChartView& view) const
{
    for (const auto& [key, placed] : m_shapes)
        if (isShown(key))
            placed.shape->paint(painter, view.along(placed.axes));
}

std::int64_t LineInk::mapAt(const ChartView& view, const QPointF& pixel, double tolerance) const
{
    std::int64_t nearest = 0;
    for (const auto& [key, placed] : m_shapes) {
        if (!isShown(key))
            continue;
        const double distance = placed.shape->distance(view.along(placed.axes), pixel, tolerance);
        if (distance < tolerance) {
            nearest = key.map;
            tolerance = distance;
        }
    }
    return nearest;
}

} // namespace corvala::plot
