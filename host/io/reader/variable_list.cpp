// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/variable_list.h"

#include "host/io/reader/vector_proposal.h"

#include <vtkCellData.h>
#include <vtkDataArray.h>
#include <vtkDataSet.h>
#include <vtkPointData.h>

#include <algorithm>

namespace corvala::host::io::reader {

static constexpr const char* kAxes[] = {"X", "Y", "Z"};
static constexpr std::size_t kMostContours = 8;

/// Ghost levels tell the canvas what to leave out; they are no values to plot.
static bool isGhostArray(const std::string& name)
{
    return name == vtkDataSetAttributes::GhostArrayName();
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
        Array& array = m_arrays[place->second];
        for (int c = array.componentCount(); c < data->GetNumberOfComponents(); ++c) {
            const char* label = data->GetComponentName(c);
            array.componentNames.emplace_back(label ? label : "");
        }
    }
}

std::string VariableList::Array::componentLabel(int component) const
{
    if (componentCount() <= 3)
        return kAxes[component];
    const std::string& given = componentNames[static_cast<std::size_t>(component)];
    return given.empty() ? std::to_string(component + 1) : given;
}

std::vector<Variable> VariableList::variables() const
{
    std::vector<Variable> result;
    for (int axis = 0; axis < 3; ++axis)
        result.push_back({kAxes[axis], {}, {}, axis});
    for (const Array& array : m_arrays) {
        for (int c = 0; c < array.componentCount(); ++c) {
            const bool isScalar = array.componentCount() == 1;
            const std::string name =
                isScalar ? array.name : array.name + ' ' + array.componentLabel(c);
            result.push_back({name, {}, array.name, c});
        }
    }
    return result;
}

int VariableList::firstVariable(const Array& wanted) const
{
    int number = 4;
    for (const Array& array : m_arrays) {
        if (&array == &wanted)
            break;
        number += array.componentCount();
    }
    return number;
}

std::vector<int> VariableList::proposeContours() const
{
    std::vector<int> scalars;
    std::vector<int> components;
    std::vector<int> bookkeeping;
    for (const Array& array : m_arrays) {
        std::vector<int>& list = array.isBookkeeping ? bookkeeping
            : array.componentCount() == 1            ? scalars
                                                     : components;
        for (int c = 0; c < array.componentCount(); ++c)
            list.push_back(firstVariable(array) + c);
    }
    scalars.insert(scalars.end(), components.begin(), components.end());
    scalars.insert(scalars.end(), bookkeeping.begin(), bookkeeping.end());
    scalars.resize(std::min(scalars.size(), kMostContours));
    return scalars;
}

} // namespace corvala::host::io::reader
