// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

class vtkDataArray;
class vtkDataSetAttributes;

namespace corvala::host::io::reader {

/// Collects the variables of zones, in the order in which their arrays are met: the coordinates,
/// then each component of each array. A point array and a cell array of the same name are one.
class VariableList
{
public:
    void add(vtkDataSet& zone);

    /// Where there are coordinates, these come first.
    std::vector<Variable> variables(bool hasCoordinates) const;
    /// For the contour groups: scalars first, then components of vectors; constants last.
    std::vector<int> proposeContours(bool hasCoordinates) const;

private:
    struct Component
    {
        std::string name; ///< behind that of the array
        std::optional<double> value; ///< one of those that were met
        bool isConstant = true; ///< all that were met are the same
    };
    struct Array
    {
        std::string name;
        std::vector<Component> components;
        bool isBookkeeping; ///< numbers of points, cells or blocks
    };

    void add(vtkDataSetAttributes& attributes);
    static void meet(Component& component, vtkDataArray& data, int number);

    std::vector<Array> m_arrays;
    std::unordered_map<std::string, std::size_t> m_arrayOfName;
};

} // namespace corvala::host::io::reader
