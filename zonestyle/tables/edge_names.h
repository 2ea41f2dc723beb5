// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/tables/choice_names.h"

#include <sdk/base/enums.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

inline constexpr Choice kEdgeTypes[] = {
    {EdgeType_Borders, QT_TRANSLATE_NOOP("Choice", "Borders")},
    {EdgeType_Creases, QT_TRANSLATE_NOOP("Choice", "Creases")},
    {EdgeType_BordersAndCreases, QT_TRANSLATE_NOOP("Choice", "Borders and creases")},
};

inline constexpr Choice kBorderLocations[] = {
    {BorderLocation_None, QT_TRANSLATE_NOOP("Choice", "None")},
    {BorderLocation_MinOnly, QT_TRANSLATE_NOOP("Choice", "Min only")},
    {BorderLocation_MaxOnly, QT_TRANSLATE_NOOP("Choice", "Max only")},
    {BorderLocation_Both, QT_TRANSLATE_NOOP("Choice", "Both")},
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
