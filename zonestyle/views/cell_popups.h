// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/views/popup_dialog_base.h"

#include <QModelIndex>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {
class ModelAbstract;
}

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

/// Whether the cells of a column are edited by a pop-up; `editorType` is an EditorType_e.
bool isPopupType(int editorType);

/// Where a pop-up opens.
struct PopupPlace
{
    QPoint globalPosition;
    QWidget* parent = nullptr; ///< owns the pop-up
    int columnWidth = 0; ///< pixels; the least width of a list
};

/// The pop-up editor of a cell's column; null for a column that has none.
PopupDialogBase* makePopup(const models::ModelAbstract& model, const QModelIndex& index,
                           const PopupPlace& place, PopupDialogBase::Commit commit);

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
