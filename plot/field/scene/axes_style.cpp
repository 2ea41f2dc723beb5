// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/axes_style.h"

#include "host/document/line_map_name.h"

#include <algorithm>

namespace corvala::plot {

static constexpr const style::FieldAxis* kAxes[] = {&style::fieldAxes.x, &style::fieldAxes.y,
                                                    &style::fieldAxes.z};
static constexpr double kUsualFontSize =
    style::entryOf(style::fieldAxes.fontSize).defaultNumber; // percent of the frame height

vtkBoundingBox AxesStyle::seen(const vtkBoundingBox& box) const
{
    double bounds[6];
    box.GetBounds(bounds);
    for (std::size_t axis = 0; axis < ranges.size(); ++axis) {
        if (ranges[axis]) {
            bounds[2 * axis] = ranges[axis]->first;
            bounds[2 * axis + 1] = ranges[axis]->second;
        }
    }
    return vtkBoundingBox(bounds);
}

AxesStyle axesStyleOf(const host::Frame& frame)
{
    const auto valueOf = [&](style::Key key) -> const host::ValueList::Value& {
        return frame.values().get(host::Schema::instance().at(key));
    };
    AxesStyle result;
    for (CvlInt64 number = 1; number <= frame.data()->variableCount(); ++number) {
        const host::Variable& variable = frame.data()->variable(number);
        if (variable.isCoordinate())
            result.titles[static_cast<std::size_t>(variable.component)] =
                QString::fromStdString(host::shownVariableName(frame.data(), number));
    }
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const auto& title = std::get<std::string>(valueOf(kAxes[axis]->title));
        if (!title.empty())
            result.titles[axis] = QString::fromStdString(title);
        const double least = std::get<double>(valueOf(kAxes[axis]->rangeMin));
        const double most = std::get<double>(valueOf(kAxes[axis]->rangeMax));
        if (!frame.isOn(kAxes[axis]->automaticRange) && least < most)
            result.ranges[axis] = {least, most};
    }
    result.fontScale = std::get<double>(valueOf(style::fieldAxes.fontSize)) / kUsualFontSize;
    result.hasGrid = frame.isOn(style::fieldAxes.showGrid);
    return result;
}

bool isAxisRange(style::Key value)
{
    return std::any_of(std::begin(kAxes), std::end(kAxes), [value](const style::FieldAxis* axis) {
        return value == axis->automaticRange || value == axis->rangeMin || value == axis->rangeMax;
    });
}

} // namespace corvala::plot
