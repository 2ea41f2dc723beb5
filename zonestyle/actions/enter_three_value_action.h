// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/three_value_action.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// How three integers are asked for. Title and labels are English, in the translation context
/// "Prompt".
struct ThreeValuePrompt
{
    const char* title;
    std::array<const char*, 3> labels;
    const char* helpReference;
};

/// Asks for three integers, starting from the first selected map's, and writes them to all
/// selected maps.
class EnterThreeValueAction : public Action
{
public:
    /// The prompt must outlive the action.
    EnterThreeValueAction(const QString& text, const QModelIndexList& selectedIndexes,
                          const ThreeValuePrompt& prompt, const ThreeKeys& keys);

    void invokeAction() override;

private:
    ThreeValues firstValues() const;

    const ThreeValuePrompt& m_prompt;
    ThreeKeys m_keys;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
