// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/enter_ascii_character_action.h"

#include "zonestyle/actions/prompt_parent.h"
#include "zonestyle/actions/style_write.h"

#include <sdk/dialogs_prompt/enter_ascii_character_dialog.h>
#include <sdk/uicommon/edit_session.h>

#include <QCoreApplication>
#include <QPointer>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

using corvala::dialogs::prompt::EnterASCIICharacterDialog;

static constexpr const char* kCharacter = "ASCIIChar";
static constexpr const char* kUseBaseFont = "UseBaseFont";
static constexpr const char* kFontOverride = "FontOverride";

template<class T>
static T valueOf(const StylePath& path, CvlInt64 map)
{
    return accessor<toolbox::StyleValue>(path).read<T>(map).value_or(T {});
}

EnterASCIICharacterAction::EnterASCIICharacterAction(const QModelIndexList& selectedIndexes,
                                                     const StylePath& category)
    : Action(QCoreApplication::translate("Menu", "Enter character..."), selectedIndexes)
    , m_shape(category / "SymbolShape" / "ASCIIShape")
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
    dialog->setCharacter(QString::fromStdString(valueOf<std::string>(m_shape / kCharacter, map)));
    dialog->setUseBaseFont(valueOf<bool>(m_shape / kUseBaseFont, map));
    dialog->setTypeFaceOverride(valueOf<int>(m_shape / kFontOverride, map));
    if (corvala::sdk::ui::execInEditSession(*dialog) != QDialog::Accepted || !self || !dialog)
        return;
    const toolbox::Set maps = selectedMaps();
    writeStyle(m_shape / kCharacter, maps, dialog->selectedChar().toStdString());
    writeStyle(m_shape / kUseBaseFont, maps, dialog->useBaseFont());
    writeStyle(m_shape / kFontOverride, maps, static_cast<double>(dialog->typeFaceOverride()));
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
