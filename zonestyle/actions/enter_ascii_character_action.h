// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/action.h"
#include <vocabulary/style.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// Asks for a character and its font, starting from the first selected map's, and makes it the
/// symbol of all selected maps.
class EnterASCIICharacterAction : public Action
{
public:
    EnterASCIICharacterAction(const QModelIndexList& selectedIndexes,
                              const style::AsciiShape& character);

    void invokeAction() override;

private:
    const style::AsciiShape& m_character;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
