// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/enter_three_value_action.h"
#include "zonestyle/actions/size_actions.h"
#include "zonestyle/actions/style_target.h"
#include "zonestyle/models/columns/cell.h"
#include "zonestyle/models/editor_type.h"

#include <initializer_list>

class QAction;

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

using actions::keysOf;
using actions::PromptTexts;
using actions::StyleTarget;
using actions::ThreeKeys;
using actions::ThreeValuePrompt;
using style::Choices;

using CellReader = QVariant (*)(const Cell&);
using CellRule = bool (*)(const Cell&);
using CellWriter = bool (*)(const EditRequest&); ///< answers false when the edit is refused
using MenuBuilder = QList<QAction*> (*)(const MenuRequest&); ///< the caller owns the actions
using ChoiceSource = Choices (*)(CvlUniqueId frame);

/// Whole numbers that a menu and a list offer besides any other.
struct ListedNumbers
{
    const int* begin = nullptr;
    const int* end = nullptr;
};

/// A cell applies only while another value of its map, or of the frame, is one of some.
struct ValueCondition
{
    style::Key key;
    std::uint64_t values = 0; ///< a bit for each value below 64
    bool isExcluding = false; ///< must be none of them

    bool holdsFor(const Cell& cell) const; ///< not where the value cannot be read
};

/// Everything that makes one column differ from another. A kind (column_kinds.h) fills in what its
/// columns share; a table adds, as chained calls, only what one column does differently. A member
/// left empty means "nothing": no value for the role, no edit, no menu, no extra rule.
struct ColumnDescriptor
{
    static constexpr int kAnyRole = -1;

    const char* header = ""; ///< English, in the translation context "Column"
    style::Key key = {}; ///< what the column shows; not valid where that is no style value

    CellReader display = nullptr;
    CellReader edit = nullptr; ///< of a column of choices: the list of them
    CellReader check = nullptr;
    CellReader raw = nullptr; ///< for Qt::UserRole
    CellReader hint = nullptr; ///< for Qt::AccessibleTextRole: what the display cannot say
    Choices names = {};
    ChoiceSource nameSource = nullptr; ///< where the names depend on the frame
    PromptTexts prompt = {"", ""};
    ListedNumbers numbers = {};
    const style::SymbolShape* symbol = nullptr; ///< of a column of symbols
    style::ChoiceKey<SkipMode_e> skipMode = {}; ///< of a column of spacings
    ThreeKeys triple = {};
    const ThreeValuePrompt* triplePrompt = nullptr;
    int firstChoice = 0; ///< what the first entry of a list without choice names stands for

    EditorType_e editorType = EditorType_None;
    int editorOption = 0;
    Qt::ItemFlags flags = {}; ///< beyond selectable and enabled

    CellWriter writer = nullptr;
    int editRole = kAnyRole; ///< edits of any other role change nothing
    StyleTarget editOther = {}; ///< where an edit goes, if not to `key`
    MenuBuilder menu = nullptr;
    style::Key menuOther = {}; ///< where a menu entry goes, if not to `key`

    CellRule existence = nullptr; ///< cells for which it fails show "N/A" and do not apply
    std::array<ValueCondition, 2> conditions {}; ///< when a cell applies, beyond its row
    CellRule rule = nullptr; ///< the same, where values cannot say it
    bool isAlwaysRelevant = false; ///< whatever holds for its row

    constexpr StyleTarget editTarget() const { return editOther.isEmpty() ? key : editOther; }
    constexpr style::Key menuTarget() const { return menuOther.isValid() ? menuOther : key; }
    Choices choices(CvlUniqueId frame) const { return nameSource ? nameSource(frame) : names; }

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
    /// What a text editor starts from, where that is not what the cell shows.
    constexpr ColumnDescriptor& editsText(CellReader reader)
    {
        edit = reader;
        return *this;
    }
    constexpr ColumnDescriptor& rawValue(CellReader reader)
    {
        raw = reader;
        return *this;
    }
    constexpr ColumnDescriptor& named(Choices others)
    {
        names = others;
        return *this;
    }
    constexpr ColumnDescriptor& namedBy(ChoiceSource source)
    {
        nameSource = source;
        return *this;
    }
    constexpr ColumnDescriptor& offersFirst(std::size_t count)
    {
        names = names.first(count);
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
    constexpr ColumnDescriptor& editWrites(const StyleTarget& other)
    {
        editOther = other;
        return *this;
    }
    constexpr ColumnDescriptor& offers(MenuBuilder builder)
    {
        menu = builder;
        return *this;
    }
    constexpr ColumnDescriptor& menuWrites(style::Key other)
    {
        menuOther = other;
        return *this;
    }
    constexpr ColumnDescriptor& listsFromOne()
    {
        firstChoice = 1;
        return *this;
    }
    constexpr ColumnDescriptor& existsWhere(CellRule other)
    {
        existence = other;
        return *this;
    }
    template<class Enum>
    constexpr ColumnDescriptor& relevantFor(const style::ChoiceKey<Enum>& other,
                                            std::initializer_list<Enum> values)
    {
        return addCondition(other, bitsOf(values), false);
    }
    template<class Enum>
    constexpr ColumnDescriptor& relevantUnless(const style::ChoiceKey<Enum>& other,
                                               std::initializer_list<Enum> values)
    {
        return addCondition(other, bitsOf(values), true);
    }
    constexpr ColumnDescriptor& relevantWhileOn(style::SwitchKey other)
    {
        return addCondition(other, 1, true);
    }
    constexpr ColumnDescriptor& relevantWhen(CellRule other)
    {
        rule = other;
        return *this;
    }
    constexpr ColumnDescriptor& alwaysRelevant()
    {
        isAlwaysRelevant = true;
        return *this;
    }

private:
    template<class Enum>
    static constexpr std::uint64_t bitsOf(std::initializer_list<Enum> values)
    {
        std::uint64_t bits = 0;
        for (const Enum value : values)
            bits |= std::uint64_t {1} << static_cast<unsigned>(value);
        return bits;
    }
    constexpr ColumnDescriptor& addCondition(style::Key other, std::uint64_t values,
                                             bool isExcluding)
    {
        ValueCondition& free = conditions[conditions[0].key.isValid() ? 1 : 0];
        free.key = other;
        free.values = values;
        free.isExcluding = isExcluding;
        return *this;
    }
};

template<class T>
T Cell::own() const
{
    return value(style::keyAs<style::KeyOf<T>>(column.key));
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
