// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/prompt_parent.h"

#include <sdk/common_ui/find_main_window.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

static PromptParentProvider theProvider = nullptr;

void setPromptParentProvider(PromptParentProvider provider)
{
    theProvider = provider;
}

QWidget& promptParent()
{
    return theProvider ? theProvider() : corvala::ui::findMainWindow();
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
