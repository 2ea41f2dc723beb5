// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/document.h"

#include <string>
#include <tuple>

namespace corvala::plot {

/// What is inside of a symbol.
enum class SymbolFill {
    None,
    Line, ///< the colour of the line
    Color,
    Points ///< a colour by point
};

/// How points are drawn, as far as a mapper cannot vary it by block.
struct SymbolLook
{
    static constexpr int kNone = -1; ///< points are no symbols

    int shape = kNone; ///< a GeomShape_e
    bool isSolid = false; ///< a body with light on it
    bool hasOwnSizes = false; ///< each point has its own
    double size = 0.0; ///< else, in percent of the frame's height
    SymbolFill fill = SymbolFill::None;
    std::uint32_t fillColor = 0; ///< red, green and blue, eight bits each
    std::string character; ///< UTF-8
    int font = FontOverride_None; ///< of the character

    /// Whether points have a size or a colour of the inside of their own.
    bool hasPointData() const { return hasOwnSizes || fill == SymbolFill::Points; }
    auto tied() const
    {
        return std::tie(shape, isSolid, hasOwnSizes, size, fill, fillColor, character, font);
    }
};

inline bool operator<(const SymbolLook& left, const SymbolLook& right)
{
    return left.tied() < right.tied();
}
inline bool operator==(const SymbolLook& left, const SymbolLook& right)
{
    return left.tied() == right.tied();
}

} // namespace corvala::plot
