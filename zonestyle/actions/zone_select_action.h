// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/style_action.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// Asks for a zone and assigns it to the selected line maps.
class ZoneSelectAction : public StyleAction<int>
{
public:
    explicit ZoneSelectAction(const QModelIndexList& selectedIndexes);

    void invokeAction() override;
    bool isPresentValue() const override { return false; }
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
