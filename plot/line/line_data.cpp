// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_data.h"

#include <vtkDataArray.h>

namespace corvala::plot {

static std::vector<double> toVector(vtkDataArray& array)
{
    std::vector<double> values(static_cast<std::size_t>(array.GetNumberOfTuples()));
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = array.GetComponent(static_cast<vtkIdType>(i), 0);
    return values;
}

LineData lineData(const host::DataSet& data, const LineRecipe& recipe)
{
    const host::ZoneValues first = data.values(recipe.zone, recipe.first);
    const host::ZoneValues second = data.values(recipe.zone, recipe.second);
    if (!first.array || !second.array || first.location != second.location)
        return {};
    return {toVector(*first.array), toVector(*second.array)};
}

} // namespace corvala::plot
