// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/enter_three_value_action.h"

#include <QtGlobal>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::prompts {

inline constexpr actions::ThreeValuePrompt kRange {
    QT_TRANSLATE_NOOP("Prompt", "Enter Range"),
    {{QT_TRANSLATE_NOOP("Prompt", "&Begin"), QT_TRANSLATE_NOOP("Prompt", "&End"),
      QT_TRANSLATE_NOOP("Prompt", "&Skip")}},
    "fieldplt.html#_enter_range"};

inline constexpr actions::ThreeValuePrompt kSkip {
    QT_TRANSLATE_NOOP("Prompt", "Enter Index Skipping"),
    {{QT_TRANSLATE_NOOP("Prompt", "&I skip"), QT_TRANSLATE_NOOP("Prompt", "&J skip"),
      QT_TRANSLATE_NOOP("Prompt", "&K skip")}},
    "fieldplt.html#_enter_index_skipping"};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::prompts
