// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_looks.h"

#include "host/document/document.h"
#include "plot/common/line_patterns.h"

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

static LineLook linesLook(const ShownLine& line)
{
    const auto number = [&line](style::Key key) { return line.frame.lineInteger(key, line.map); };
    const auto real = [&line](style::Key key) { return line.frame.lineReal(key, line.map); };
    const host::Rgb color = host::Document::instance().color(number(kMap.lines.color));
    LineLook look;
    look.recipe = recipeOf(line.frame, line.map);
    look.axes = axesOf(line.frame, line.map);
    look.stroke.color = QColor(color.red, color.green, color.blue);
    look.stroke.width = linePixels(real(kMap.lines.lineThickness), line.height);
    const int pattern = number(kMap.lines.linePattern);
    const double period = real(kMap.lines.patternLength) / 100.0 * line.height;
    if (pattern != LinePattern_Solid)
        for (const double part : patternStrokes(pattern))
            look.stroke.pattern.push_back(part * period);
    return look;
}

/// What layers use besides the values of their own.
enum Use : unsigned {
    Assigned = 1 ///< zone, variables and axes
};
static constexpr SharedStyle kShared[] = {
    {kMap.assign.zone, true, Assigned},
    {style::activeLineMaps, false},
};

/// What tells the layers apart, in the order of LineLayer.
struct LineLayerDescription
{
    SceneLayer layer;
    LineLook (*look)(const ShownLine&);

    bool isIn(const host::Frame& frame, CvlInt64 map) const
    {
        return frame.lineInteger(layer.style->shownForMap, map) != 0;
    }
};
static constexpr LineLayerDescription kLayers[kLineLayerCount] = {
    {{&style::kLinesLayer, Assigned}, linesLook},
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
                                      kLineLayerCount,
                                      layerAt,
                                      kShared,
                                      std::size(kShared),
                                      0};
    return kKind;
}

std::optional<LineLook> lookOf(LineLayer layer, const ShownLine& line)
{
    const LineLayerDescription& description = kLayers[static_cast<std::size_t>(layer)];
    if (!description.isIn(line.frame, line.map))
        return std::nullopt;
    return description.look(line);
}

bool isLayerOn(const host::Frame& frame, LineLayer layer)
{
    return frame.isOn(layerAt(static_cast<std::size_t>(layer)).style->shown);
}

bool isInAnyLayer(const host::Frame& frame, CvlInt64 map)
{
    return std::any_of(std::begin(kLayers), std::end(kLayers),
                       [&](const auto& layer) { return layer.isIn(frame, map); });
}

} // namespace corvala::plot
