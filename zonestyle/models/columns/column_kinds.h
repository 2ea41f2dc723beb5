// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/style_action.h"
#include "zonestyle/models/columns/column_descriptor.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds {

// Readers

QVariant checkState(const Cell& cell); ///< Qt::Checked or Qt::Unchecked, of a switch
QVariant integerValue(const Cell& cell);
QVariant choiceName(const Cell& cell); ///< from the column's choice names
QVariant choiceList(const Cell& cell);
QVariant colorValue(const Cell& cell); ///< a QColor; empty for a colour that nothing draws
QVariant colorHint(const Cell& cell); ///< "C1", "RGB" for a colour that follows those, else empty
QVariant percentText(const Cell& cell); ///< "0.50%"
QVariant presetList(const Cell& cell); ///< of the column's size prompt
QVariant variableName(const Cell& cell); ///< with its number
QVariant variableList(const Cell& cell); ///< of the enabled variables

// Writers: each writes to where the column's edits go, and answers true.

bool writeSwitch(const EditRequest& edit);
bool writeChoice(const EditRequest& edit);
bool writeNumber(const EditRequest& edit);

// Menus: their entries write to where the column's menu entries go.

QList<QAction*> yesNoMenu(const MenuRequest& request);
QList<QAction*> colorMenu(const MenuRequest& request);
QList<QAction*> sizeMenu(const MenuRequest& request);
QList<QAction*> variableMenu(const MenuRequest& request);

/// One entry for each of the column's choices.
template<class Enum>
QList<QAction*> choiceMenu(const MenuRequest& request)
{
    const QModelIndexList rows = request.rows();
    QList<QAction*> entries;
    for (const tables::Choice& choice : request.column.choices) {
        entries.append(new actions::StyleAction<Enum>(
            choice.text(), rows, static_cast<Enum>(choice.value), request.column.menuTarget()));
    }
    return entries;
}

// Kinds of columns. Deliberate: of these only a variable is editable. The editors of the others say
// how wide the column is, and what an edit that comes from elsewhere means; users have the menus.

/// A switch that is shown as a check box.
constexpr ColumnDescriptor checkBox(const char* header, const StylePath& path)
{
    ColumnDescriptor column {header, path};
    column.check = checkState;
    column.flags = Qt::ItemIsUserCheckable;
    column.writer = writeSwitch;
    column.menu = yesNoMenu;
    return column.editor(EditorType_Boolean, 0);
}

/// One of the named values of an enumeration.
template<class Enum>
constexpr ColumnDescriptor choice(const char* header, const StylePath& path, ChoiceNames names)
{
    ColumnDescriptor column {header, path};
    column.display = choiceName;
    column.edit = choiceList;
    column.choices = names;
    column.writer = writeChoice;
    column.menu = choiceMenu<Enum>;
    return column.editor(EditorType_ListPopup, 1);
}

/// A colour. Deliberate: only the chooser in the menu changes it, an edit of the cell does nothing.
constexpr ColumnDescriptor colorSwatch(const char* header, const StylePath& path)
{
    ColumnDescriptor column {header, path};
    column.display = colorValue;
    column.edit = colorValue;
    column.hint = colorHint;
    column.menu = colorMenu;
    return column.editor(EditorType_Color, 0);
}

/// A length or size in percent of the frame. Deliberate: an edit of the cell writes whole numbers,
/// only the menu writes fractions.
constexpr ColumnDescriptor percent(const char* header, const StylePath& path,
                                   const SizePrompt& prompt)
{
    ColumnDescriptor column {header, path};
    column.display = percentText;
    column.edit = presetList;
    column.size = &prompt;
    column.writer = writeNumber;
    column.menu = sizeMenu;
    return column.editor(EditorType_EditableList, 0);
}

/// A variable of the data set, chosen among the enabled ones. Deliberate: an edit writes the
/// position in that list from 1, whatever the number of the variable there.
constexpr ColumnDescriptor variable(const char* header, const StylePath& path, const char* prompt)
{
    ColumnDescriptor column {header, path};
    column.display = variableName;
    column.edit = variableList;
    column.prompt = prompt;
    column.writer = writeChoice;
    column.menu = variableMenu;
    return column.editable().listsFromOne().editor(EditorType_ComboPopup, 3);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds
