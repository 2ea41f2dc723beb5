// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/map_rename_action.h"

#include <sdk/base/cvl.h>
#include <sdk/common/app_lock.h>

#include <QCoreApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

MapRenameAction::MapRenameAction(const QModelIndexList& selectedIndexes, const QString& name)
    : Action(QCoreApplication::translate("Menu", "Rename line map"), selectedIndexes)
    , m_name(name)
{
}

void MapRenameAction::invokeAction()
{
    if (selectedIndexes().isEmpty())
        return;
    const AppLock lock;
    CvlUtilLineMapSetName(selectedMaps().handle(), m_name.toUtf8().constData());
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
