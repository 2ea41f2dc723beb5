// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/document.h"
#include "plot/field/geometry/block_recipe.h"
#include "plot/field/scene/symbol_look.h"

#include <tuple>

namespace corvala::plot {

/// What all blocks of one mapper have in common, because a mapper cannot vary it by block.
struct MapperLook
{
    double thickness = 0.0; ///< of lines, in percent of the frame's height
    int pattern = LinePattern_Solid;
    double patternLength = 0.0; ///< in percent of the frame's height; 0 for solid lines
    bool lit = false;
    bool smooth = false; ///< light is interpolated between points
    bool shiny = false; ///< with highlights
    bool inFront = false; ///< seen through everything else
    int floodGroup = 0; ///< coloured by the bands of this contour group
    bool ownColors = false; ///< coloured by an array of the blocks
    int translucency = 0; ///< of faces, in percent
    SymbolLook symbol; ///< of points

    auto tied() const
    {
        return std::tie(thickness, pattern, patternLength, lit, smooth, shiny, inFront, floodGroup,
                        ownColors, translucency, symbol);
    }
};

inline bool operator<(const MapperLook& left, const MapperLook& right)
{
    return left.tied() < right.tied();
}
inline bool operator==(const MapperLook& left, const MapperLook& right)
{
    return left.tied() == right.tied();
}

inline bool isSameColor(const host::Rgb& left, const host::Rgb& right)
{
    return left.red == right.red && left.green == right.green && left.blue == right.blue;
}

/// How one map looks in one layer.
struct BlockLook
{
    MapperLook mapper;
    BlockRecipe recipe;
    host::Rgb color {0, 0, 0};
};

} // namespace corvala::plot
