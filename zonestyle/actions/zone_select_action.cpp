// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/zone_select_action.h"

#include "zonestyle/actions/prompt_parent.h"

#include <sdk/dialogs_prompt/zone_select_dialog.h>

#include <QCoreApplication>
#include <QPointer>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

using corvala::dialogs::prompt::ZoneSelectDialog;

ZoneSelectAction::ZoneSelectAction(const QModelIndexList& selectedIndexes)
    : StyleAction<int>(QCoreApplication::translate("Menu", "Select Zone..."), selectedIndexes, 0,
                       style::lineMap.assign.zone)
{
}

void ZoneSelectAction::invokeAction()
{
    if (selectedIndexes().isEmpty())
        return;
    const QPointer<Action> self(this);
    const QPointer<ZoneSelectDialog> dialog(&ZoneSelectDialog::getInstance(&promptParent()));
    if (dialog->selectZone(firstValue()) && self && dialog)
        write(static_cast<int>(dialog->selectedZone()));
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
