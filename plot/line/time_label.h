// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/time_text.h"
#include "plot/line/line_chart.h"

namespace corvala::plot {

/// The solution time over a chart, drawn by any painter.
class TimeLabel : public QCPLayerable
{
public:
    explicit TimeLabel(QCustomPlot& plot);

    /// The chart must live until another one is set.
    void setChart(const LineChart& chart) { m_chart = &chart; }
    /// `font` is the height of the text in pixels.
    void set(const TimeText& time, double font);
    /// Its upper left corner in percent of the plot; nothing without a text.
    std::optional<QPointF> corner() const;

protected:
    void applyDefaultAntialiasingHint(QCPPainter*) const override { }
    void draw(QCPPainter* painter) override;

private:
    QRectF place() const;

    QCustomPlot& m_plot;
    const LineChart* m_chart = nullptr;
    TimeText m_time;
    double m_font = 12.0;
};

} // namespace corvala::plot
