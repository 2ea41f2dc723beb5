// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/tables/choice_names.h"

#include <sdk/base/enums.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

inline constexpr Choice kLinePatterns[] = {
    {LinePattern_Solid, QT_TRANSLATE_NOOP("Choice", "Solid")},
    {LinePattern_Dashed, QT_TRANSLATE_NOOP("Choice", "Dashed")},
    {LinePattern_DashDot, QT_TRANSLATE_NOOP("Choice", "Dash dot")},
    {LinePattern_Dotted, QT_TRANSLATE_NOOP("Choice", "Dotted")},
    {LinePattern_LongDash, QT_TRANSLATE_NOOP("Choice", "Long dash")},
    {LinePattern_DashDotDot, QT_TRANSLATE_NOOP("Choice", "Dash dot dot")},
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
