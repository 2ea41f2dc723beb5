// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/variable_list.h"

#include "host/io/reader/vector_proposal.h"

#include <vtkCellData.h>
#include <vtkDataArray.h>
#include <vtkDataSet.h>
#include <vtkPointData.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace corvala::host::io::reader {

static constexpr const char* kAxes[] = {"X", "Y", "Z"};
static constexpr const char* kChannels[] = {"red", "green", "blue", "alpha"};
static constexpr std::size_t kMostContours = 8;

/// Ghost levels tell the canvas what to leave out; they are no values to plot.
static bool isGhostArray(const std::string& name)
{
    return name == vtkDataSetAttributes::GhostArrayName();
}

/// Bytes of red, green, blue, and of the opacity if there are four.
static bool isColor(vtkDataArray& data)
{
    const int count = data.GetNumberOfComponents();
    return data.GetDataType() == VTK_UNSIGNED_CHAR && (count == 3 || count == 4)
        && matches(data.GetName(), "colou?r|rgb");
}

static std::string nameOfComponent(vtkDataArray& data, int number)
{
    if (isColor(data))
        return kChannels[number];
    const char* const given = data.GetComponentName(number);
    if (data.GetNumberOfComponents() <= 3)
        return kAxes[number];
    return given && *given ? given : std::to_string(number + 1);
}

void VariableList::add(vtkDataSet& zone)
{
    add(*zone.GetPointData());
    add(*zone.GetCellData());
}

void VariableList::add(vtkDataSetAttributes& attributes)
{
    for (int i = 0; i < attributes.GetNumberOfArrays(); ++i) {
        vtkDataArray* data = attributes.GetArray(i);
        const std::string name = data->GetName();
        if (isGhostArray(name))
            continue;
        const auto [place, isNew] = m_arrayOfName.try_emplace(name, m_arrays.size());
        if (isNew)
            m_arrays.push_back({name, {}, namesBookkeeping(name)});
        std::vector<Component>& components = m_arrays[place->second].components;
        for (int c = 0; c < data->GetNumberOfComponents(); ++c) {
            if (components.size() == static_cast<std::size_t>(c))
                components.push_back({nameOfComponent(*data, c), {}});
            meet(components[static_cast<std::size_t>(c)], *data, c);
        }
    }
}

/// Looks no further than to the first value that differs.
void VariableList::meet(Component& component, vtkDataArray& data, int number)
{
    for (vtkIdType i = 0; i < data.GetNumberOfTuples() && component.isConstant; ++i) {
        const double value = data.GetComponent(i, number);
        if (!std::isfinite(value))
            continue;
        component.isConstant = value == component.value.value_or(value);
        component.value = value;
    }
}

std::vector<Variable> VariableList::variables(bool hasCoordinates) const
{
    std::vector<Variable> result;
    for (int axis = 0; hasCoordinates && axis < 3; ++axis)
        result.push_back({kAxes[axis], {}, {}, axis});
    for (const Array& array : m_arrays) {
        for (std::size_t c = 0; c < array.components.size(); ++c) {
            const bool isScalar = array.components.size() == 1;
            const std::string name =
                isScalar ? array.name : array.name + ' ' + array.components[c].name;
            result.push_back(
                {name, {}, array.name, static_cast<int>(c), array.components[c].isConstant});
        }
    }
    return result;
}

std::vector<int> VariableList::proposeContours(bool hasCoordinates) const
{
    enum Rank { Scalar, ComponentOfArray, Bookkeeping, Constant, RankCount };
    std::array<std::vector<int>, RankCount> ranked;
    int number = hasCoordinates ? 3 : 0;
    for (const Array& array : m_arrays) {
        const Rank rank = array.isBookkeeping ? Bookkeeping
            : array.components.size() == 1    ? Scalar
                                              : ComponentOfArray;
        for (const Component& component : array.components)
            ranked[component.isConstant ? Constant : rank].push_back(++number);
    }
    std::vector<int> proposed;
    for (const std::vector<int>& numbers : ranked)
        proposed.insert(proposed.end(), numbers.begin(), numbers.end());
    proposed.resize(std::min(proposed.size(), kMostContours));
    return proposed;
}

} // namespace corvala::host::io::reader
