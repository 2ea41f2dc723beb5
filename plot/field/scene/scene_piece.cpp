// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/scene_piece.h"

#include <algorithm>

namespace corvala::plot {

bool isLarge(const host::ZoneInfo& zone)
{
    constexpr std::int64_t kMany = 50'000;
    return std::max(zone.pointCount, zone.cellCount) >= kMany;
}

std::function<ScenePiece()> makerOfRanges(std::shared_ptr<const host::DataSet> data,
                                          std::vector<GroupRanges::Unknown> wanted)
{
    return [data = std::move(data), wanted = std::move(wanted)] {
        ScenePiece piece;
        for (const GroupRanges::Unknown& values : wanted)
            piece.ranges.emplace_back(values, GroupRanges::rangeOf(*data, values));
        return piece;
    };
}

std::function<ScenePiece()> makerOfBlock(BlockOrder order)
{
    for (PlacedSurface& placed : order.surfaces)
        placed.shape = separateShape(*placed.shape);
    return [order = std::move(order)]() mutable {
        ScenePiece piece;
        piece.map = order.map;
        piece.recipe = order.recipe;
        piece.surfaces = std::move(order.surfaces);
        const auto height = static_cast<double>(order.map);
        piece.block = BlockBuilder(*order.data, order.groups, *order.cache)
                          .build(order.recipe, order.isFlat ? &height : nullptr, piece.surfaces,
                                 &piece.start);
        for (const PlacedSurface& placed : piece.surfaces)
            placed.shape->GetBounds(); // are kept
        return piece;
    };
}

} // namespace corvala::plot
