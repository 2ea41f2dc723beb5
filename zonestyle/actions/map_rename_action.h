// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/action.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// Gives the selected line maps one name, which may hold dynamic text.
class MapRenameAction : public Action
{
public:
    MapRenameAction(const QModelIndexList& selectedIndexes, const QString& name);

    void invokeAction() override;

private:
    QString m_name;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
