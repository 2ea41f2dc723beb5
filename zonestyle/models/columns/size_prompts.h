// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/size_actions.h"

#include <QtGlobal>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::prompts {

inline constexpr actions::PromptTexts kFieldPatternLength {
    QT_TRANSLATE_NOOP("Prompt", "Enter the value for the line pattern length"),
    QT_TRANSLATE_NOOP("Prompt", "Line Pattern Length [%]")};

inline constexpr actions::PromptTexts kFieldLineThickness {
    QT_TRANSLATE_NOOP("Prompt", "Enter the value for the line thickness"),
    QT_TRANSLATE_NOOP("Prompt", "Line Thickness [%]")};

inline constexpr actions::PromptTexts kScatterSize {
    QT_TRANSLATE_NOOP("Prompt", "Enter the size of scatter symbols in frame units"),
    QT_TRANSLATE_NOOP("Prompt", "Size [%]")};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::prompts
