// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/enter_three_value_action.h"

#include "zonestyle/actions/prompt_parent.h"

#include <sdk/dialogs_prompt/enter_three_int_values_dialog.h>
#include <sdk/uicommon/edit_session.h>

#include <QCoreApplication>
#include <QPointer>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

using corvala::dialogs::prompt::EnterThreeIntValuesDialog;

static QString translated(const char* text)
{
    return QCoreApplication::translate("Prompt", text);
}

static EnterThreeIntValuesDialog::Range rangeOf(style::IntegerKey key)
{
    const style::Entry& entry = style::entryOf(key);
    return {static_cast<int>(entry.minimum), static_cast<int>(entry.maximum)};
}

static EnterThreeIntValuesDialog& preparedDialog(const ThreeValuePrompt& prompt,
                                                 const ThreeKeys& keys, const ThreeValues& values)
{
    auto& dialog = EnterThreeIntValuesDialog::getInstance(&promptParent());
    dialog.setTitle(translated(prompt.title));
    dialog.setLabels(translated(prompt.labels[0]), translated(prompt.labels[1]),
                     translated(prompt.labels[2]));
    dialog.setHelpReference(QString::fromLatin1(prompt.helpReference));
    dialog.setRanges(rangeOf(keys[0]), rangeOf(keys[1]), rangeOf(keys[2]));
    dialog.setValues(values[0], values[1], values[2]);
    return dialog;
}

EnterThreeValueAction::EnterThreeValueAction(const QString& text,
                                             const QModelIndexList& selectedIndexes,
                                             const ThreeValuePrompt& prompt, const ThreeKeys& keys)
    : Action(text, selectedIndexes)
    , m_prompt(prompt)
    , m_keys(keys)
{
}

ThreeValues EnterThreeValueAction::firstValues() const
{
    ThreeValues values {};
    for (std::size_t i = 0; i < values.size(); ++i) {
        const toolbox::StyleValue value(m_keys[i]);
        values[i] = value.read<int>(firstMap()).value_or(rangeOf(m_keys[i]).minimum);
    }
    return values;
}

void EnterThreeValueAction::invokeAction()
{
    if (selectedIndexes().isEmpty())
        return;
    const QPointer<Action> self(this);
    const QPointer<EnterThreeIntValuesDialog> dialog(
        &preparedDialog(m_prompt, m_keys, firstValues()));
    if (corvala::sdk::ui::execInEditSession(*dialog) == QDialog::Accepted && self && dialog)
        runAction<ThreeValueAction>(text(), selectedIndexes(), dialog->values(), m_keys);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
