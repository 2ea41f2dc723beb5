// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainterPath>

#include <string>

namespace corvala::plot {

/// What a symbol is drawn of, in units of half its size round its middle, downwards as on a screen.
struct SymbolPath
{
    QPainterPath outline; ///< what is filled, and stroked round
    QPainterPath details; ///< strokes besides
    bool isSolid = false; ///< the outline is filled with the colour of the line, not stroked
};

/// `shape` is a GeomShape_e; `character` and `font` (a FontOverride_e) count for a character.
SymbolPath symbolPath(int shape, const std::string& character, int font);

} // namespace corvala::plot
