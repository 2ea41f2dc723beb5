// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/enter_single_value_action.h"

#include "zonestyle/actions/prompt_parent.h"

#include <QInputDialog>
#include <QPointer>

#include <optional>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

static constexpr int kDecimals = 2;

static bool prompt(const QString& title, const QString& label, double minimum, double maximum,
                   double& value)
{
    bool accepted = false;
    value = QInputDialog::getDouble(&promptParent(), title, label, value, minimum, maximum,
                                    kDecimals, &accepted);
    return accepted;
}

static bool prompt(const QString& title, const QString& label, int minimum, int maximum, int& value)
{
    bool accepted = false;
    value =
        QInputDialog::getInt(&promptParent(), title, label, value, minimum, maximum, 1, &accepted);
    return accepted;
}

template<class T>
EnterSingleValueAction<T>::EnterSingleValueAction(const QString& text,
                                                  const QModelIndexList& selectedIndexes,
                                                  const QString& title, const QString& label,
                                                  T minimum, T maximum, const StylePath& path)
    : StyleAction<T>(text, selectedIndexes, minimum, path)
    , m_title(title)
    , m_label(label)
    , m_minimum(minimum)
    , m_maximum(maximum)
{
}

template<class T>
void EnterSingleValueAction<T>::invokeAction()
{
    if (this->selectedIndexes().isEmpty())
        return;
    const QPointer<Action> self(this);
    T value = this->firstValue();
    if (prompt(m_title, m_label, m_minimum, m_maximum, value) && self)
        this->write(value);
}

template class EnterSingleValueAction<double>;
template class EnterSingleValueAction<int>;

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
