// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_looks.h"

#include <algorithm>
#include <iterator>

namespace corvala::plot {

static constexpr const auto& kMap = style::lineMap;

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
    Points = 1, ///< zone, variables, axes and indices, and how the axes are divided
    Curves = 2, ///< how points are joined or fitted
    Beside = 4, ///< no layer: axes, legend and titles
    Joint = 8 ///< shows something of all maps together
};
static constexpr SharedStyle kShared[] = {
    {kMap.assign.zone, true, Points},
    {kMap.indices.ijkLines, true, Points},
    {kMap.indices.ranges.iRange.min, true, Points},
    {kMap.indices.ranges.jRange.min, true, Points},
    {kMap.indices.ranges.kRange.min, true, Points},
    {kMap.curves.curveType, true, Curves},
    {kMap.curves.curveType, false, Points}, // a spline is not sorted
    {kMap.errorBars.show, false, Points}, // which may be of the cells
    {kMap.errorBars.var, false, Points},
    {style::lineAxes.x.scale, false, Points},
    {style::lineAxes.y.scale, false, Points},
    {style::lineAxes.x.scale, true, Beside},
    {style::lineAxes.y.scale, true, Beside},
    {style::lineAxes.polar.start, true, Beside},
    {style::lineLegend.show, true, Beside},
    {style::lineFrame.title, true, Beside},
    {style::timeText.show, true, Beside},
    {kMap.name, false, Beside},
    {style::activeLineMaps, false},
};

/// What tells the layers apart, from back to front.
struct LineLayerDescription
{
    SceneLayer layer;
    std::shared_ptr<const ChartShape> (*shape)(const ShownLine&, const LineGeometry&);
    LegendSample (*sample)(const ShownLine&);

    bool isIn(const host::Frame& frame, CvlInt64 map) const
    {
        return frame.lineInteger(layer.shownForMap, map) != 0;
    }
};
static constexpr LineLayerDescription kLayers[] = {
    {{&style::kBarChartsLayer, Points | Joint}, barShape, barSample},
    {{&style::kErrorBarsLayer, Points}, errorBarShape, errorBarSample},
    {{&style::kLinesLayer, Points | Curves}, curveShape, curveSample},
    {{&style::kSymbolsLayer, Points}, symbolShape, symbolSample},
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
                                      0,
                                      Joint,
                                      true};
    return kKind;
}

std::shared_ptr<const ChartShape> shapeIn(std::size_t layer, const ShownLine& line,
                                          const LineGeometry& geometry)
{
    return kLayers[layer].shape(line, geometry);
}

bool followsCurve(std::size_t layer)
{
    return (layerAt(layer).uses & Curves) != 0;
}

bool isSeenAsCurve(const host::Frame& frame, CvlInt64 map)
{
    return std::any_of(std::begin(kLayers), std::end(kLayers), [&](const auto& layer) {
        return (layer.layer.uses & Curves) != 0 && frame.isOn(layer.layer.shown)
            && layer.isIn(frame, map);
    });
}

LegendSample sampleIn(std::size_t layer, const ShownLine& line)
{
    return kLayers[layer].sample(line);
}

bool isInLayer(const host::Frame& frame, CvlInt64 map, std::size_t layer)
{
    return kLayers[layer].isIn(frame, map);
}

bool isLayerOn(const host::Frame& frame, std::size_t layer)
{
    return frame.isOn(layerAt(layer).shown);
}

bool isSeen(const host::Frame& frame, CvlInt64 map)
{
    return std::any_of(std::begin(kLayers), std::end(kLayers), [&](const auto& layer) {
        return frame.isOn(layer.layer.shown) && layer.isIn(frame, map);
    });
}

bool isInAnyLayer(const host::Frame& frame, CvlInt64 map)
{
    return std::any_of(std::begin(kLayers), std::end(kLayers),
                       [&](const auto& layer) { return layer.isIn(frame, map); });
}

} // namespace corvala::plot
