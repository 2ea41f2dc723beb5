// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/stored_view.h"

#include "host/document/frame.h"
#include "plot/field/view/field_view.h"
#include "plot/line/line_axes.h"

#include <nlohmann/json.hpp>

namespace corvala::plot {

using Json = nlohmann::json;

/// What is fitted has a direction only.
static Json json(const CameraState& camera)
{
    Json result {{"position", camera.position}, {"viewUp", camera.viewUp}};
    if (!camera.isFitted) {
        result["focalPoint"] = camera.focalPoint;
        result["parallelScale"] = camera.parallelScale;
    }
    if (camera.isParallel)
        result["parallel"] = true;
    return result;
}

/// Everything, from the usual side.
static bool isUsual(const CameraState& camera)
{
    const CameraState usual;
    return camera.isFitted && !camera.isParallel && camera.position == usual.position
        && camera.viewUp == usual.viewUp;
}

static CameraState cameraOf(const Json& json)
{
    CameraState camera;
    camera.isFitted = !json.contains("focalPoint");
    camera.isParallel = json.value("parallel", false);
    json.at("position").get_to(camera.position);
    json.at("viewUp").get_to(camera.viewUp);
    if (!camera.isFitted) {
        json.at("focalPoint").get_to(camera.focalPoint);
        json.at("parallelScale").get_to(camera.parallelScale);
    }
    return camera;
}

/// Axes that show nothing are null.
static Json json(const std::array<AxisRange, kAxisCount>& ranges)
{
    Json list = Json::array();
    for (const AxisRange& range : ranges)
        list.push_back(range.minimum < range.maximum ? Json {range.minimum, range.maximum}
                                                     : Json());
    return list;
}

static void read(const Json& list, std::array<AxisRange, kAxisCount>& ranges)
{
    for (std::size_t axis = 0; axis < kAxisCount && axis < list.size(); ++axis)
        if (const Json& range = list.at(axis); !range.is_null())
            ranges[axis] = {range.at(0).get<double>(), range.at(1).get<double>()};
}

std::string viewText(const std::any& view, PlotType_e plotType)
{
    if (const auto* const camera = std::any_cast<CameraState>(&view)) {
        const bool isWhole = plotType == PlotType_Field3D ? isUsual(*camera) : camera->isFitted;
        return isWhole ? std::string() : json(*camera).dump();
    }
    if (const auto* const range = std::any_cast<ChartRange>(&view))
        return Json {{"first", json(range->first)}, {"second", json(range->second)}}.dump();
    return {};
}

std::any viewOf(const std::string& text, PlotType_e plotType)
{
    try {
        const Json parsed = Json::parse(text);
        if (plotType == PlotType_Field2D || plotType == PlotType_Field3D)
            return cameraOf(parsed);
        ChartRange range;
        read(parsed.at("first"), range.first);
        read(parsed.at("second"), range.second);
        return range;
    } catch (const Json::exception&) {
        return {}; // also where there is no text
    }
}

std::any storedView(const host::Frame& frame, PlotType_e plotType)
{
    const auto view = frame.views().find(plotType);
    return view == frame.views().end() ? std::any() : viewOf(view->second, plotType);
}

} // namespace corvala::plot
