// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/style_action.h"

#include <optional>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// Asks for one of the enabled variables, beginning with a present one. Nothing when the user
/// cancels, there is none, or what it was for is gone. Title and label are shown as they are.
std::optional<int> chooseVariable(const QString& title, const QString& label, int present);

/// Asks for one of the enabled variables and writes its number to the selected line maps.
class VariableSelectAction : public StyleAction<int>
{
public:
    VariableSelectAction(const QString& text, const QModelIndexList& selectedIndexes,
                         const QString& title, const QString& label, const StyleTarget& target);

    void invokeAction() override;
    bool isPresentValue() const override { return false; }

private:
    QString m_title;
    QString m_label;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
