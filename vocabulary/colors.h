// SPDX-License-Identifier: BSD-3-Clause
#pragma once

namespace corvala::style {

// What the number of a colour stands for: 0 to 63 an entry of the palette, 101 to 108 the colours
// of a contour group, 109 those mixed from the RGB channels.

inline constexpr int kPaletteColors = 64;
inline constexpr int kFirstGroupColor = 101;
inline constexpr int kRgbColor = 109;

constexpr bool isPaletteColor(double color)
{
    return color >= 0 && color < kPaletteColors;
}

/// The contour group that gives the colour, from 1; 0 when none does.
constexpr int contourGroupOf(int color)
{
    return color >= kFirstGroupColor && color < kRgbColor ? color - kFirstGroupColor + 1 : 0;
}

} // namespace corvala::style
