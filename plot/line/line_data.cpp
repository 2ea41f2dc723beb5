// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_data.h"

#include <vtkDataArray.h>

namespace corvala::plot {

LineVariables variablesOf(const host::Frame& frame, CvlInt64 map)
{
    const host::Schema& schema = host::Schema::instance();
    static const host::AttributeId kXy[] = {schema.find({"LineMap", "Assign", "XAxisVar"}),
                                            schema.find({"LineMap", "Assign", "YAxisVar"})};
    static const host::AttributeId kPolar[] = {schema.find({"LineMap", "Assign", "ThetaAxisVar"}),
                                               schema.find({"LineMap", "Assign", "RAxisVar"})};
    const auto& ids = frame.plotType() == PlotType_LinePolar ? kPolar : kXy;
    return {frame.lineInteger(ids[0], map), frame.lineInteger(ids[1], map)};
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
    static const host::AttributeId kZone =
        host::Schema::instance().find({"LineMap", "Assign", "Zone"});
    const CvlInt64 zone = frame.lineInteger(kZone, map);
    const LineVariables variables = variablesOf(frame, map);
    const host::ZoneValues first = frame.data()->values(zone, variables.first);
    const host::ZoneValues second = frame.data()->values(zone, variables.second);
    if (!first.array || !second.array || first.location != second.location)
        return {};
    return {toVector(*first.array), toVector(*second.array)};
}

} // namespace corvala::plot
