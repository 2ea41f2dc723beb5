// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_looks.h"

#include "host/document/document.h"
#include "plot/common/line_patterns.h"
#include "vocabulary/layers.h"

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

/// What tells the layers apart, in the order of LineLayer.
struct LineLayerDescription
{
    const style::Layer& layer;
    LineLook (*look)(const ShownLine&);
};
static constexpr LineLayerDescription kLayers[kLineLayerCount] = {
    {style::kLinesLayer, linesLook},
};

static bool appears(const LineLayerDescription& layer, const host::Frame& frame, CvlInt64 map)
{
    return frame.lineInteger(layer.layer.shownForMap, map) != 0;
}

std::optional<LineLook> lookOf(LineLayer layer, const ShownLine& line)
{
    const LineLayerDescription& description = kLayers[static_cast<std::size_t>(layer)];
    if (!appears(description, line.frame, line.map))
        return std::nullopt;
    return description.look(line);
}

bool isLayerOn(const host::Frame& frame, LineLayer layer)
{
    return frame.isOn(kLayers[static_cast<std::size_t>(layer)].layer.shown);
}

bool isInAnyLayer(const host::Frame& frame, CvlInt64 map)
{
    return std::any_of(std::begin(kLayers), std::end(kLayers),
                       [&](const auto& layer) { return appears(layer, frame, map); });
}

const SceneKind& lineSceneKind()
{
    static constexpr LayerMask kLines = 1U << static_cast<unsigned>(LineLayer::Lines);
    static constexpr LayerMask kAll = (1U << kLineLayerCount) - 1;
    static constexpr AffectedLayers kAffected[] = {
        {kMap.lines.show, true, kLines},
        {kMap.assign.zone, true, kAll},
        {style::linePlotLayers.showLines, false, kLines, true},
        {style::activeLineMaps, false, kAll},
    };
    static constexpr SceneKind kKind {kLineLayerCount,
                                      false,
                                      &host::Frame::isLinePlot,
                                      &host::Frame::activeLineMaps,
                                      StateCode_LineMapListChanged,
                                      kAffected,
                                      std::size(kAffected)};
    return kKind;
}

} // namespace corvala::plot
