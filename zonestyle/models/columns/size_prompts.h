// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/size_actions.h"

#include <QtGlobal>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::prompts {

inline constexpr actions::SizePrompt kFieldPatternLength {
    "LinePatLengths", QT_TRANSLATE_NOOP("Prompt", "Enter the value for the line pattern length"),
    QT_TRANSLATE_NOOP("Prompt", "Line Pattern Length [%]"), 0.01, 100.0};

inline constexpr actions::SizePrompt kFieldLineThickness {
    "LineThicknesses", QT_TRANSLATE_NOOP("Prompt", "Enter the value for the line thickness"),
    QT_TRANSLATE_NOOP("Prompt", "Line Thickness [%]"), 0.0001, 100.0};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::prompts
