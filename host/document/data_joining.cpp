// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/data_joining.h"

#include "host/document/vector_magnitudes.h"

#include <vtkCellData.h>
#include <vtkDataArray.h>
#include <vtkDataSet.h>
#include <vtkPointData.h>

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>
#include <utility>

namespace corvala::host {

namespace {

/// The names that arrays get, by those that they have.
using ArrayNames = std::map<std::string, std::string>;

/// Zones of one source, and behind them those of another one, whose arrays have other names.
class JoinedSource : public ZoneSource
{
public:
    JoinedSource(std::shared_ptr<const ZoneSource> first, std::int64_t count,
                 std::shared_ptr<const ZoneSource> second, ArrayNames names)
        : m_first(std::move(first))
        , m_second(std::move(second))
        , m_names(std::move(names))
        , m_count(count)
    {
    }
    vtkSmartPointer<vtkDataSet> zone(std::int64_t sourceIndex) const override;

private:
    std::shared_ptr<const ZoneSource> m_first;
    std::shared_ptr<const ZoneSource> m_second;
    ArrayNames m_names; ///< only those that differ
    std::int64_t m_count; ///< of the first source
};

/// The zones of a strand.
struct Strand
{
    std::set<std::string> names;
    std::set<double> times;
};
using Strands = std::map<int, Strand>;

} // namespace

/// Arrays are shared, their names are not: others are put in their places.
static void rename(vtkFieldData& arrays, const ArrayNames& names)
{
    std::vector<vtkSmartPointer<vtkDataArray>> renamed;
    for (const auto& [before, now] : names) {
        vtkDataArray* const array = arrays.GetArray(before.c_str());
        if (!array)
            continue;
        const auto copy = vtkSmartPointer<vtkDataArray>::Take(array->NewInstance());
        copy->ShallowCopy(array);
        copy->SetName(now.c_str());
        renamed.push_back(copy);
    }
    for (const auto& [before, now] : names)
        arrays.RemoveArray(before.c_str());
    for (const auto& array : renamed)
        arrays.AddArray(array);
}

vtkSmartPointer<vtkDataSet> JoinedSource::zone(std::int64_t sourceIndex) const
{
    if (sourceIndex < m_count)
        return m_first ? m_first->zone(sourceIndex) : nullptr;
    const auto data = m_second ? m_second->zone(sourceIndex - m_count) : nullptr;
    if (data && !m_names.empty()) {
        rename(*data->GetPointData(), m_names);
        rename(*data->GetCellData(), m_names);
    }
    return data;
}

static Strands strandsOf(const DataSet& data)
{
    Strands strands;
    for (const ZoneInfo& zone : data.zones) {
        if (zone.strand > 0) {
            strands[zone.strand].names.insert(zone.name);
            strands[zone.strand].times.insert(zone.time);
        }
    }
    return strands;
}

static bool goesOnAs(const Strand& present, const Strand& added)
{
    return present.names == added.names
        && std::none_of(added.times.begin(), added.times.end(),
                        [&](double time) { return present.times.count(time) > 0; });
}

/// The strands of the added zones in the joined data, by their own numbers.
static std::unordered_map<int, int> joinedStrands(Strands present, const DataSet& added)
{
    std::unordered_map<int, int> numbers;
    int last = present.empty() ? 0 : present.rbegin()->first;
    for (const auto& [own, strand] : strandsOf(added)) {
        const auto known =
            std::find_if(present.begin(), present.end(), [&strand = strand](const auto& some) {
                return goesOnAs(some.second, strand);
            });
        numbers[own] = known == present.end() ? ++last : known->first;
        if (known != present.end())
            present.erase(known); // goes on once
    }
    return numbers;
}

static void joinZones(DataSet& data, const DataSet& added, std::int64_t firstIndex)
{
    const std::unordered_map<int, int> strands = joinedStrands(strandsOf(data), added);
    data.zones.reserve(data.zones.size() + added.zones.size());
    for (ZoneInfo zone : added.zones) {
        zone.sourceIndex += firstIndex;
        if (zone.strand > 0)
            zone.strand = strands.at(zone.strand);
        data.zones.push_back(std::move(zone));
    }
}

namespace {

/// Unites variables.
class VariableJoint
{
public:
    explicit VariableJoint(DataSet& data)
        : m_data(data)
    {
        for (std::size_t i = 0; i < data.variables.size(); ++i) {
            m_arrays.insert(data.variables[i].array);
            m_slots.emplace(identityOf(data.variables[i]), i);
        }
    }
    /// The names that arrays of the added data get, where they are others.
    ArrayNames add(const std::vector<Variable>& variables);

private:
    using Parts = std::vector<const Variable*>;

