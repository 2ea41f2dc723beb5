// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/line_map_name.h"

#include <string_view>

namespace corvala::host {

namespace {

/// Values that the tokens of a name stand for, read when a token asks for them.
class LineMapFacts
{
public:
    LineMapFacts(const Frame& frame, CvlInt64 map)
        : m_frame(frame)
        , m_map(map)
    {
    }

    /// False for a text that is no token.
    bool textOf(std::string_view token, std::string& text) const
    {
        const DataSet* const data = m_frame.data();
        const CvlInt64 zone = assigned(style::lineMap.assign.zone);
        if (token == "&ZN&")
            text = data && data->hasZone(zone) ? data->zone(zone).name : std::string();
        else if (token == "&Z#&")
            text = std::to_string(zone);
        else if (token == "&DV&")
            text = shownVariableName(data, variable(true));
        else if (token == "&D#&")
            text = std::to_string(variable(true));
        else if (token == "&IV&")
            text = shownVariableName(data, variable(false));
        else if (token == "&I#&")
            text = std::to_string(variable(false));
        else if (token == "&M#&")
            text = std::to_string(m_map);
        else if (token == "&X#&")
            text = std::to_string(assigned(style::lineMap.assign.xAxis));
        else if (token == "&Y#&")
            text = std::to_string(assigned(style::lineMap.assign.yAxis));
        else
            return false;
        return true;
    }

private:
    std::int32_t assigned(style::Key key) const { return m_frame.lineInteger(key, m_map); }

    CvlInt64 variable(bool dependent) const
    {
        const bool isPolar = m_frame.plotType() == PlotType_LinePolar;
        const bool swapped =
            assigned(style::lineMap.assign.functionDependency) == FunctionDependency_XofY;
        const bool isFirst = dependent == swapped; // x or theta
        const auto& keys = style::lineMap.assign;
        return isFirst ? assigned(isPolar ? keys.thetaAxisVar : keys.xAxisVar)
                       : assigned(isPolar ? keys.rAxisVar : keys.yAxisVar);
    }

    const Frame& m_frame;
    CvlInt64 m_map;
};

} // namespace

std::string shownVariableName(const DataSet* data, CvlInt64 number)
{
    if (!data || !data->hasVariable(number))
        return {};
    const Variable& variable = data->variable(number);
    return variable.alias.empty() ? variable.name : variable.alias;
}

std::string shownLineMapName(const Frame& frame, CvlInt64 map)
{
    constexpr std::size_t kTokenLength = 4;
    static const Attribute& nameAttribute = Schema::instance().at(style::lineMap.name);
    const std::string& stored = frame.lineStyle().text(nameAttribute, map);
    const LineMapFacts facts(frame, map);
    std::string shown;
    for (std::size_t i = 0; i < stored.size();) {
        std::string text;
        if (stored[i] == '&'
            && facts.textOf(std::string_view(stored).substr(i, kTokenLength), text)) {
            shown += text;
            i += kTokenLength;
        } else {
            shown += stored[i++];
        }
    }
    return shown;
}

} // namespace corvala::host
