// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/tables/choice_names.h"

#include <sdk/base/enums.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

inline constexpr Choice kContourTypes[] = {
    {ContourType_Lines, QT_TRANSLATE_NOOP("Choice", "Lines")},
    {ContourType_Flood, QT_TRANSLATE_NOOP("Choice", "Flood")},
    {ContourType_LinesAndFlood, QT_TRANSLATE_NOOP("Choice", "Lines and flood")},
    {ContourType_AverageCellFlood, QT_TRANSLATE_NOOP("Choice", "Average cell flood")},
    {ContourType_PrimaryValueFlood, QT_TRANSLATE_NOOP("Choice", "Primary value flood")},
};

// The colourings that are no contour group; a group is named by its number and variable.
inline constexpr Choice kContourColorings[] = {
    {ContourColoring_RGB, QT_TRANSLATE_NOOP("Choice", "RGB")},
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
