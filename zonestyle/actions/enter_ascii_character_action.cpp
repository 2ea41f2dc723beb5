// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/enter_ascii_character_action.h"

#include "zonestyle/actions/prompt_parent.h"

#include <sdk/dialogs_prompt/enter_ascii_character_dialog.h>
#include <sdk/uicommon/edit_session.h>
#include <sdk/uicommon/style_writing.h>

#include <QCoreApplication>
#include <QPointer>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

using corvala::dialogs::prompt::EnterASCIICharacterDialog;

template<class T>
static T valueOf(style::Key key, CvlInt64 map)
{
    return toolbox::StyleValue(key).read<T>(map).value_or(T {});
}

EnterASCIICharacterAction::EnterASCIICharacterAction(const QModelIndexList& selectedIndexes,
                                                     const style::AsciiShape& character)
    : Action(QCoreApplication::translate("Menu", "Enter character..."), selectedIndexes)
    , m_character(character)
{
}

void EnterASCIICharacterAction::invokeAction()
{
    if (selectedIndexes().isEmpty())
        return;
    const QPointer<Action> self(this);
    const QPointer<EnterASCIICharacterDialog> dialog(
        &EnterASCIICharacterDialog::getInstance(&promptParent()));
    const CvlInt64 map = firstMap();
    dialog->setCharacter(QString::fromStdString(valueOf<std::string>(m_character.asciiChar, map)));
    dialog->setUseBaseFont(valueOf<bool>(m_character.useBaseFont, map));
    dialog->setTypeFaceOverride(valueOf<int>(m_character.fontOverride, map));
    if (corvala::sdk::ui::execInEditSession(*dialog) != QDialog::Accepted || !self || !dialog)
        return;
    const toolbox::Set maps = selectedMaps();
    writeStyle(m_character.asciiChar, &maps, dialog->selectedChar().toStdString());
    writeStyle(m_character.useBaseFont, &maps, dialog->useBaseFont());
    writeStyle(m_character.fontOverride, &maps, dialog->typeFaceOverride());
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
