// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/first_lines.h"

#include "app/error_columns.h"

#include <vtkDataArray.h>
#include <vtkDataSet.h>
#include <vtkPointData.h>
#include <vtkPointSet.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <unordered_map>

namespace corvala::app {

static constexpr std::size_t kMostLines = 8; ///< in all, but for one of each zone
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
    std::unordered_map<std::string, vtkDataArray*> arrays; // VTK looks names up one by one
    for (int i = 0; i < zone.GetPointData()->GetNumberOfArrays(); ++i)
        if (vtkDataArray* const array = zone.GetPointData()->GetArray(i))
            arrays.emplace(array->GetName(), array);
    std::vector<Column> columns;
    for (int number = 1; number <= data.variableCount(); ++number) {
        const host::Variable& variable = data.variable(number);
        const auto array = arrays.find(variable.array);
        const bool isWords = variable.kind == host::VariableKind::Words;
        if (array != arrays.end() && array->second->GetNumberOfComponents() == 1 && !isWords)
            columns.push_back({number, array->second, variable.kind});
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

static std::vector<FirstLine> linesOf(const std::vector<Column>& columns, int zone)
{
    std::vector<FirstLine> lines;
    const Column& x = abscissaOf(columns);
    const bool isScattered = !goesOneWay(*x.values) && Course(*x.values).isScattered();
    std::optional<Range> first;
    for (const Column& y : columns) {
        const bool isOther = y.variable != x.variable && y.kind == host::VariableKind::Number;
        const bool numbersCycles = isScattered && Course(*y.values).goesInSteps();
        if (!isOther || numbersCycles || lines.size() == kMostLines)
            continue;
        const Range range = rangeOf(*y.values);
        first = first.value_or(range);
        lines.push_back({zone, x.variable, y.variable, fit(*first, range) ? 1 : 2, isScattered});
    }
    return lines;
}

namespace {

/// What a zone has to draw.
struct Choice
{
    vtkSmartPointer<vtkDataSet> zone; ///< which has the values
    std::vector<Column> columns; ///< that vary and are no errors
    std::map<int, int> errors; ///< of variables: those of their errors
};

} // namespace

static Choice choiceOf(const host::DataSet& data, int zone)
{
    Choice choice {data.geometry(zone), {}, {}};
    if (!choice.zone)
        return choice;
    const std::vector<Column> columns = columnsOf(data, *choice.zone);
    std::vector<std::string> names;
    for (const Column& column : columns)
        names.push_back(data.variable(column.variable).name);
    std::set<int> left;
    for (const auto& [column, error] : errorColumns(names)) {
        choice.errors[columns[column].variable] = columns[error].variable;
        left.insert(columns[error].variable);
    }
    std::copy_if(columns.begin(), columns.end(), std::back_inserter(choice.columns),
                 [&](const Column& column) {
                     return !data.variable(column.variable).isConstant
                         && left.count(column.variable) == 0;
                 });
    return choice;
}

static std::vector<FirstLine> linesOf(const host::DataSet& data, int zone)
{
    const Choice choice = choiceOf(data, zone);
    if (choice.columns.empty())
        return {};
    std::vector<FirstLine> lines = linesOf(choice.columns, zone);
    for (FirstLine& line : lines)
        if (const auto error = choice.errors.find(line.y); error != choice.errors.end())
            line.error = error->second;
    return lines;
}

/// How many lines each zone has: they take turns while there is room, and each has one at least.
static std::vector<std::size_t> sharesOf(const std::vector<std::vector<FirstLine>>& zones)
{
    std::vector<std::size_t> shares(zones.size(), 0);
    std::size_t room = std::max(kMostLines, zones.size());
    for (std::size_t turn = 0; turn < kMostLines; ++turn)
        for (std::size_t i = 0; i < zones.size() && room > 0; ++i)
            if (zones[i].size() > turn) {
                ++shares[i];
                --room;
            }
    return shares;
}

std::vector<FirstLine> firstLines(const host::DataSet& data)
{
    const int count = static_cast<int>(std::min<std::int64_t>(data.zoneCount(), kMostZones));
    std::vector<std::vector<FirstLine>> zones;
    for (int number = 1; number <= count; ++number)
        zones.push_back(linesOf(data, number));
    const std::vector<std::size_t> shares = sharesOf(zones);
    std::vector<FirstLine> lines;
    for (std::size_t i = 0; i < zones.size(); ++i)
        lines.insert(lines.end(), zones[i].begin(),
                     zones[i].begin() + static_cast<std::ptrdiff_t>(shares[i]));
    return lines;
}

bool havePlaces(const host::DataSet& data)
{
    const bool hasCoordinates =
        std::any_of(data.variables.begin(), data.variables.end(),
                    [](const host::Variable& variable) { return variable.isCoordinate(); });
    return !hasCoordinates && vtkPointSet::SafeDownCast(data.geometry(1));
}

/// Whether a few values come again and again along X and along Y, as on a grid.
static bool areOnGrid(vtkDataSet& zone)
{
    std::array<std::set<double>, 2> values;
    for (vtkIdType i = 0; i < zone.GetNumberOfPoints(); ++i)
        for (std::size_t axis = 0; axis < 2; ++axis)
            values[axis].insert(zone.GetPoint(i)[axis]);
    const auto most = static_cast<std::size_t>(zone.GetNumberOfPoints()) / 2;
    return values[0].size() <= most && values[1].size() <= most;
}

PlotType_e firstPlotType(const host::DataSet& data, const std::vector<FirstLine>& lines)
{
    constexpr vtkIdType kManyRows = 100; // fewer may as well be measured over X
    const bool areScattered = !lines.empty()
        && std::all_of(lines.begin(), lines.end(),
                       [](const FirstLine& line) { return line.isScattered; });
    if (!areScattered || !havePlaces(data))
        return PlotType_LineXY;
    const Choice choice = choiceOf(data, 1);
    const auto values =
        std::count_if(choice.columns.begin(), choice.columns.end(), [](const Column& column) {
            return column.kind == host::VariableKind::Number;
        });
    const bool isField = values > (data.isPlanar ? 2 : 3)
        && (!data.isPlanar || choice.zone->GetNumberOfPoints() >= kManyRows
            || areOnGrid(*choice.zone));
    if (!isField)
        return PlotType_LineXY;
    return data.isPlanar ? PlotType_Field2D : PlotType_Field3D;
}

} // namespace corvala::app
