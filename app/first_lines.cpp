// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/first_lines.h"

#include <vtkDataArray.h>
#include <vtkDataSet.h>
#include <vtkPointData.h>
#include <vtkPointSet.h>

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

namespace {

/// How the values of a column follow each other.
class Course
{
public:
    explicit Course(vtkDataArray& values);

    /// One way, but for jumps back.
    bool goesInCycles() const
    {
        const int back = std::min(m_ups, m_downs);
        return m_repeats == 0 && back > 0 && back == m_jumps && 2 * back <= m_steps;
    }
    /// Stays the same for some rows, and then goes on.
    bool goesInSteps() const
    {
        return m_steps > 0 && std::min(m_ups, m_downs) == 0 && 2 * m_repeats > m_steps;
    }
    /// A line through the values would go to and fro, or up and down in the same place.
    bool isScattered() const
    {
        constexpr int kLeastSteps = 9;
        const bool isOften = 10 * m_turns > m_steps || 4 * m_repeats > m_steps;
        return m_steps >= kLeastSteps && (goesInCycles() || isOften);
    }

private:
    void take(double step, double range);

    int m_steps = 0;
    int m_ups = 0;
    int m_downs = 0;
    int m_repeats = 0;
    int m_turns = 0;
    int m_jumps = 0; ///< over more than half of the range
    int m_way = 0; ///< of the last step
};

} // namespace

Course::Course(vtkDataArray& values)
{
    constexpr vtkIdType kLookedAt = 100'000;
    const double range = rangeOf(values).size();
    std::optional<double> before;
    for (vtkIdType i = 0; i < std::min(values.GetNumberOfTuples(), kLookedAt); ++i) {
        const double value = values.GetComponent(i, 0);
        if (!std::isfinite(value))
            continue;
        if (before)
            take(value - *before, range);
        before = value;
    }
}

void Course::take(double step, double range)
{
    const int way = (step > 0) - (step < 0);
    ++m_steps;
    m_ups += way > 0 ? 1 : 0;
    m_downs += way < 0 ? 1 : 0;
    m_repeats += way == 0 ? 1 : 0;
    m_turns += way != 0 && m_way != 0 && way != m_way ? 1 : 0;
    m_jumps += 2 * std::abs(step) > range ? 1 : 0;
    m_way = way != 0 ? way : m_way;
}

/// The first of some columns that goes one way, or else in cycles, or else the first.
static const Column& abscissaOf(const std::vector<Column>& columns)
{
    constexpr std::size_t kTried = 20;
    const auto end =
        columns.begin() + static_cast<std::ptrdiff_t>(std::min(columns.size(), kTried));
    const auto first = [&](auto isIt) { return std::find_if(columns.begin(), end, isIt); };
    const auto tries = {
        first([](const Column& column) { return column.kind == host::VariableKind::Instant; }),
        first([](const Column& column) { return goesOneWay(*column.values); }),
        first([](const Column& column) { return Course(*column.values).goesInCycles(); })};
    const auto found = std::find_if(tries.begin(), tries.end(),
                                    [end](const auto& column) { return column != end; });
    return found != tries.end() ? **found : columns.front();
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
    const bool isScattered = !goesOneWay(*x.values) && Course(*x.values).isScattered();
    std::optional<Range> first;
    for (const Column& y : columns) {
        const bool isOther = y.variable != x.variable && y.kind == host::VariableKind::Number;
        const bool numbersCycles = isScattered && Course(*y.values).goesInSteps();
        if (!isOther || numbersCycles || static_cast<int>(lines.size()) == most)
            continue;
        const Range range = rangeOf(*y.values);
        first = first.value_or(range);
        lines.push_back({zone, x.variable, y.variable, fit(*first, range) ? 1 : 2, isScattered});
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

bool havePlaces(const host::DataSet& data)
{
    const bool hasCoordinates =
        std::any_of(data.variables.begin(), data.variables.end(),
                    [](const host::Variable& variable) { return variable.isCoordinate(); });
    return !hasCoordinates && vtkPointSet::SafeDownCast(data.geometry(1));
}

PlotType_e firstPlotType(const host::DataSet& data, const std::vector<FirstLine>& lines)
{
    const auto values = std::count_if(
        data.variables.begin(), data.variables.end(), [](const host::Variable& variable) {
            return !variable.isConstant && variable.kind == host::VariableKind::Number;
        });
    const bool areScattered = !lines.empty()
        && std::all_of(lines.begin(), lines.end(),
                       [](const FirstLine& line) { return line.isScattered; });
    const bool isField = areScattered && values > (data.isPlanar ? 2 : 3) && havePlaces(data);
    if (!isField)
        return PlotType_LineXY;
    return data.isPlanar ? PlotType_Field2D : PlotType_Field3D;
}

} // namespace corvala::app
