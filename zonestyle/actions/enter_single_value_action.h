// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/style_action.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// Asks for a number, starting from the first selected map's, and writes it to all selected maps.
/// Reals are entered with two decimals.
template<class T>
class EnterSingleValueAction : public StyleAction<T>
{
public:
    /// Title and label are shown as they are; both limits can be entered.
    EnterSingleValueAction(const QString& text, const QModelIndexList& selectedIndexes,
                           const QString& title, const QString& label, T minimum, T maximum,
                           const StyleTarget& target);

    void invokeAction() override;
    bool isPresentValue() const override { return false; }

    /// The prompt was accepted, not cancelled, when the action was triggered last.
    bool wasAccepted() const { return m_wasAccepted; }

private:
    QString m_title;
    QString m_label;
    T m_minimum;
    T m_maximum;
    bool m_wasAccepted = false;
};

extern template class EnterSingleValueAction<double>;
extern template class EnterSingleValueAction<int>;

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
