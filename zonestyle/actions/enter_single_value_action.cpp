// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/enter_single_value_action.h"

#include "zonestyle/actions/prompt_parent.h"

#include <sdk/dialogs_prompt/enter_number_dialog.h>

#include <QPointer>

#include <type_traits>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

template<class T>
constexpr int kDecimals = std::is_integral_v<T> ? 0 : 2;

template<class T>
EnterSingleValueAction<T>::EnterSingleValueAction(const QString& text,
                                                  const QModelIndexList& selectedIndexes,
                                                  const QString& title, const QString& label,
                                                  T minimum, T maximum, const StyleTarget& target)
    : StyleAction<T>(text, selectedIndexes, minimum, target)
    , m_title(title)
    , m_label(label)
    , m_minimum(minimum)
    , m_maximum(maximum)
{
}

template<class T>
void EnterSingleValueAction<T>::invokeAction()
{
    m_wasAccepted = false;
    if (this->selectedIndexes().isEmpty())
        return;
    const QPointer<Action> self(this);
    const std::optional<double> value = corvala::dialogs::prompt::enterNumber(
        promptParent(), {m_title, m_label, double(m_minimum), double(m_maximum), kDecimals<T>},
        this->firstValue());
    if (!value || !self)
        return;
    m_wasAccepted = true;
    this->write(static_cast<T>(*value));
}

template class EnterSingleValueAction<double>;
template class EnterSingleValueAction<int>;

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
