// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <vocabulary/choices.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

// Shown behind the character of a character symbol, as another name for its font.
inline constexpr style::Choice kFontMarks[] = {
    {FontOverride_Greek, CV_TEXT("(Greek)")},
    {FontOverride_Math, CV_TEXT("(Math)")},
    {FontOverride_User, CV_TEXT("(User)")},
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
