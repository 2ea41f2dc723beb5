// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/action.h"
#include "zonestyle/actions/style_path.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// Asks for a character and its font, starting from the first selected map's, and makes it the
/// symbol of all selected maps.
class EnterASCIICharacterAction : public Action
{
public:
    /// `category` is the path above "SymbolShape".
    EnterASCIICharacterAction(const QModelIndexList& selectedIndexes, const StylePath& category);

    void invokeAction() override;

private:
    StylePath m_shape; ///< the group of the character and its font
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
