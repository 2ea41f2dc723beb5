// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/value_colors.h"

#include "plot/field/geometry/color_map.h"

#include <vtkCellArray.h>
#include <vtkCellArrayIterator.h>
#include <vtkFloatArray.h>
#include <vtkPolyData.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace corvala::plot {

/// Rows of a flood texture: bands below, the colour of no value above.
static constexpr double kBandRow = 0.25;
static constexpr double kNoValueRow = 0.75;

vtkSmartPointer<vtkFloatArray> floodCoordinates(vtkDoubleArray& values, int group,
                                                const ContourGroups& groups)
{
    auto result = vtkSmartPointer<vtkFloatArray>::New();
    result->SetName("value");
    result->SetNumberOfComponents(2);
    result->SetNumberOfTuples(values.GetNumberOfTuples());
    for (vtkIdType i = 0; i < values.GetNumberOfTuples(); ++i) {
        const double value = values.GetValue(i);
        const bool isValue = std::isfinite(value);
        result->SetTuple2(i, isValue ? groups.coordinate(group, value) : 0.0,
                          isValue ? kBandRow : kNoValueRow);
    }
    return result;
}

void placeAmongNeighbours(vtkFloatArray& places, vtkPolyData& surface)
{
    const auto isValue = [&](vtkIdType point) {
        return places.GetTypedComponent(point, 1) < (kBandRow + kNoValueRow) / 2;
    };
    vtkIdType known = 0;
    while (known < places.GetNumberOfTuples() && isValue(known))
        ++known;
    if (known == places.GetNumberOfTuples())
        return;
    std::map<vtkIdType, std::pair<double, int>> sums;
    const auto faces = vtk::TakeSmartPointer(surface.GetPolys()->NewIterator());
    for (faces->GoToFirstCell(); !faces->IsDoneWithTraversal(); faces->GoToNextCell()) {
        vtkIdType count = 0;
        const vtkIdType* points = nullptr;
        faces->GetCurrentCell(count, points);
        const auto valued = std::count_if(points, points + count, isValue);
        if (valued == 0 || valued == count)
            continue;
        double sum = 0.0;
        for (vtkIdType i = 0; i < count; ++i)
            sum += isValue(points[i]) ? places.GetTypedComponent(points[i], 0) : 0.0;
        for (vtkIdType i = 0; i < count; ++i) {
            if (isValue(points[i]))
                continue;
            auto& [all, number] = sums[points[i]];
            all += sum;
            number += static_cast<int>(valued);
        }
    }
    for (const auto& [point, sum] : sums)
        places.SetTypedComponent(point, 0, static_cast<float>(sum.first / sum.second));
}

static vtkSmartPointer<vtkUnsignedCharArray> makeColors(vtkIdType count)
{
    auto colors = vtkSmartPointer<vtkUnsignedCharArray>::New();
    colors->SetName("color");
    colors->SetNumberOfComponents(3);
    colors->SetNumberOfTuples(count);
    return colors;
}

static void setColor(vtkUnsignedCharArray& colors, vtkIdType position, const host::Rgb& color)
{
    colors.SetTypedComponent(position, 0, color.red);
    colors.SetTypedComponent(position, 1, color.green);
    colors.SetTypedComponent(position, 2, color.blue);
}

vtkSmartPointer<vtkDataArray> groupColors(vtkDoubleArray& values, int group,
                                          const ContourGroups& groups)
{
    const ContourLevels& levels = groups.levels(group);
    auto colors = makeColors(values.GetNumberOfTuples());
    for (vtkIdType i = 0; i < values.GetNumberOfTuples(); ++i) {
        const double value = values.GetValue(i);
        setColor(*colors, i,
                 std::isfinite(value) ? scaleColor(groups.colors(group), levels.fraction(value))
                                      : noValueColor());
    }
    return colors;
}

vtkSmartPointer<vtkDataArray> noValueColors(vtkIdType count)
{
    auto colors = makeColors(count);
    for (vtkIdType i = 0; i < count; ++i)
        setColor(*colors, i, noValueColor());
    return colors;
}

vtkSmartPointer<vtkDataArray>
channelColors(const std::array<vtkSmartPointer<vtkDoubleArray>, 3>& channels,
              const ContourGroups& groups)
{
    const auto part = [&](std::size_t channel, vtkIdType position) {
        const int group = ContourGroups::kRed + static_cast<int>(channel);
        const double range = groups.maximum(group) - groups.minimum(group);
        const double above = channels[channel]->GetValue(position) - groups.minimum(group);
        const double share = range > 0.0 ? std::clamp(above / range, 0.0, 1.0) : 0.5;
        return static_cast<std::uint8_t>(std::lround(255.0 * share));
    };
    const vtkIdType count = channels[0]->GetNumberOfTuples();
    auto colors = makeColors(count);
    for (vtkIdType i = 0; i < count; ++i) {
        const bool isValue =
            std::all_of(channels.begin(), channels.end(),
                        [i](const auto& channel) { return std::isfinite(channel->GetValue(i)); });
        setColor(*colors, i,
                 isValue ? host::Rgb {part(0, i), part(1, i), part(2, i)} : noValueColor());
    }
    return colors;
}

} // namespace corvala::plot
