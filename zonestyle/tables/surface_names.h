// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/tables/choice_names.h"

#include <sdk/base/enums.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

// Deliberate: offered with "None" first, so that the position in a list is not the value.
inline constexpr Choice kSurfacesToPlot[] = {
    {SurfacesToPlot_None, QT_TRANSLATE_NOOP("Choice", "None")},
    {SurfacesToPlot_BoundaryCellFaces, QT_TRANSLATE_NOOP("Choice", "Boundary cell faces")},
    {SurfacesToPlot_ExposedCellFaces, QT_TRANSLATE_NOOP("Choice", "Exposed cell faces")},
    {SurfacesToPlot_IPlanes, QT_TRANSLATE_NOOP("Choice", "I-Planes")},
    {SurfacesToPlot_JPlanes, QT_TRANSLATE_NOOP("Choice", "J-Planes")},
    {SurfacesToPlot_KPlanes, QT_TRANSLATE_NOOP("Choice", "K-Planes")},
    {SurfacesToPlot_IJPlanes, QT_TRANSLATE_NOOP("Choice", "IJ-Planes")},
    {SurfacesToPlot_JKPlanes, QT_TRANSLATE_NOOP("Choice", "JK-Planes")},
    {SurfacesToPlot_IKPlanes, QT_TRANSLATE_NOOP("Choice", "IK-Planes")},
    {SurfacesToPlot_IJKPlanes, QT_TRANSLATE_NOOP("Choice", "IJK-Planes")},
    {SurfacesToPlot_All, QT_TRANSLATE_NOOP("Choice", "All surfaces")},
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
