// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/document/document.h"
#include "plot/common/line_patterns.h"
#include "plot/line/chart_layer.h"
#include "plot/line/line_looks.h"

#include <utility>

namespace corvala::plot {

static constexpr const auto& kMap = style::lineMap;

static LineStroke strokeOf(const ShownLine& line)
{
    const auto number = [&line](style::Key key) { return line.frame.lineInteger(key, line.map); };
    const auto real = [&line](style::Key key) { return line.frame.lineReal(key, line.map); };
    const host::Rgb color = host::Document::instance().color(number(kMap.lines.color));
    LineStroke stroke;
    stroke.color = QColor(color.red, color.green, color.blue);
    stroke.width = linePixels(real(kMap.lines.lineThickness), line.height);
    const int pattern = number(kMap.lines.linePattern);
    const double period = real(kMap.lines.patternLength) / 100.0 * line.height;
    if (pattern != LinePattern_Solid)
        for (const double part : patternStrokes(pattern))
            stroke.pattern.push_back(part * period);
    return stroke;
}

const ChartLayer kChartLines {
    [](LineChart& chart, bool isVisible) { chart.setLinesVisible(isVisible); },
    [](LineChart& chart, CvlInt64 map, LineData data) { chart.setLine(map, std::move(data)); },
    [](LineChart& chart, const ShownLine& line) {
        chart.ink().setLook(line.map, strokeOf(line), axesOf(line.frame, line.map));
    },
    [](LineChart& chart, CvlInt64 map) { chart.removeLine(map); }};

} // namespace corvala::plot
