// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/enter_three_value_action.h"

#include "zonestyle/actions/prompt_parent.h"
#include "zonestyle/actions/style_write.h"

#include <sdk/dialogs_prompt/enter_three_int_values_dialog.h>
#include <sdk/uicommon/edit_session.h>

#include <QCoreApplication>
#include <QPointer>

#include <limits>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

using corvala::dialogs::prompt::EnterThreeIntValuesDialog;

static QString translated(const char* text)
{
    return QCoreApplication::translate("Prompt", text);
}

static EnterThreeIntValuesDialog& preparedDialog(const ThreeValuePrompt& prompt,
                                                 const ThreeValues& values)
{
    const auto range = [&](std::size_t i) {
        return EnterThreeIntValuesDialog::Range {prompt.minima[i], std::numeric_limits<int>::max()};
    };
    auto& dialog = EnterThreeIntValuesDialog::getInstance(&promptParent());
    dialog.setTitle(translated(prompt.title));
    dialog.setLabels(translated(prompt.labels[0]), translated(prompt.labels[1]),
                     translated(prompt.labels[2]));
    dialog.setHelpReference(QString::fromLatin1(prompt.helpReference));
    dialog.setRanges(range(0), range(1), range(2));
    dialog.setValues(values[0], values[1], values[2]);
    return dialog;
}

EnterThreeValueAction::EnterThreeValueAction(const QString& text,
                                             const QModelIndexList& selectedIndexes,
                                             const ThreeValuePrompt& prompt, const StylePath& group)
    : Action(text, selectedIndexes)
    , m_prompt(prompt)
    , m_group(group)
{
}

ThreeValues EnterThreeValueAction::firstValues() const
{
    ThreeValues values {};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto style = accessor<toolbox::StyleValue>(m_group / m_prompt.names[i]);
        values[i] = style.read<int>(firstMap()).value_or(m_prompt.minima[i]);
    }
    return values;
}

void EnterThreeValueAction::invokeAction()
{
    if (selectedIndexes().isEmpty())
        return;
    const QPointer<Action> self(this);
    const QPointer<EnterThreeIntValuesDialog> dialog(&preparedDialog(m_prompt, firstValues()));
    if (corvala::sdk::ui::execInEditSession(*dialog) == QDialog::Accepted && self && dialog)
        runAction<ThreeValueAction>(text(), selectedIndexes(), dialog->values(), m_group,
                                    m_prompt.names);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
