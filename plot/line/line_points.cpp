// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_points.h"

#include "host/document/frame.h"
#include "plot/common/zone_values.h"

#include <vtkDataArray.h>

#include <algorithm>
#include <limits>
#include <numeric>
#include <tuple>

namespace corvala::plot {

static constexpr const auto& kMap = style::lineMap;

bool LineRecipe::operator==(const LineRecipe& other) const
{
    const auto areEqual = [](const IndexPart& one, const IndexPart& another) {
        return one.tied() == another.tied();
    };
    return std::tie(zone, first, second, sortedBy, error, varying)
        == std::tie(other.zone, other.first, other.second, other.sortedBy, other.error,
                    other.varying)
        && std::equal(parts.begin(), parts.end(), other.parts.begin(), areEqual);
}

static std::int64_t sortVariable(const host::Frame& frame, CvlInt64 map, const LineRecipe& recipe)
{
    const bool isSwapped =
        frame.lineInteger(kMap.assign.functionDependency, map) == FunctionDependency_XofY;
    // A spline brings its points into order itself.
    if (frame.lineInteger(kMap.curves.curveType, map) == CurveType_Spline)
        return 0;
    switch (frame.lineInteger(kMap.assign.sort, map)) {
    case LineMapSort_ByIndependentVar: return isSwapped ? recipe.second : recipe.first;
    case LineMapSort_ByDependentVar: return isSwapped ? recipe.first : recipe.second;
    case LineMapSort_BySpecificVar: return frame.lineInteger(kMap.assign.sortVar, map);
    default: return 0;
    }
}

LineRecipe recipeOf(const host::Frame& frame, CvlInt64 map)
{
    const bool isPolar = frame.plotType() == PlotType_LinePolar;
    const auto& keys = kMap.assign;
    LineRecipe recipe;
    recipe.zone = frame.lineInteger(keys.zone, map);
    recipe.first = frame.lineInteger(isPolar ? keys.thetaAxisVar : keys.xAxisVar, map);
    recipe.second = frame.lineInteger(isPolar ? keys.rAxisVar : keys.yAxisVar, map);
    recipe.sortedBy = sortVariable(frame, map, recipe);
    if (frame.lineInteger(kMap.errorBars.show, map) != 0)
        recipe.error = frame.lineInteger(kMap.errorBars.var, map);
    recipe.varying = frame.lineInteger(kMap.indices.ijkLines, map);
    const style::IndexRanges& ranges = kMap.indices.ranges;
    const style::IndexRange* const all[] = {&ranges.iRange, &ranges.jRange, &ranges.kRange};
    for (std::size_t axis = 0; axis < recipe.parts.size(); ++axis) {
        recipe.parts[axis] = {frame.lineInteger(all[axis]->min, map),
                              frame.lineInteger(all[axis]->max, map),
                              frame.lineInteger(all[axis]->skip, map)};
    }
    return recipe;
}

/// The values of each index that take part, from 0; one value where the zone has but one.
static std::vector<std::int64_t> chosen(const IndexPart& part, std::int64_t size)
{
    const std::int64_t end = part.end <= 0 ? size : std::min(part.end, size);
    std::vector<std::int64_t> values;
    for (std::int64_t value = std::max<std::int64_t>(part.begin, 1); value <= end;
         value += std::max<std::int64_t>(part.step, 1))
        values.push_back(value - 1);
    return values;
}

/// Values of the zone along each index; those of a zone without an order count along the first.
static std::array<std::int64_t, 3> sizesOf(const host::ZoneInfo& zone, host::ValueLocation location,
                                           std::int64_t count)
{
    std::array<std::int64_t, 3> sizes {{count, 1, 1}};
    if (zone.ordered) {
        const bool areCells = location == host::ValueLocation::Cells;
        for (std::size_t axis = 0; axis < sizes.size(); ++axis)
            sizes[axis] = std::max<std::int64_t>(zone.dimensions[axis] - (areCells ? 1 : 0), 1);
    }
    return sizes;
}

/// Fills the places of the runs.
static void follow(const LineRecipe& recipe, bool isOrdered, LinePoints& points)
{
    const std::array<std::int64_t, 3>& sizes = points.sizes;
    std::array<std::vector<std::int64_t>, 3> along;
    for (std::size_t axis = 0; axis < along.size(); ++axis)
        along[axis] =
            chosen(isOrdered || axis == 0 ? recipe.parts[axis] : IndexPart(), sizes[axis]);
    const std::array<std::int64_t, 3> strides {{1, sizes[0], sizes[0] * sizes[1]}};
    const auto inner = static_cast<std::size_t>(isOrdered ? recipe.varying : 0);
    const std::size_t middle = inner == 0 ? 1 : 0;
    const std::size_t outer = inner == 2 ? 1 : 2;
    for (const std::int64_t slow : along[outer]) {
        for (const std::int64_t mid : along[middle]) {
            for (const std::int64_t fast : along[inner]) {
                points.sources.push_back(slow * strides[outer] + mid * strides[middle]
                                         + fast * strides[inner]);
            }
            points.runEnds.push_back(points.sources.size());
        }
    }
}

static std::vector<double> gathered(vtkDataArray& values, const std::vector<std::int64_t>& places)
{
    std::vector<double> result(places.size(), std::numeric_limits<double>::quiet_NaN());
    for (std::size_t i = 0; i < places.size(); ++i)
        if (places[i] < values.GetNumberOfTuples())
            result[i] = values.GetComponent(places[i], 0);
    return result;
}

std::array<std::int64_t, 3> indicesOf(const LinePoints& points, std::int64_t source)
{
    std::array<std::int64_t, 3> indices {};
    for (std::size_t axis = 0; axis < indices.size(); ++axis) {
        const std::int64_t size = std::max<std::int64_t>(points.sizes[axis], 1);
        if (size > 1)
            indices[axis] = source % size + 1;
        source /= size;
    }
    return indices;
}

/// Every run in the order of some values; what is not a number comes last.
static void sortRuns(LinePoints& points, const std::vector<double>& values)
{
    std::vector<std::size_t> order(values.size());
    std::iota(order.begin(), order.end(), std::size_t {0});
    std::size_t begin = 0;
    for (const std::size_t end : points.runEnds) {
        std::stable_sort(order.begin() + static_cast<std::ptrdiff_t>(begin),
                         order.begin() + static_cast<std::ptrdiff_t>(end),
                         [&values](std::size_t one, std::size_t other) {
                             if (std::isnan(values[one]) || std::isnan(values[other]))
                                 return !std::isnan(values[one]) && std::isnan(values[other]);
                             return values[one] < values[other];
                         });
        begin = end;
    }
    std::vector<std::int64_t> sorted;
    sorted.reserve(order.size());
    for (const std::size_t place : order)
        sorted.push_back(points.sources[place]);
    points.sources = std::move(sorted);
}

static host::ValueLocation locationOf(const host::DataSet& data, const LineRecipe& recipe)
{
    for (const std::int64_t variable :
         {recipe.first, recipe.second, recipe.sortedBy, recipe.error}) {
        const host::ZoneValues values = data.values(recipe.zone, variable);
        if (values.array && values.location == host::ValueLocation::Cells)
            return host::ValueLocation::Cells;
    }
    return host::ValueLocation::Points;
}

LinePoints linePoints(const host::DataSet& data, const LineRecipe& recipe)
{
    LinePoints points;
    points.location = locationOf(data, recipe);
    const auto first = zoneValues(data, recipe.zone, recipe.first, points.location);
    const auto second = zoneValues(data, recipe.zone, recipe.second, points.location);
    if (!first || !second)
        return {};
    const host::ZoneInfo& zone = data.zone(recipe.zone);
    points.sizes = sizesOf(zone, points.location, first->GetNumberOfTuples());
    follow(recipe, zone.ordered, points);
    if (recipe.sortedBy > 0)
        sortRuns(points, valuesAt(data, recipe, points, recipe.sortedBy));
    points.first = gathered(*first, points.sources);
    points.second = gathered(*second, points.sources);
    return points;
}

std::vector<double> valuesAt(const host::DataSet& data, const LineRecipe& recipe,
                             const LinePoints& points, std::int64_t variable)
{
    const host::ZoneValues known = data.values(recipe.zone, variable);
    const bool isToMean = points.location == host::ValueLocation::Cells;
    if (!known.array || (known.location != points.location && !isToMean))
        return std::vector<double>(points.sources.size(), std::numeric_limits<double>::quiet_NaN());
    return gathered(*zoneValues(data, recipe.zone, variable, points.location), points.sources);
}

Polyline inPlane(const LinePoints& points, const LinePlane& plane)
{
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    std::vector<double> x;
    std::vector<double> y;
    x.reserve(points.size() + points.runEnds.size());
    y.reserve(points.size() + points.runEnds.size());
    std::size_t begin = 0;
    for (const std::size_t end : points.runEnds) {
        if (begin > 0) {
            x.push_back(kNone);
            y.push_back(kNone);
        }
        for (std::size_t point = begin; point < end; ++point) {
            const auto place = plane.place(points.first[point], points.second[point]);
            x.push_back(place.first);
            y.push_back(place.second);
        }
        begin = end;
    }
    return {std::move(x), std::move(y)};
}

} // namespace corvala::plot
