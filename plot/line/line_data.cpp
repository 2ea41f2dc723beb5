// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_data.h"

#include <vtkDataArray.h>

namespace corvala::plot {

LineVariables variablesOf(const host::Frame& frame, CvlInt64 map)
{
    const auto& keys = style::lineMap.assign;
    const bool isPolar = frame.plotType() == PlotType_LinePolar;
    return {frame.lineInteger(isPolar ? keys.thetaAxisVar : keys.xAxisVar, map),
            frame.lineInteger(isPolar ? keys.rAxisVar : keys.yAxisVar, map)};
}

static std::vector<double> toVector(vtkDataArray& array)
{
    std::vector<double> values(static_cast<std::size_t>(array.GetNumberOfTuples()));
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = array.GetComponent(static_cast<vtkIdType>(i), 0);
    return values;
}

LineData lineData(const host::Frame& frame, CvlInt64 map)
{
    const CvlInt64 zone = frame.lineInteger(style::lineMap.assign.zone, map);
    const LineVariables variables = variablesOf(frame, map);
    const host::ZoneValues first = frame.data()->values(zone, variables.first);
    const host::ZoneValues second = frame.data()->values(zone, variables.second);
    if (!first.array || !second.array || first.location != second.location)
        return {};
    return {toVector(*first.array), toVector(*second.array)};
}

} // namespace corvala::plot
