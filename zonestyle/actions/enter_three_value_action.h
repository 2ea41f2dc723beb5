// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/three_value_action.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// What a prompt for three integers asks for. Title and labels are English, in the translation
/// context "Prompt".
struct ThreeValuePrompt
{
    const char* title;
    ThreeNames labels;
    ThreeNames names; ///< of the style values below the group
    ThreeValues minima; ///< there is no upper limit
    const char* helpReference;
};

/// Asks for three integers, starting from the first selected map's, and writes them to all
/// selected maps.
class EnterThreeValueAction : public Action
{
public:
    /// The prompt must outlive the action.
    EnterThreeValueAction(const QString& text, const QModelIndexList& selectedIndexes,
                          const ThreeValuePrompt& prompt, const StylePath& group);

    void invokeAction() override;

private:
    ThreeValues firstValues() const;

    const ThreeValuePrompt& m_prompt;
    StylePath m_group;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
