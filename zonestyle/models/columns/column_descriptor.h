// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/size_actions.h"
#include "zonestyle/actions/style_path.h"
#include "zonestyle/actions/style_write.h"
#include "zonestyle/controls/selected_rows.h"
#include "zonestyle/models/editor_type.h"
#include "zonestyle/tables/choice_names.h"

#include <sdk/base/types.h>

#include <QModelIndexList>
#include <QVariant>

#include <optional>

class QAction;

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using actions::SizePrompt;
using actions::StylePath;
using tables::ChoiceNames;

struct ColumnDescriptor;

/// What a reader or a rule is asked about: one map of one frame, seen through one column.
struct Cell
{
    CvlUniqueId frame;
    int map;
    const ColumnDescriptor& column;

    /// The value of a path for the map; nothing when it cannot be read.
    template<class T>
    std::optional<T> read(const StylePath& path) const;

    // The same for the column's own value and for another one beside it; false, 0 or an empty text
    // when it cannot be read. T is bool, int, double or std::string.
    template<class T>
    T value() const;
    template<class T>
    T sibling(const char* attribute) const;
};

/// What a writer is asked to do: give one value, as an editor delivers it, to some cells of one
/// column.
struct EditRequest
{
    CvlUniqueId frame;
    const ColumnDescriptor& column;
    const QModelIndexList& cells; ///< at least one
    const QVariant& value;

    /// The whole number that the value stands for in a column of choices; nothing for a text that
    /// is no choice.
    std::optional<int> choice() const;
    /// The whole number that the value stands for in a column of numbers.
    int number() const;
    /// The value is Qt::Checked. Deliberate: a plain true is not.
    bool isChecked() const;

    /// Writes a number to all cells, where the column's edits go.
    void write(int number) const;
};

/// What a menu is built for: the selected rows of one column.
struct MenuRequest
{
    CvlUniqueId frame;
    const ColumnDescriptor& column;
    const QItemSelectionModel& selection;
    int columnNumber; ///< local; of the whole table, too, in the head of a chain

    QModelIndexList rows(int tableColumn = 0) const
    {
        return uicontrols::selectedRows(selection, tableColumn);
    }
};

using CellReader = QVariant (*)(const Cell&);
using CellRule = bool (*)(const Cell&);
using CellWriter = bool (*)(const EditRequest&); ///< answers false when the edit is refused
using MenuBuilder = QList<QAction*> (*)(const MenuRequest&); ///< the caller owns the actions

/// Everything that makes one column differ from another. A kind (column_kinds.h) fills in what its
/// columns share; a table adds, as chained calls, only what one column does differently. A member
/// left empty means "nothing": no value for the role, no edit, no menu, no extra rule.
struct ColumnDescriptor
{
    static constexpr int kAnyRole = -1;

    const char* header = ""; ///< English, in the translation context "Column"
    StylePath path = {};

    CellReader display = nullptr;
    CellReader edit = nullptr; ///< of a column of choices: the list of them
    CellReader check = nullptr;
    CellReader raw = nullptr; ///< for Qt::UserRole
    CellReader hint = nullptr; ///< for Qt::AccessibleTextRole: what the display cannot say
    ChoiceNames choices = {};
    const SizePrompt* size = nullptr;
    const char* prompt = ""; ///< what a chooser asks, English, in the translation context "Prompt"
    bool offerGroupColors = true;
    int firstChoice = 0; ///< what the first entry of a list without choice names stands for

    EditorType_e editorType = EditorType_None;
    int editorOption = 0;
    Qt::ItemFlags flags = {}; ///< beyond selectable and enabled

    CellWriter writer = nullptr;
    int editRole = kAnyRole; ///< edits of any other role change nothing
    StylePath editPath = {}; ///< where an edit goes, if not to `path`
    MenuBuilder menu = nullptr;
    StylePath menuPath = {}; ///< where a menu entry goes, if not to `path`
    CellRule rule = nullptr; ///< when a cell applies, beyond what holds for its row

    constexpr StylePath editTarget() const { return editPath.isEmpty() ? path : editPath; }
    constexpr StylePath menuTarget() const { return menuPath.isEmpty() ? path : menuPath; }

    // Chained calls for what is unusual about one column.
    constexpr ColumnDescriptor& editor(EditorType_e type, int option)
    {
        editorType = type;
        editorOption = option;
        return *this;
    }
    constexpr ColumnDescriptor& editable()
    {
        flags = flags | Qt::ItemIsEditable;
        return *this;
    }
    constexpr ColumnDescriptor& shows(CellReader reader)
    {
        display = reader;
        return *this;
    }
    constexpr ColumnDescriptor& lists(CellReader reader)
    {
        edit = reader;
        return *this;
    }
    constexpr ColumnDescriptor& rawValue(CellReader reader)
    {
        raw = reader;
        return *this;
    }
    constexpr ColumnDescriptor& writes(CellWriter other)
    {
        writer = other;
        return *this;
    }
    constexpr ColumnDescriptor& editsOnly(int role)
    {
        editRole = role;
        return *this;
    }
    constexpr ColumnDescriptor& editWrites(const StylePath& other)
    {
        editPath = other;
        return *this;
    }
    constexpr ColumnDescriptor& offers(MenuBuilder builder)
    {
        menu = builder;
        return *this;
    }
    constexpr ColumnDescriptor& menuWrites(const StylePath& other)
    {
        menuPath = other;
        return *this;
    }
    constexpr ColumnDescriptor& withoutGroupColors()
    {
        offerGroupColors = false;
        return *this;
    }
    constexpr ColumnDescriptor& listsFromOne()
    {
        firstChoice = 1;
        return *this;
    }
    constexpr ColumnDescriptor& relevantWhen(CellRule other)
    {
        rule = other;
        return *this;
    }
};

template<class T>
std::optional<T> Cell::read(const StylePath& path) const
{
    return toolbox::FrameStyleValue(frame, path[0], path[1], path[2], path[3], path[4])
        .read<T>(map);
}

template<class T>
T Cell::value() const
{
    return read<T>(column.path).value_or(T {});
}

template<class T>
T Cell::sibling(const char* attribute) const
{
    return read<T>(column.path.parent() / attribute).value_or(T {});
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
