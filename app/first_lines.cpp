// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/first_lines.h"

#include <vtkDataArray.h>
#include <vtkDataSet.h>
#include <vtkPointData.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace corvala::app {

static constexpr int kMostLines = 8; ///< of a zone
static constexpr int kMostZones = 50;
static constexpr double kManyTimes = 30.0; ///< as large: too much for one axis

namespace {

/// What decides on the part that a column plays.
struct Column
{
    int variable;
    vtkDataArray* values;
    host::VariableKind kind;
};

/// The largest and the smallest of the values that are numbers.
struct Range
{
    double minimum = 0.0;
    double maximum = 0.0;
    double size() const { return maximum - minimum; }
};

} // namespace

static std::vector<Column> columnsOf(const host::DataSet& data, vtkDataSet& zone)
{
    std::vector<Column> columns;
    for (int number = 1; number <= data.variableCount(); ++number) {
        const host::Variable& variable = data.variable(number);
        vtkDataArray* const values = zone.GetPointData()->GetArray(variable.array.c_str());
        const bool isWords = variable.kind == host::VariableKind::Words;
        if (values && values->GetNumberOfComponents() == 1 && !variable.isConstant && !isWords)
            columns.push_back({number, values, variable.kind});
    }
    return columns;
}

/// Every value is beyond the one before; those that are missing do not count.
static bool goesOneWay(vtkDataArray& values)
{
    std::optional<double> before;
    int way = 0;
    for (vtkIdType i = 0; i < values.GetNumberOfTuples(); ++i) {
        const double value = values.GetComponent(i, 0);
        if (!std::isfinite(value))
            continue;
        const int step = before ? (value > *before) - (value < *before) : way;
        if (before && (step == 0 || (way != 0 && step != way)))
            return false;
        way = step;
        before = value;
    }
    return way != 0;
}

static const Column& abscissaOf(const std::vector<Column>& columns)
{
    constexpr std::size_t kTried = 20;
    const auto end =
        columns.begin() + static_cast<std::ptrdiff_t>(std::min(columns.size(), kTried));
    const auto instants = std::find_if(columns.begin(), end, [](const Column& column) {
        return column.kind == host::VariableKind::Instant;
    });
    if (instants != end)
        return *instants;
    const auto found = std::find_if(
        columns.begin(), end, [](const Column& column) { return goesOneWay(*column.values); });
    return found != end ? *found : columns.front();
}

static Range rangeOf(vtkDataArray& values)
{
    std::optional<Range> range;
    for (vtkIdType i = 0; i < values.GetNumberOfTuples(); ++i) {
        const double value = values.GetComponent(i, 0);
        if (!std::isfinite(value))
            continue;
        if (!range)
            range = Range {value, value};
        range->minimum = std::min(range->minimum, value);
        range->maximum = std::max(range->maximum, value);
    }
    return range.value_or(Range());
}

/// Whether both can be told from a straight line along the same axis.
static bool fit(const Range& one, const Range& other)
{
    const double both = std::max(one.maximum, other.maximum) - std::min(one.minimum, other.minimum);
    return std::min(one.size(), other.size()) * kManyTimes >= both;
}

static std::vector<FirstLine> linesOf(const std::vector<Column>& columns, int zone, int most)
{
    std::vector<FirstLine> lines;
    const Column& x = abscissaOf(columns);
    std::optional<Range> first;
    for (const Column& y : columns) {
        const bool isOther = y.variable != x.variable && y.kind == host::VariableKind::Number;
        if (!isOther || static_cast<int>(lines.size()) == most)
            continue;
        const Range range = rangeOf(*y.values);
        first = first.value_or(range);
        lines.push_back({zone, x.variable, y.variable, fit(*first, range) ? 1 : 2});
    }
    return lines;
}

std::vector<FirstLine> firstLines(const host::DataSet& data)
{
    std::vector<FirstLine> lines;
    const int zones = static_cast<int>(std::min<std::int64_t>(data.zoneCount(), kMostZones));
    const int most = std::max(1, kMostLines / std::max(1, zones));
    for (int number = 1; number <= zones; ++number) {
        const vtkSmartPointer<vtkDataSet> zone = data.geometry(number);
        const std::vector<Column> columns = zone ? columnsOf(data, *zone) : std::vector<Column>();
        if (columns.empty())
            continue;
        const std::vector<FirstLine> some = linesOf(columns, number, most);
        lines.insert(lines.end(), some.begin(), some.end());
    }
    return lines;
}

} // namespace corvala::app
