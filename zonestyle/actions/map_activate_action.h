// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/action.h"

#include <vocabulary/style.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// What to do with the set of active maps.
enum MapActivateMode_e {
    MapActivateMode_Activate = 0,
    MapActivateMode_Deactivate = 1,
    MapActivateMode_ShowSelectedOnly = 2,
    MapActivateMode_Invert = 3
};

/// Adds the selected maps to the set of maps that the frame shows, or takes them out.
class MapActivateAction : public Action
{
public:
    /// To invert, the indexes must be of the column whose check state says which maps are active.
    MapActivateAction(const QModelIndexList& selectedIndexes, MapActivateMode_e mode,
                      style::NumbersKey activeSet);

    void invokeAction() override;

private:
    void showSelectedOnly();
    void invert();
    void add(const QModelIndexList& indexes) const;
    void remove(const QModelIndexList& indexes) const;

    MapActivateMode_e m_mode;
    style::NumbersKey m_activeSet;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
