// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/proposals.h"

#include "host/style/schema.h"

#include <algorithm>
#include <iterator>

namespace corvala::plot {

static std::optional<double> proposedLevel(const ContourGroups& groups, style::Key value, int group)
{
    if (!groups.hasRange(group))
        return std::nullopt;
    const ContourLevels& levels = groups.levels(group);
    return value == style::contourGroups.levelMin ? std::optional(levels.minimum)
        : value == style::contourGroups.levelMax  ? std::optional(levels.maximum())
        : value == style::contourGroups.bandCount ? std::optional<double>(levels.bands)
                                                  : std::nullopt;
}

/// So far from the least to the largest value of a group; nothing without values.
static std::optional<double> between(const ContourGroups& groups, int group, double share)
{
    if (!groups.hasRange(group))
        return std::nullopt;
    return groups.minimum(group) + share * (groups.maximum(group) - groups.minimum(group));
}

/// Values are evenly spread.
static std::optional<double> proposedIso(const host::Frame& frame, const ContourGroups& groups,
                                         style::Key value)
{
    constexpr const auto& iso = style::isoSurfaces;
    constexpr style::Key kValues[] = {iso.value1, iso.value2, iso.value3};
    const auto* const found = std::find(std::begin(kValues), std::end(kValues), value);
    const int count = frame.integer(iso.count);
    const auto number = static_cast<int>(found - std::begin(kValues)) + 1;
    return found == std::end(kValues) || number > count
        ? std::nullopt
        : between(groups, ContourGroups::kIso, double(number) / (count + 1));
}

static std::optional<double> proposedPlane(const host::Frame& frame, int axis)
{
    for (const std::uint32_t map : frame.activeFieldMaps()) {
        const CvlInt64 zone = frame.candidateZone(map);
        if (zone != 0 && frame.data()->zone(zone).ordered && frame.data()->zone(zone).isVolume())
            return middlePlane(frame.data()->zone(zone), axis);
    }
    return std::nullopt;
}

std::optional<double> proposedValue(const host::Frame& frame, const ContourGroups& groups,
                                    style::Key value, int index)
{
    if (style::isInGroupOf(value, style::contourGroups.var))
        return proposedLevel(groups, value, index);
    if (value == style::slices.position) {
        const int plane = frame.integer(style::slices.plane, index);
        return plane < SlicePlane_I ? between(groups, ContourGroups::kPlace + plane, 0.5)
                                    : proposedPlane(frame, plane - SlicePlane_I);
    }
    if (style::isInGroupOf(value, style::isoSurfaces.var))
        return proposedIso(frame, groups, value);
    const VectorScale scale = groups.vectorScale();
    if (value == style::globalVector.lengthOfOne)
        return scale.lengthOfOne > 0.0 ? std::optional(scale.lengthOfOne) : std::nullopt;
    return value == style::globalScatter.rangeMin ? between(groups, ContourGroups::kSize, 0.0)
        : value == style::globalScatter.rangeMax  ? between(groups, ContourGroups::kSize, 1.0)
                                                  : std::nullopt;
}

int middlePlane(const host::ZoneInfo& zone, int axis)
{
    return static_cast<int>((zone.dimensions[static_cast<std::size_t>(axis)] + 1) / 2);
}

} // namespace corvala::plot
