// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/tables/choice_names.h"

#include <sdk/base/enums.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

inline constexpr Choice kVectorTypes[] = {
    {VectorType_TailAtPoint, QT_TRANSLATE_NOOP("Choice", "Tail at point")},
    {VectorType_HeadAtPoint, QT_TRANSLATE_NOOP("Choice", "Head at point")},
    {VectorType_AnchorAtMidpoint, QT_TRANSLATE_NOOP("Choice", "Anchor at midpoint")},
    {VectorType_HeadOnly, QT_TRANSLATE_NOOP("Choice", "Head only")},
};

inline constexpr Choice kArrowheadStyles[] = {
    {ArrowheadStyle_Plain, QT_TRANSLATE_NOOP("Choice", "Plain")},
    {ArrowheadStyle_Filled, QT_TRANSLATE_NOOP("Choice", "Filled")},
    {ArrowheadStyle_Hollow, QT_TRANSLATE_NOOP("Choice", "Hollow")},
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
