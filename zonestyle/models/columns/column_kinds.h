// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/style_action.h"
#include "zonestyle/models/columns/column_descriptor.h"
#include "zonestyle/tables/choice_names.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds {

// Readers

QVariant checkState(const Cell& cell); ///< Qt::Checked or Qt::Unchecked, of a switch
QVariant integerValue(const Cell& cell);
template<class Enum>
QVariant enumValue(const Cell& cell) ///< of an enumeration that is a registered type
{
    return QVariant::fromValue(static_cast<Enum>(cell.own<int>()));
}
QVariant choiceName(const Cell& cell); ///< from the column's choice names
QVariant choiceList(const Cell& cell);
QVariant colorValue(const Cell& cell); ///< a QColor; empty for a colour that nothing draws
QVariant colorHint(const Cell& cell); ///< "C1", "RGB" for a colour that follows those, else empty
QVariant percentText(const Cell& cell); ///< "0.50%"
QVariant presetList(const Cell& cell); ///< the sizes that are offered for the value
QVariant listedNumbers(const Cell& cell); ///< of the column, as texts
QVariant tripleText(const Cell& cell); ///< "1,0,2"
QVariant variableName(const Cell& cell); ///< with its number
QVariant variableList(const Cell& cell); ///< of the enabled variables

// Rules

bool hasVolumeZones(const Cell& cell); ///< of the field map
bool isInSpace(const Cell& cell); ///< the frame has a 3D field plot

// Writers: each writes to where the column's edits go, and answers true.

bool writeSwitch(const EditRequest& edit);
bool writeChoice(const EditRequest& edit);
bool writeNumber(const EditRequest& edit);

// Menus: their entries write to where the column's menu entries go.

QList<QAction*> yesNoMenu(const MenuRequest& request);
QList<QAction*> colorMenu(const MenuRequest& request);
QList<QAction*> sizeMenu(const MenuRequest& request);
QList<QAction*> numberMenu(const MenuRequest& request); ///< the listed numbers, a line, "Enter..."
QList<QAction*> plainNumberMenu(const MenuRequest& request); ///< the same without the line
QList<QAction*> rangeMenu(const MenuRequest& request); ///< "Enter range..."
QList<QAction*> variableMenu(const MenuRequest& request);

/// One entry for each of the column's choices.
template<class Enum>
QList<QAction*> choiceMenu(const MenuRequest& request)
{
    const QModelIndexList rows = request.rows();
    QList<QAction*> entries;
    for (const style::Choice& choice : request.column.choices(request.frame)) {
        entries.append(new actions::StyleAction<Enum>(tables::textOf(choice), rows,
                                                      static_cast<Enum>(choice.value),
                                                      request.column.menuTarget()));
    }
    return entries;
}

// Kinds of columns. Deliberate: of these only a variable is editable. The editors of the others say
// how wide the column is, and what an edit that comes from elsewhere means; users have the menus.

/// A switch that is shown as a check box.
constexpr ColumnDescriptor checkBox(const char* header, style::SwitchKey key)
{
    ColumnDescriptor column {header, key};
    column.check = checkState;
    column.flags = Qt::ItemIsUserCheckable;
    column.writer = writeSwitch;
    column.menu = yesNoMenu;
    return column.editor(EditorType_Boolean, 0);
}

/// One of the named values of an enumeration.
template<class Enum>
constexpr ColumnDescriptor choice(const char* header, const style::ChoiceKey<Enum>& key)
{
    ColumnDescriptor column {header, key};
    column.display = choiceName;
    column.edit = choiceList;
    column.names = style::entryOf(key).choices;
    column.writer = writeChoice;
    column.menu = choiceMenu<Enum>;
    return column.editor(EditorType_ListPopup, 1);
}

/// A colour; colours that follow a contour group or RGB are offered where the value takes them.
/// Deliberate: only the chooser in the menu changes it, an edit of the cell does nothing.
constexpr ColumnDescriptor colorSwatch(const char* header, style::ColorKey key)
{
    ColumnDescriptor column {header, key};
    column.display = colorValue;
    column.edit = colorValue;
    column.hint = colorHint;
    column.menu = colorMenu;
    return column.editor(EditorType_Color, 0);
}

/// A length or size in percent of the frame, with its five presets and its range. Deliberate: an
/// edit of the cell writes whole numbers, only the menu writes fractions.
constexpr ColumnDescriptor percent(const char* header, style::RealKey key,
                                   const PromptTexts& prompt)
{
    ColumnDescriptor column {header, key};
    column.display = percentText;
    column.edit = presetList;
    column.prompt = prompt;
    column.writer = writeNumber;
    column.menu = sizeMenu;
    return column.editor(EditorType_EditableList, 0);
}

/// A whole number, of which the menu and the list offer some and a prompt all that the value takes.
/// The numbers must be a static array.
template<std::size_t N>
constexpr ColumnDescriptor listedNumber(const char* header, style::IntegerKey key,
                                        const int (&numbers)[N], const PromptTexts& prompt)
{
    ColumnDescriptor column {header, key};
    column.display = integerValue;
    column.edit = listedNumbers;
    column.numbers = {numbers, numbers + N};
    column.prompt = prompt;
    column.writer = writeNumber;
    column.menu = numberMenu;
    return column.editor(EditorType_EditableList, 1);
}

/// Three whole numbers, such as an index range. Only the prompt of the menu changes them.
constexpr ColumnDescriptor triple(const char* header, const ThreeKeys& keys,
                                  const ThreeValuePrompt& prompt)
{
    ColumnDescriptor column {header};
    column.display = tripleText;
    column.edit = tripleText;
    column.triple = keys;
    column.triplePrompt = &prompt;
    column.menu = rangeMenu;
    return column.editor(EditorType_Text, 0);
}

/// A variable of the data set, chosen among the enabled ones. Deliberate: an edit writes the
/// position in that list from 1, whatever the number of the variable there.
constexpr ColumnDescriptor variable(const char* header, style::VariableKey key, const char* prompt)
{
    ColumnDescriptor column {header, key};
    column.display = variableName;
    column.edit = variableList;
    column.prompt = {prompt, prompt};
    column.writer = writeChoice;
    column.menu = variableMenu;
    return column.editable().listsFromOne().editor(EditorType_ComboPopup, 3);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models::kinds
