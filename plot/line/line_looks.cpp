// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_looks.h"

#include <algorithm>
#include <iterator>

namespace corvala::plot {

static constexpr const auto& kMap = style::lineMap;

LineRecipe recipeOf(const host::Frame& frame, CvlInt64 map)
{
    const bool isPolar = frame.plotType() == PlotType_LinePolar;
    const auto& keys = kMap.assign;
    return {frame.lineInteger(keys.zone, map),
            frame.lineInteger(isPolar ? keys.thetaAxisVar : keys.xAxisVar, map),
            frame.lineInteger(isPolar ? keys.rAxisVar : keys.yAxisVar, map)};
}

LineAxes axesOf(const host::Frame& frame, CvlInt64 map)
{
    if (frame.plotType() == PlotType_LinePolar)
        return {};
    const auto number = [&](style::Key key) {
        return static_cast<std::size_t>(frame.lineInteger(key, map) - 1);
    };
    return {number(kMap.assign.xAxis), number(kMap.assign.yAxis)};
}

/// What layers use besides the values of their own.
enum Use : unsigned {
    Assigned = 1 ///< zone, variables and axes
};
static constexpr SharedStyle kShared[] = {
    {kMap.assign.zone, true, Assigned},
    {style::activeLineMaps, false},
};

/// What tells the layers apart, from back to front.
struct LineLayerDescription
{
    SceneLayer layer;
    const ChartLayer* chart;

    bool isIn(const host::Frame& frame, CvlInt64 map) const
    {
        return frame.lineInteger(layer.shownForMap, map) != 0;
    }
};
static constexpr LineLayerDescription kLayers[] = {
    {{&style::kLinesLayer, Assigned}, &kChartLines},
};

static const SceneLayer& layerAt(std::size_t number)
{
    return kLayers[number].layer;
}

const SceneKind& lineSceneKind()
{
    static constexpr SceneKind kKind {&host::Frame::isLinePlot,
                                      &host::Frame::activeLineMaps,
                                      StateCode_LineMapListChanged,
                                      std::size(kLayers),
                                      layerAt,
                                      kShared,
                                      std::size(kShared),
                                      0};
    return kKind;
}

const ChartLayer& chartLayer(std::size_t layer)
{
    return *kLayers[layer].chart;
}

bool isInLayer(const host::Frame& frame, CvlInt64 map, std::size_t layer)
{
    return kLayers[layer].isIn(frame, map);
}

bool isLayerOn(const host::Frame& frame, std::size_t layer)
{
    return frame.isOn(layerAt(layer).shown);
}

bool isInAnyLayer(const host::Frame& frame, CvlInt64 map)
{
    return std::any_of(std::begin(kLayers), std::end(kLayers),
                       [&](const auto& layer) { return layer.isIn(frame, map); });
}

} // namespace corvala::plot
