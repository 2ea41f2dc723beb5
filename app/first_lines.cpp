// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/first_lines.h"

#include "app/column_course.h"
#include "app/error_columns.h"

#include <vtkBoundingBox.h>
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
        first([](const Column& column) { return ColumnCourse(*column.values).goesInCycles(); })};
    const auto found = std::find_if(tries.begin(), tries.end(),
                                    [end](const auto& column) { return column != end; });
    return found != tries.end() ? **found : columns.front();
}

/// Whether both can be told from a straight line along the same axis.
static bool fit(const ValueRange& one, const ValueRange& other)
{
    const double both = std::max(one.maximum, other.maximum) - std::min(one.minimum, other.minimum);
    return std::min(one.size(), other.size()) * kManyTimes >= both;
}

namespace {

/// The lines that a zone may have, and how many columns are beyond them.
struct ZoneLines
{
    std::vector<FirstLine> lines;
    std::size_t more = 0;
};

} // namespace

static ZoneLines linesOf(const std::vector<Column>& columns, int zone)
{
    ZoneLines found;
    std::vector<FirstLine>& lines = found.lines;
    const Column& x = abscissaOf(columns);
    const bool isScattered = !goesOneWay(*x.values) && ColumnCourse(*x.values).isScattered();
    std::optional<ValueRange> first;
    for (const Column& y : columns) {
        if (y.variable == x.variable || y.kind != host::VariableKind::Number)
            continue;
        if (lines.size() == kMostLines) {
            ++found.more;
            continue;
        }
        if (isScattered && ColumnCourse(*y.values).goesInSteps())
            continue; // numbers cycles
        const ValueRange range = rangeOf(*y.values);
        first = first.value_or(range);
        lines.push_back({zone, x.variable, y.variable, fit(*first, range) ? 1 : 2, isScattered});
    }
    return found;
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

static ZoneLines linesOf(const host::DataSet& data, int zone)
{
    const Choice choice = choiceOf(data, zone);
    if (choice.columns.empty())
        return {};
    ZoneLines found = linesOf(choice.columns, zone);
    for (FirstLine& line : found.lines)
        if (const auto error = choice.errors.find(line.y); error != choice.errors.end())
            line.error = error->second;
    return found;
}

/// How many lines each zone has: they take turns while there is room, and each has one at least.
static std::vector<std::size_t> sharesOf(const std::vector<ZoneLines>& zones)
{
    std::vector<std::size_t> shares(zones.size(), 0);
    std::size_t room = std::max(kMostLines, zones.size());
    for (std::size_t turn = 0; turn < kMostLines; ++turn)
        for (std::size_t i = 0; i < zones.size() && room > 0; ++i)
            if (zones[i].lines.size() > turn) {
                ++shares[i];
                --room;
            }
    return shares;
}

std::vector<FirstLine> firstLines(const host::DataSet& data, std::size_t* possible)
{
    const int count = static_cast<int>(std::min<std::int64_t>(data.zoneCount(), kMostZones));
    std::vector<ZoneLines> zones;
    for (int number = 1; number <= count; ++number)
        zones.push_back(linesOf(data, number));
    const std::vector<std::size_t> shares = sharesOf(zones);
    std::vector<FirstLine> lines;
    std::size_t all = 0;
    for (std::size_t i = 0; i < zones.size(); ++i) {
        const auto begin = zones[i].lines.begin();
        lines.insert(lines.end(), begin, begin + static_cast<std::ptrdiff_t>(shares[i]));
        all += zones[i].lines.size() + zones[i].more;
    }
    if (possible)
        *possible = all;
    return lines;
}

/// The axis along which the first points of a zone reach farthest.
static int longestAxis(vtkDataSet& zone, vtkIdType points)
{
    vtkBoundingBox box;
    for (vtkIdType i = 0; i < points; ++i)
        box.AddPoint(zone.GetPoint(i));
    double lengths[3];
    box.GetLengths(lengths);
    return static_cast<int>(std::max_element(lengths, lengths + 3) - lengths);
}

std::vector<FirstLine> firstFieldLines(const host::DataSet& data)
{
    constexpr std::int64_t kMostPoints = 1'000'000;
    constexpr std::int64_t kLookedAt = 10'000;
    const int shown = data.contourVariables.empty() ? 0 : data.contourVariables.front();
    if (shown == 0 || data.zones.empty() || data.zone(1).pointCount > kMostPoints)
        return {};
    const auto zone = data.geometry(1);
    if (!zone || zone->GetNumberOfPoints() == 0 || !data.values(1, shown).array)
        return {};
    const host::ZoneInfo& info = data.zone(1);
    const std::int64_t run = info.ordered ? info.dimensions[0] : kLookedAt;
    const int axis =
        longestAxis(*zone, std::min<vtkIdType>(run, std::min(kLookedAt, info.pointCount)));
    const auto found =
        std::find_if(data.variables.begin(), data.variables.end(), [axis](const auto& variable) {
            return variable.isCoordinate() && variable.component == axis;
        });
    if (found == data.variables.end())
        return {};
    const int over = static_cast<int>(found - data.variables.begin()) + 1;
    return {{1, over, shown, 1, false}};
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
