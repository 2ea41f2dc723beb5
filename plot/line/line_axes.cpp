// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_axes.h"

#include <algorithm>
#include <tuple>

namespace corvala::plot {

LineView ChartView::along(const LineAxes& axes) const
{
    LineView view;
    view.x = first[axes.first];
    view.y = second[axes.second];
    view.visible = visible;
    return view;
}

ChartView ChartView::seenFrom(const QPointF& origin, double ratio) const
{
    ChartView view = *this;
    const auto move = [ratio](double& pixel, double by) { pixel = (pixel - by) * ratio; };
    const auto moveScales = [&](auto& scales, double by) {
        for (LineScale& scale : scales) {
            move(scale.pixel, by);
            scale.scale *= ratio;
        }
    };
    moveScales(view.first, origin.x());
    moveScales(view.second, origin.y());
    for (double* const side : {&view.visible.left, &view.visible.right})
        move(*side, origin.x());
    for (double* const side : {&view.visible.low, &view.visible.high})
        move(*side, origin.y());
    return view;
}

static bool areEqual(const LineScale& one, const LineScale& other)
{
    return std::tie(one.value, one.pixel, one.scale)
        == std::tie(other.value, other.pixel, other.scale);
}

bool ChartView::operator==(const ChartView& other) const
{
    const auto sides = [](const LineBox& box) {
        return std::tie(box.left, box.right, box.low, box.high);
    };
    return sides(visible) == sides(other.visible)
        && std::equal(first.begin(), first.end(), other.first.begin(), areEqual)
        && std::equal(second.begin(), second.end(), other.second.begin(), areEqual);
}

} // namespace corvala::plot
