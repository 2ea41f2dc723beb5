// SPDX-License-Identifier: BSD-3-Clause
#pragma once

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// How the cells of a column are edited: the delegate that the view installs, and the pop-up that a
/// right click on an editable cell opens. Any other value counts as EditorType_None.
enum EditorType_e {
    EditorType_None = 0, ///< plain cell
    EditorType_TextPopup = 1, ///< text; pop-up: text, seeded with the display text
    EditorType_Text = 2, ///< text
    EditorType_ListPopup = 3, ///< list; pop-up: list box over the edit-role list
    EditorType_List = 4, ///< list
    EditorType_EditableList = 5, ///< list with an editable entry
    EditorType_ComboPopup = 6, ///< list with an editable entry; pop-up: combo box over the list
    EditorType_Boolean = 7, ///< check box
    EditorType_Color = 8, ///< colour swatch
    EditorType_DynamicTextPopup = 9 ///< pop-up: line-map name, seeded with the edit-role text
};

/// The option of plain cells whose text may become any longer: the column widens with what is seen
/// of it.
constexpr int kGrowsWithText = 3;

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
