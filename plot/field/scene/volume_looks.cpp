// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/volume_looks.h"

#include "plot/common/number_list.h"
#include "plot/field/scene/map_style.h"
#include "plot/field/scene/proposals.h"

namespace corvala::plot {

static constexpr const auto& kMap = style::fieldMap;

static bool showsObject(const ShownMap& shown, style::SwitchKey key)
{
    return shown.is3D() && shown.zone != 0 && shown.frame.data()->zone(shown.zone).isVolume()
        && shown.frame.fieldInteger(key, shown.map) != 0;
}

/// Faces within a map in the colours of the frame, lit and smooth. Nothing when there is no
/// variable for the colours.
static std::optional<BlockLook> facesLook(const MapStyle& map, const SurfaceChoice& surfaces,
                                          int coloring, const ContourGroups& groups)
{
    BlockLook look;
    look.recipe.kind = BlockKind::Flood;
    look.recipe.zone = map.shown().zone;
    SurfaceChoice choice = surfaces;
    choice.blanking = map.blanking();
    look.recipe.surfaces = choice.normalized(map.shown().frame.data()->zone(look.recipe.zone));
    look.recipe.normals = true;
    look.mapper.lit = look.mapper.smooth = true;
    look.mapper.shiny = map.shown().frame.isOn(style::fieldLayers.useLightingEffect);
    // Without a surface that may be translucent, the translucency says nothing: its cells are grey.
    const bool showsSurface = map.showsHiddenLines() || map.showsShade() || map.showsFlood(groups);
    look.mapper.translucency = showsSurface ? map.translucency() : 0;
    if (!map.setFlood(look, coloring, groups))
        return std::nullopt;
    return look;
}

/// The plane of one index; no surface for zones without it.
static SurfaceChoice indexPlane(const MapStyle& map, int number, int axis)
{
    constexpr const auto& slices = style::slices;
    const host::ZoneInfo& zone = map.shown().frame.data()->zone(map.shown().zone);
    const std::int64_t last = zone.dimensions[static_cast<std::size_t>(axis)];
    const double position = map.frameFlag(slices.automaticPosition, number)
        ? middlePlane(zone, axis)
        : std::round(map.frameReal(slices.position, number));
    SurfaceChoice choice;
    choice.surfaces = SurfacesToPlot_None;
    if (zone.ordered && position >= 1.0 && position <= static_cast<double>(last)) {
        const int plane = static_cast<int>(position);
        choice.surfaces = static_cast<SurfacesToPlot_e>(SurfacesToPlot_IPlanes + axis);
        choice.planes[static_cast<std::size_t>(axis)] = {plane, plane, 1};
    }
    return choice;
}

static SurfaceChoice coordinatePlane(const MapStyle& map, int number, int group,
                                     const ContourGroups& groups)
{
    constexpr const auto& slices = style::slices;
    SurfaceChoice choice;
    choice.surfaces = SurfacesToPlot_None;
    choice.iso.variable = groups.variable(group);
    if (const auto place = map.inForce(slices.automaticPosition, slices.position, groups, number))
        choice.iso.values = {*place};
    return choice;
}

std::optional<BlockLook> sliceLook(int number, const ShownMap& shown, const ContourGroups& groups)
{
    constexpr const auto& slices = style::slices;
    const MapStyle map(shown);
    if (!showsObject(shown, kMap.volumeObjects.showSlices) || !map.frameFlag(slices.show, number))
        return std::nullopt;
    const int plane = map.frameNumber(slices.plane, number);
    const bool isOfIndex = plane >= SlicePlane_I;
    const int group = ContourGroups::kPlace + plane;
    auto look = facesLook(map,
                          isOfIndex ? indexPlane(map, number, plane - SlicePlane_I)
                                    : coordinatePlane(map, number, group, groups),
                          map.frameNumber(slices.coloring, number), groups);
    // A plane has no shape that light would show: its colours are those of the legend.
    if (look && !isOfIndex)
        look->mapper.lit = look->mapper.smooth = look->mapper.shiny = look->recipe.normals = false;
    if (look && !isOfIndex)
        look->recipe.placeGroup = ContourGroups::kPlace;
    return look;
}

/// As many values as there are to be surfaces; none while they are not known.
static std::vector<double> isoValues(const MapStyle& map, const ContourGroups& groups)
{
    constexpr const auto& iso = style::isoSurfaces;
    constexpr style::RealKey kValues[] = {iso.value1, iso.value2, iso.value3};
    std::vector<double> values;
    for (int i = 0; i < map.frameNumber(iso.count); ++i)
        if (const auto value = map.inForce(iso.automaticValues, kValues[i], groups))
            values.push_back(*value);
    return values;
}

std::optional<BlockLook> isoSurfacesLook(const ShownMap& shown, const ContourGroups& groups)
{
    constexpr const auto& iso = style::isoSurfaces;
    const MapStyle map(shown);
    if (!showsObject(shown, kMap.volumeObjects.showIsosurfaces)
        || groups.variable(ContourGroups::kIso) == 0)
        return std::nullopt;
    SurfaceChoice choice;
    choice.iso = {groups.variable(ContourGroups::kIso), isoValues(map, groups)};
    auto look = facesLook(map, choice, map.frameNumber(iso.coloring), groups);
    if (look)
        look->recipe.placeGroup = ContourGroups::kIso;
    return look;
}

std::vector<StreamMap> streamMaps(const host::Frame& frame)
{
    std::vector<StreamMap> maps;
    for (const std::uint32_t map : frame.activeFieldMaps()) {
        const ShownMap shown {frame, map, frame.candidateZone(map)};
        const bool isEnabled = shown.zone != 0
            && frame.enabledZones().contains(static_cast<std::uint32_t>(shown.zone));
        if (isEnabled && showsObject(shown, kMap.volumeObjects.showStreamtraces))
            maps.push_back({map, {shown.zone, MapStyle(shown).blanking()}});
    }
    return maps;
}

std::vector<double> pointsIn(const std::string& text)
{
    std::vector<double> numbers = numbersIn(text).numbers;
    numbers.resize(numbers.size() / 3 * 3);
    return numbers;
}

static StreamChoice streamChoice(const MapStyle& map)
{
    constexpr const auto& streams = style::streamtraces;
    constexpr style::RealKey kRake[] = {streams.startX, streams.startY, streams.startZ,
                                        streams.endX,   streams.endY,   streams.endZ};
    constexpr style::Key kVector[] = {style::globalVector.uVar, style::globalVector.vVar,
                                      style::globalVector.wVar};
    StreamChoice choice;
    for (std::size_t axis = 0; axis < 3; ++axis)
        choice.vector[axis] = map.frameNumber(kVector[axis]);
    choice.direction = static_cast<StreamDirection_e>(map.frameNumber(streams.direction));
    choice.seedCount = map.frameNumber(streams.seedCount);
    choice.automaticRake = map.frameFlag(streams.automaticRake);
    for (std::size_t i = 0; i < choice.rake.size() && !choice.automaticRake; ++i)
        choice.rake[i] = map.frameReal(kRake[i]);
    choice.points = pointsIn(map.frameText(streams.points));
    return choice;
}

std::optional<BlockLook> streamtracesLook(const ShownMap& shown, const ContourGroups& groups)
{
    constexpr const auto& streams = style::streamtraces;
    if (!showsObject(shown, kMap.volumeObjects.showStreamtraces))
        return std::nullopt;
    const MapStyle map(shown);
    BlockLook look;
    look.recipe.kind = BlockKind::Streamtraces;
    look.recipe.zone = shown.zone;
    look.recipe.streams = streamChoice(map);
    look.mapper.thickness = map.frameReal(streams.lineThickness);
    map.setLineColor(look, map.frameNumber(streams.color), groups);
    return look;
}

} // namespace corvala::plot