    static std::string identityOf(const Variable& variable);
    const Variable* match(const Variable& variable) const;
    std::string nameFor(const std::string& array, const Parts& parts) const;
    void put(Variable variable);

    DataSet& m_data;
    std::set<std::string> m_arrays;
    std::unordered_map<std::string, std::size_t> m_slots; ///< of variables, by what they are
};

} // namespace

/// Coordinates are known by their axis, others by their name and component.
std::string VariableJoint::identityOf(const Variable& variable)
{
    return (variable.isCoordinate() ? std::string() : variable.name + '\n')
        + std::to_string(variable.component);
}

/// The variable that it is one with. Words have numbers of their own in each table.
const Variable* VariableJoint::match(const Variable& variable) const
{
    const auto known = m_slots.find(identityOf(variable));
    if (known == m_slots.end() || variable.kind == VariableKind::Words)
        return nullptr;
    const Variable& present = m_data.variables[known->second];
    return present.kind == variable.kind && !present.isMagnitude() ? &present : nullptr;
}

/// The one array that has the same variables, else a name that no array has.
std::string VariableJoint::nameFor(const std::string& array, const Parts& parts) const
{
    std::set<std::string> found;
    for (const Variable* const part : parts)
        if (const Variable* const present = match(*part))
            found.insert(present->array);
    if (found.size() == 1)
        return *found.begin();
    std::string name = array;
    while (m_arrays.count(name) > 0)
        name += '\'';
    return name;
}

void VariableJoint::put(Variable variable)
{
    if (const Variable* const present = match(variable);
        present && present->array == variable.array) {
        m_data.variables[static_cast<std::size_t>(present - m_data.variables.data())].isConstant =
            false; // the values may differ
        return;
    }
    m_slots.emplace(identityOf(variable), m_data.variables.size());
    m_data.variables.push_back(std::move(variable));
}

ArrayNames VariableJoint::add(const std::vector<Variable>& variables)
{
    std::map<std::string, Parts> arrays;
    for (const Variable& variable : variables)
        if (!variable.isMagnitude() && !variable.isCoordinate())
            arrays[variable.array].push_back(&variable);
    ArrayNames names;
    for (const auto& [array, parts] : arrays) {
        names[array] = nameFor(array, parts);
        m_arrays.insert(names[array]);
    }
    for (Variable variable : variables) {
        if (variable.isMagnitude())
            continue; // follows from its components
        if (!variable.isCoordinate())
            variable.array = names.at(variable.array);
        put(std::move(variable));
    }
    for (auto name = names.begin(); name != names.end();)
        name = name->first == name->second ? names.erase(name) : std::next(name);
    return names;
}

/// As they were read.
static DataSet underReadNames(DataSet data)
{
    for (std::int64_t zone = 1; zone <= data.zoneCount(); ++zone)
        data.zones[static_cast<std::size_t>(zone - 1)].name = data.readZoneName(zone);
    for (std::int64_t variable = 1; variable <= data.variableCount(); ++variable)
        data.variables[static_cast<std::size_t>(variable - 1)].name =
            data.readVariableName(variable);
    data.readZoneNames.clear();
    data.readVariableNames.clear();
    return data;
}

static std::shared_ptr<DataSet> appended(const DataSet& present, const DataSet& added)
{
    auto data = std::make_shared<DataSet>(present);
    std::int64_t firstIndex = 0;
    for (const ZoneInfo& zone : present.zones)
        firstIndex = std::max(firstIndex, zone.sourceIndex + 1);
    joinZones(*data, added, firstIndex);
    data->source = std::make_shared<JoinedSource>(present.source, firstIndex, added.source,
                                                  VariableJoint(*data).add(added.variables));
    data->files.insert(data->files.end(), added.files.begin(), added.files.end());
    data->notes.insert(data->notes.end(), added.notes.begin(), added.notes.end());
    data->isPlanar = present.isPlanar && added.isPlanar;
    data->surfacesEncloseVolumes = present.surfacesEncloseVolumes && added.surfacesEncloseVolumes;
    addMagnitudes(*data);
    return data;
}

std::shared_ptr<DataSet> joined(const DataSet& present, const DataSet& added)
{
    const bool isWhole = !present.whole;
    const DataSet before = underReadNames(isWhole ? present : *present.whole);
    const std::shared_ptr<DataSet> all = appended(before, added);
    auto data = std::make_shared<DataSet>(*all);
    data->zones = present.zones;
    data->zones.insert(data->zones.end(), all->zones.begin() + before.zoneCount(),
                       all->zones.end());
    for (std::size_t i = 0; i < present.variables.size(); ++i)
        data->variables[i].name = present.variables[i].name;
    data->readZoneNames = present.readZoneNames;
    data->readVariableNames = present.readVariableNames;
    data->whole = isWhole ? nullptr : all;
    return data;
}

} // namespace corvala::host
