// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPen>

#include <array>

namespace corvala::plot {

/// What marks something that is selected: no colour of the first palettes.
inline QColor highlightColor()
{
    return {255, 120, 0};
}

/// Lines over whatever there is, one pen after the other.
inline std::array<QPen, 2> highlightPens()
{
    return {QPen(QColor(255, 255, 255, 180), 4.0, Qt::SolidLine, Qt::RoundCap),
            QPen(highlightColor(), 2.0, Qt::SolidLine, Qt::RoundCap)};
}

} // namespace corvala::plot
