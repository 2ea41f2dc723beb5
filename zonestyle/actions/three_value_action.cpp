// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/three_value_action.h"

#include <sdk/common/app_lock.h>
#include <sdk/uicommon/style_writing.h>

#include <algorithm>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

ThreeValueAction::ThreeValueAction(const QString& text, const QModelIndexList& selectedIndexes,
                                   const ThreeValues& values, const ThreeKeys& keys)
    : StyleAction<int>(text, selectedIndexes, values[0], keys[0])
    , m_values(values)
    , m_keys(keys)
{
}

bool ThreeValueAction::isPresentValue() const
{
    const QModelIndexList& rows = selectedIndexes();
    bool isPresent = !rows.isEmpty();
    for (std::size_t i = 0; isPresent && i < m_values.size(); ++i) {
        const toolbox::CheckedStyleValue part(m_keys[i]);
        isPresent = std::all_of(rows.begin(), rows.end(), [&](const QModelIndex& row) {
            return part.read<int>(row.row() + 1) == m_values[i];
        });
    }
    return isPresent;
}

void ThreeValueAction::invokeAction()
{
    if (selectedIndexes().isEmpty())
        return;
    const AppLock lock;
    const StyleUndoStep step;
    const toolbox::Set maps = selectedMaps();
    for (std::size_t i = 0; i < m_values.size(); ++i)
        writeStyle(m_keys[i], &maps, m_values[i]);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
