// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"

#include <string>
#include <unordered_map>
#include <vector>

class vtkDataSetAttributes;

namespace corvala::host::io::reader {

/// Collects the variables of zones, in the order in which their arrays are met: the coordinates,
/// then each component of each array. A point array and a cell array of the same name are one.
class VariableList
{
public:
    void add(vtkDataSet& zone);

    std::vector<Variable> variables() const;
    /// For the contour groups: scalars first, then components of vectors.
    std::vector<int> proposeContours() const;

private:
    struct Array
    {
        std::string name;
        std::vector<std::string> componentNames; ///< given by the file; may be empty strings
        bool isBookkeeping; ///< numbers of points, cells or blocks

        int componentCount() const { return static_cast<int>(componentNames.size()); }
        std::string componentLabel(int component) const;
    };

    void add(vtkDataSetAttributes& attributes);
    int firstVariable(const Array& array) const;

    std::vector<Array> m_arrays;
    std::unordered_map<std::string, std::size_t> m_arrayOfName;
};

} // namespace corvala::host::io::reader
