// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/tables/choice_names.h"

#include <sdk/base/enums.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

inline constexpr Choice kLightingEffects[] = {
    {LightingEffect_Paneled, QT_TRANSLATE_NOOP("Choice", "Paneled")},
    {LightingEffect_Gouraud, QT_TRANSLATE_NOOP("Choice", "Gouraud")},
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
