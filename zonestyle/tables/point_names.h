// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/tables/choice_names.h"

#include <sdk/base/enums.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

inline constexpr Choice kPointsToPlot[] = {
    {PointsToPlot_SurfaceNodes, QT_TRANSLATE_NOOP("Choice", "Surface nodes")},
    {PointsToPlot_AllNodes, QT_TRANSLATE_NOOP("Choice", "All nodes")},
    {PointsToPlot_SurfaceCellCenters, QT_TRANSLATE_NOOP("Choice", "Surface cell centers")},
    {PointsToPlot_AllCellCenters, QT_TRANSLATE_NOOP("Choice", "All cell centers")},
    {PointsToPlot_AllConnectedNodes, QT_TRANSLATE_NOOP("Choice", "All connected nodes")},
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
