// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/data_set.h"

#include <vtkCellData.h>
#include <vtkDataSet.h>
#include <vtkDoubleArray.h>
#include <vtkPointData.h>

#include <algorithm>
#include <cmath>

namespace corvala::host {

vtkSmartPointer<vtkDataSet> DataSet::geometry(std::int64_t number) const
{
    return source && hasZone(number) ? source->zone(zone(number).sourceIndex) : nullptr;
}

/// Remembers the first of the names for as long as the present one is another.
static void rename(std::string& name, const std::string& newName, std::int64_t key,
                   std::map<std::int64_t, std::string>& readNames)
{
    const auto read = readNames.try_emplace(key, std::move(name)).first;
    name = newName;
    if (read->second == name)
        readNames.erase(read);
}

void DataSet::renameZone(std::int64_t number, const std::string& name)
{
    ZoneInfo& renamed = zones[static_cast<std::size_t>(number - 1)];
    rename(renamed.name, name, renamed.sourceIndex, readZoneNames);
}

void DataSet::renameVariable(std::int64_t number, const std::string& name)
{
    rename(variables[static_cast<std::size_t>(number - 1)].name, name, number, readVariableNames);
}

const std::string& DataSet::readZoneName(std::int64_t number) const
{
    const auto read = readZoneNames.find(zone(number).sourceIndex);
    return read == readZoneNames.end() ? zone(number).name : read->second;
}

const std::string& DataSet::readVariableName(std::int64_t number) const
{
    const auto read = readVariableNames.find(number);
    return read == readVariableNames.end() ? variable(number).name : read->second;
}

std::shared_ptr<DataSet> DataSet::withZones(const std::vector<std::int64_t>& numbers) const
{
    auto reduced = std::make_shared<DataSet>(*this);
    reduced->zones.clear();
    for (const std::int64_t number : numbers)
        reduced->zones.push_back(zone(number));
    return reduced;
}

static vtkSmartPointer<vtkDataArray> coordinateOf(vtkDataSet& zone, int axis)
{
    const vtkIdType count = zone.GetNumberOfPoints();
    auto values = vtkSmartPointer<vtkDoubleArray>::New();
    values->SetNumberOfTuples(count);
    double point[3];
    for (vtkIdType i = 0; i < count; ++i) {
        zone.GetPoint(i, point);
        values->SetValue(i, point[axis]);
    }
    return values;
}

static vtkSmartPointer<vtkDataArray> componentOf(vtkDataArray& array, int component)
{
    if (array.GetNumberOfComponents() == 1)
        return &array;
    const vtkIdType count = array.GetNumberOfTuples();
    auto values = vtkSmartPointer<vtkDoubleArray>::New();
    values->SetNumberOfTuples(count);
    for (vtkIdType i = 0; i < count; ++i)
        values->SetValue(i, array.GetComponent(i, component));
    return values;
}

/// None where a component lacks, or is of the cells while another is of the points.
ZoneValues DataSet::magnitudes(std::int64_t zoneNumber, const Variable& variable) const
{
    std::vector<ZoneValues> components;
    for (const int number : variable.vector)
        if (number != 0)
            components.push_back(values(zoneNumber, number));
    const ZoneValues& first = components.front();
    for (const ZoneValues& component : components)
        if (!component.array || component.location != first.location)
            return {};
    const vtkIdType count = first.array->GetNumberOfTuples();
    auto lengths = vtkSmartPointer<vtkDoubleArray>::New();
    lengths->SetNumberOfTuples(count);
    for (vtkIdType i = 0; i < count; ++i) {
        double length = 0.0;
        for (const ZoneValues& component : components)
            length = std::hypot(length, component.array->GetComponent(i, 0));
        lengths->SetValue(i, length);
    }
    return {lengths, first.location};
}

ZoneValues DataSet::values(std::int64_t zoneNumber, std::int64_t variableNumber) const
{
    const vtkSmartPointer<vtkDataSet> data =
        hasVariable(variableNumber) ? geometry(zoneNumber) : nullptr;
    if (!data)
        return {};
    const Variable& wanted = variable(variableNumber);
    if (wanted.isMagnitude())
        return magnitudes(zoneNumber, wanted);
    if (wanted.isCoordinate())
        return {coordinateOf(*data, wanted.component), ValueLocation::Points};
    ValueLocation location = ValueLocation::Points;
    vtkDataArray* array = data->GetPointData()->GetArray(wanted.array.c_str());
    if (!array) {
        array = data->GetCellData()->GetArray(wanted.array.c_str());
        location = ValueLocation::Cells;
    }
    if (!array || wanted.component >= array->GetNumberOfComponents())
        return {};
    return {componentOf(*array, wanted.component), location};
}

PlotType_e DataSet::suggestedPlotType() const
{
    const bool hasCoordinates = std::any_of(variables.begin(), variables.end(),
                                            [](const Variable& v) { return v.isCoordinate(); });
    if (!hasCoordinates)
        return PlotType_LineXY;
    const bool hasVolumes = std::any_of(zones.begin(), zones.end(),
                                        [](const ZoneInfo& zone) { return zone.isVolume(); });
    return isPlanar && !hasVolumes ? PlotType_Field2D : PlotType_Field3D;
}

bool DataSet::isTransient() const
{
    return std::any_of(zones.begin(), zones.end(),
                       [](const ZoneInfo& zone) { return zone.strand > 0; });
}

std::vector<double> DataSet::solutionTimes() const
{
    std::vector<double> times;
    for (const ZoneInfo& zone : zones)
        if (zone.strand > 0)
            times.push_back(zone.time);
    std::sort(times.begin(), times.end());
    times.erase(std::unique(times.begin(), times.end()), times.end());
    return times;
}

} // namespace corvala::host
