// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/time_label.h"

#include <algorithm>

namespace corvala::plot {

TimeLabel::TimeLabel(QCustomPlot& plot)
    : QCPLayerable(&plot, QStringLiteral("legend"))
    , m_plot(plot)
{
}

void TimeLabel::set(const TimeText& time, double font)
{
    m_time = time;
    m_font = font;
}

QRectF TimeLabel::place() const
{
    return m_chart ? placeOf(m_time, m_plot.viewport(), m_chart->area(), m_font) : QRectF();
}

std::optional<QPointF> TimeLabel::corner() const
{
    const QRectF plot = m_plot.viewport();
    if (m_time.text.isEmpty() || plot.isEmpty())
        return std::nullopt;
    const QPointF corner = place().topLeft() - plot.topLeft();
    return QPointF(100.0 * corner.x() / plot.width(), 100.0 * corner.y() / plot.height());
}

void TimeLabel::draw(QCPPainter* painter)
{
    paintTimeText(*painter, m_time, place(), m_font);
}

} // namespace corvala::plot
