// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/geometry/block_builder.h"
#include "plot/field/scene/group_ranges.h"

#include <functional>
#include <memory>
#include <optional>

namespace corvala::plot {

/// Zones with as many points or cells take longer than a slice of work.
bool isLarge(const host::ZoneInfo& zone);

/// What another thread makes of a large zone: ranges of values, or the geometry of one block.
struct ScenePiece
{
    std::vector<std::pair<GroupRanges::Unknown, GroupRanges::Range>> ranges;
    CvlInt64 map = 0;
    std::optional<BlockRecipe> recipe;
    ShapePieces block;
    std::vector<PlacedSurface> surfaces; ///< of the block's map
    StreamStart start; ///< of a block of streamtraces

    bool isBlock(CvlInt64 ofMap, const BlockRecipe& from) const
    {
        return map == ofMap && recipe && *recipe == from;
    }
};

/// From what a block is made; `surfaces` are those that its map has already.
struct BlockOrder
{
    std::shared_ptr<const host::DataSet> data;
    ContourGroups groups;
    std::shared_ptr<SurfaceCache> cache;
    CvlInt64 map = 0;
    BlockRecipe recipe;
    bool isFlat = false;
    std::vector<PlacedSurface> surfaces;
};

// Functions for another thread; they share nothing with the caller that changes.
std::function<ScenePiece()> makerOfRanges(std::shared_ptr<const host::DataSet> data,
                                          std::vector<GroupRanges::Unknown> wanted);
std::function<ScenePiece()> makerOfBlock(BlockOrder order);

} // namespace corvala::plot
