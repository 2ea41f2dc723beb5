// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QWidget;

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

using PromptParentProvider = QWidget& (*)();

/// Tells where prompts get their parent window from. The dialog, which stands above the actions,
/// registers itself; null takes the registration back.
void setPromptParentProvider(PromptParentProvider provider);

/// The window over which a prompt is shown: the provider's, or the main window without one.
QWidget& promptParent();

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
