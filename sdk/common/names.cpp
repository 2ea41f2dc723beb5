// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common/common.h"

#include "host/document/document.h"
#include "host/document/line_map_name.h"
#include "sdk/private/read_count.h"

namespace corvala::sdk {

static const host::DataSet* dataOf(CvlUniqueId id)
{
    host_access::countRead();
    const host::Frame* const frame = host::Document::instance().frame(id);
    return frame ? frame->data() : nullptr;
}

static std::string withIndex(CvlInt64 number, const std::string& name)
{
    return std::to_string(number) + ": " + name;
}

std::string variableNameFormattedForAliases(CvlInt64 variable)
{
    return variableNameFormattedForAliasesForFrame(host::Document::instance().activeFrameId(),
                                                   variable);
}

std::string variableNameFormattedForAliasesForFrame(CvlUniqueId frame, CvlInt64 variable)
{
    return host::shownVariableName(dataOf(frame), variable);
}

std::string variableNameWithIndexFormattedForAliasesForFrame(CvlUniqueId frame, CvlInt64 variable)
{
    const host::DataSet* const data = dataOf(frame);
    return data && data->hasVariable(variable)
        ? withIndex(variable, host::shownVariableName(data, variable))
        : std::string();
}

std::string zoneNameWithIndexFormattedForFrame(CvlUniqueId frame, CvlInt64 zone)
{
    const host::DataSet* const data = dataOf(frame);
    return data && data->hasZone(zone) ? withIndex(zone, data->zone(zone).name) : std::string();
}

} // namespace corvala::sdk
