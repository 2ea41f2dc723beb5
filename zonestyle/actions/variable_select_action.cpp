// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/variable_select_action.h"

#include "zonestyle/actions/prompt_parent.h"

#include <sdk/base/cvl.h>
#include <sdk/common/common.h>
#include <sdk/toolbox/set.h>
#include <sdk/uicommon/edit_session.h>

#include <QInputDialog>
#include <QPointer>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

static QList<int> enabledVariables()
{
    QList<int> variables;
    CvlSetHandle enabled = CvlUtilVarGetEnabled();
    for (const CvlInt64 variable : toolbox::SetMembers(enabled))
        variables.append(static_cast<int>(variable));
    CvlUtilSetDealloc(&enabled);
    return variables;
}

static QStringList variableNames(const QList<int>& variables)
{
    QStringList names;
    for (const int variable : variables)
        names.append(QString::fromStdString(variableNameFormattedForAliases(variable)));
    return names;
}

std::optional<int> chooseVariable(const QString& title, const QString& label, int present)
{
    const QList<int> variables = enabledVariables();
    if (variables.isEmpty())
        return std::nullopt;
    const QStringList names = variableNames(variables);
    const QPointer<QInputDialog> prompt(new QInputDialog(&promptParent()));
    prompt->setWindowTitle(title);
    prompt->setLabelText(label);
    prompt->setComboBoxItems(names);
    prompt->setTextValue(names.value(variables.indexOf(present)));
    const bool isAccepted = execInEditSession(*prompt) == QDialog::Accepted;
    const QString name = isAccepted ? prompt->textValue() : QString();
    delete prompt;
    // Of variables with the same name only the first can be chosen.
    return isAccepted ? std::optional<int>(variables.at(names.indexOf(name))) : std::nullopt;
}

VariableSelectAction::VariableSelectAction(const QString& text,
                                           const QModelIndexList& selectedIndexes,
                                           const QString& title, const QString& label,
                                           const StyleTarget& target)
    : StyleAction<int>(text, selectedIndexes, 0, target)
    , m_title(title)
    , m_label(label)
{
}

void VariableSelectAction::invokeAction()
{
    if (selectedIndexes().isEmpty())
        return;
    const QPointer<Action> self(this);
    const std::optional<int> variable = chooseVariable(m_title, m_label, firstValue());
    if (variable && self)
        write(*variable);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
