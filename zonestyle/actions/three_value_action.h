// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/style_action.h"

#include <array>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

using ThreeValues = std::array<int, 3>;
using ThreeNames = std::array<const char*, 3>; ///< literals

/// Writes three integers to three values of one group, such as an index range, as one undo step.
class ThreeValueAction : public StyleAction<int>
{
public:
    /// `group` is the path above the three names.
    ThreeValueAction(const QString& text, const QModelIndexList& selectedIndexes,
                     const ThreeValues& values, const StylePath& group, const ThreeNames& names);

    void invokeAction() override;

private:
    StylePath m_group;
    ThreeValues m_values;
    ThreeNames m_names;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
