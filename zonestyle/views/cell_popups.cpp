// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/cell_popups.h"

#include "zonestyle/models/model_abstract.h"
#include "zonestyle/views/combo_box_dialog.h"
#include "zonestyle/views/dynamic_line_map_text_edit_dialog.h"
#include "zonestyle/views/item_delegate.h"
#include "zonestyle/views/list_box_dialog.h"
#include "zonestyle/views/text_edit_dialog.h"

#include <utility>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

using namespace models; // EditorType_e

bool isPopupType(int editorType)
{
    switch (editorType) {
    case EditorType_TextPopup:
    case EditorType_ListPopup:
    case EditorType_ComboPopup:
    case EditorType_DynamicTextPopup: return true;
    default: return false;
    }
}

PopupDialogBase* makePopup(const ModelAbstract& model, const QModelIndex& index,
                           const PopupPlace& place, PopupDialogBase::Commit commit)
{
    const QString shown = index.data(Qt::DisplayRole).toString();
    const auto choices = [&index] { return index.data(Qt::EditRole).toStringList(); };
    const auto problem = [cell = QPersistentModelIndex(index)](const QString& text) {
        return problemOf(text, cell);
    };
    switch (model.columnEditorType(index.column())) {
    case EditorType_TextPopup:
        return new TextEditDialog(place.globalPosition, place.parent, std::move(commit), shown,
                                  problem);
    case EditorType_ListPopup:
        return new ListBoxDialog(place.globalPosition, place.parent, std::move(commit), choices(),
                                 shown, place.columnWidth);
    case EditorType_ComboPopup:
        return new ComboBoxDialog(place.globalPosition, place.parent, std::move(commit), choices(),
                                  shown);
    case EditorType_DynamicTextPopup:
        return new DynamicLineMapTextEditDialog(
            place.globalPosition, place.parent, std::move(commit),
            index.data(Qt::EditRole).toString(), index.row() + 1);
    default: return nullptr;
    }
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
