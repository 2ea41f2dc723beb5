// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/size_actions.h"

#include <QtGlobal>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::prompts {

// Deliberate: prompts of field tables have the sentence as their title, those of line tables have
// it as the label.

inline constexpr actions::PromptTexts kFieldPatternLength {
    QT_TRANSLATE_NOOP("Prompt", "Enter the value for the line pattern length"),
    QT_TRANSLATE_NOOP("Prompt", "Line Pattern Length [%]")};

inline constexpr actions::PromptTexts kFieldLineThickness {
    QT_TRANSLATE_NOOP("Prompt", "Enter the value for the line thickness"),
    QT_TRANSLATE_NOOP("Prompt", "Line Thickness [%]")};

inline constexpr actions::PromptTexts kScatterSize {
    QT_TRANSLATE_NOOP("Prompt", "Enter the size of scatter symbols in frame units"),
    QT_TRANSLATE_NOOP("Prompt", "Size [%]")};

inline constexpr actions::PromptTexts kLinePatternLength {
    QT_TRANSLATE_NOOP("Prompt", "Line Pattern Length [%]"),
    QT_TRANSLATE_NOOP("Prompt", "Enter the value for the line pattern length")};

inline constexpr actions::PromptTexts kLineThickness {
    QT_TRANSLATE_NOOP("Prompt", "Line Thickness [%]"),
    QT_TRANSLATE_NOOP("Prompt", "Enter the value for the line thickness")};

inline constexpr actions::PromptTexts kLineSymbolSize {
    QT_TRANSLATE_NOOP("Prompt", "Size [%]"),
    QT_TRANSLATE_NOOP("Prompt", "Enter the size of symbols in frame units")};

inline constexpr actions::PromptTexts kErrorBarSize {
    QT_TRANSLATE_NOOP("Prompt", "Size [%]"),
    QT_TRANSLATE_NOOP("Prompt", "Enter the size of error bars in frame units")};

inline constexpr actions::PromptTexts kBarSize {
    QT_TRANSLATE_NOOP("Prompt", "Size [%]"),
    QT_TRANSLATE_NOOP("Prompt", "Enter the width of the bars in frame units")};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::prompts
