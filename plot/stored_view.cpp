// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/stored_view.h"

#include "host/document/frame.h"
#include "host/storage/json_place.h"
#include "plot/field/view/field_view.h"
#include "plot/line/line_axes.h"

#include <QCoreApplication>

#include <vtkMath.h>

#include <cmath>

namespace corvala::plot {

using Json = nlohmann::json;
using Place = const host::storage::JsonPlace&;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(StoredView)
};

static bool isFittedToAll(const CameraState& camera)
{
    return camera.isFitted && (camera.isOfAll || !camera.fitBox.IsValid());
}

/// What is fitted has a direction in space, and a box unless it is all.
static Json json(const CameraState& camera, bool isFlat)
{
    Json result;
    if (!camera.isFitted || !isFlat) {
        result["position"] = camera.position;
        result["viewUp"] = camera.viewUp;
    }
    if (!camera.isFitted) {
        result["focalPoint"] = camera.focalPoint;
        result["parallelScale"] = camera.parallelScale;
    } else if (!isFittedToAll(camera)) {
        std::array<double, 6> bounds {};
        camera.fitBox.GetBounds(bounds.data());
        result["box"] = bounds;
    }
    if (camera.isParallel)
        result["parallel"] = true;
    return result;
}

/// Everything, from the usual side.
static bool isUsual(const CameraState& camera)
{
    const CameraState usual;
    return isFittedToAll(camera) && !camera.isParallel && camera.position == usual.position
        && camera.viewUp == usual.viewUp;
}

template<std::size_t count>
static std::array<double, count> numbersOf(Place place)
{
    std::array<double, count> numbers {};
    std::size_t given = 0;
    place.forEachElement([&](Place element) {
        if (given < count)
            numbers[given] = element.number();
        ++given;
    });
    if (given != count)
        place.fail(Text::tr("must be %1 numbers").arg(count));
    return numbers;
}

static vtkBoundingBox boxOf(Place place)
{
    const auto bounds = numbersOf<6>(place);
    const vtkBoundingBox box(bounds.data());
    if (!box.IsValid())
        place.fail(Text::tr("a minimum is above its maximum"));
    return box;
}

static double positiveNumber(Place place)
{
    const double number = place.number();
    if (!(number > 0.0))
        place.fail(Text::tr("must be above 0"));
    return number;
}

/// A camera has to look somewhere, and up has to be another direction.
static void requireDirections(const CameraState& camera, Place place)
{
    constexpr double kSmallest = 1e-6; // sine of the angle between the two
    double direction[3];
    double side[3];
    for (std::size_t axis = 0; axis < 3; ++axis)
        direction[axis] = camera.position[axis] - camera.focalPoint[axis];
    vtkMath::Cross(direction, camera.viewUp.data(), side);
    const double lengths = vtkMath::Norm(direction) * vtkMath::Norm(camera.viewUp.data());
    if (!(std::isfinite(lengths) && lengths > 0.0 && vtkMath::Norm(side) > kSmallest * lengths))
        place.fail(Text::tr("the camera has no direction, or looks along \"viewUp\""));
}

static CameraState cameraOf(Place place)
{
    CameraState camera;
    camera.isFitted = !place.json().contains("focalPoint");
    place.readMembers(
        {{"position", [&](Place point) { camera.position = numbersOf<3>(point); }},
         {"viewUp", [&](Place direction) { camera.viewUp = numbersOf<3>(direction); }},
         {"focalPoint", [&](Place point) { camera.focalPoint = numbersOf<3>(point); }},
         {"parallelScale", [&](Place scale) { camera.parallelScale = positiveNumber(scale); }},
         {"box", [&](Place box) { camera.fitBox = boxOf(box); }},
         {"parallel", [&](Place parallel) { camera.isParallel = parallel.boolean(); }}});
    if (!camera.isFitted)
        for (const char* const key : {"position", "viewUp", "parallelScale"})
            place.member(key); // must be there
    camera.isOfAll = !camera.fitBox.IsValid();
    requireDirections(camera, place);
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

static std::array<AxisRange, kAxisCount> rangesOf(Place place)
{
    std::array<AxisRange, kAxisCount> ranges;
    std::size_t axis = 0;
    place.forEachElement([&](Place element) {
        if (axis < kAxisCount && !element.json().is_null()) {
            const auto [minimum, maximum] = numbersOf<2>(element);
            if (!(minimum < maximum))
                element.fail(Text::tr("the minimum is not below the maximum"));
            ranges[axis] = {minimum, maximum};
        }
        ++axis;
    });
    if (axis > kAxisCount)
        place.fail(Text::tr("must be ranges of at most %1 axes").arg(kAxisCount));
    return ranges;
}

static ChartRange chartRangeOf(Place place)
{
    ChartRange range {rangesOf(place.member("first")), rangesOf(place.member("second"))};
    place.readMembers({{"first", [](Place) {}}, {"second", [](Place) {}}});
    return range;
}

static std::any viewOf(int plotType, Place place)
{
    switch (plotType) {
    case PlotType_Field2D:
    case PlotType_Field3D: return cameraOf(place);
    case PlotType_LineXY:
    case PlotType_LinePolar: return chartRangeOf(place);
    default: place.fail(Text::tr("frames of this plot type have no view"));
    }
}

void checkView(int plotType, const host::storage::JsonPlace& view)
{
    viewOf(plotType, view);
}

static Json json(const std::any& view, PlotType_e plotType)
{
    if (const auto* const camera = std::any_cast<CameraState>(&view)) {
        const bool isFlat = plotType == PlotType_Field2D;
        const bool isWhole = isFlat ? isFittedToAll(*camera) : isUsual(*camera);
        return isWhole ? Json() : json(*camera, isFlat);
    }
    if (const auto* const range = std::any_cast<ChartRange>(&view))
        return {{"first", json(range->first)}, {"second", json(range->second)}};
    return {};
}

std::string viewText(const std::any& view, PlotType_e plotType)
{
    const Json result = json(view, plotType);
    const std::string text = result.is_null() ? std::string() : result.dump();
    return viewOf(text, plotType).has_value() ? text : std::string();
}

std::any viewOf(const std::string& text, PlotType_e plotType)
{
    try {
        const Json parsed = Json::parse(text);
        return viewOf(plotType, host::storage::JsonPlace(parsed));
    } catch (const Json::exception&) {
        return {}; // also where there is no text
    } catch (const host::storage::DocumentError&) {
        return {};
    }
}

std::any storedView(const host::Frame& frame, PlotType_e plotType)
{
    const auto view = frame.views().find(plotType);
    return view == frame.views().end() ? std::any() : viewOf(view->second, plotType);
}

} // namespace corvala::plot
