// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/controls/selected_rows.h"

#include <sdk/base/types.h>
#include <sdk/toolbox/style_value.h>
#include <vocabulary/style.h>

#include <QModelIndexList>
#include <QVariant>

#include <optional>
#include <type_traits>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

class ModelAbstract;
struct ColumnDescriptor;

/// What a reader or a rule is asked about: one map of one frame, seen through one column.
struct Cell
{
    CvlUniqueId frame;
    int map;
    const ColumnDescriptor& column;
    const ModelAbstract& model; ///< of the column; for tables that own something

    /// A value of the map or of its frame; an indexed one takes its index, from 1. Nothing when it
    /// cannot be read.
    template<class T>
    std::optional<T> read(const style::KeyOf<T>& key, int index = -1) const
    {
        using Read = std::conditional_t<std::is_enum_v<T>, int, T>;
        const auto value = toolbox::FrameStyleValue(frame, key).template read<Read>(map, index);
        return value ? std::optional<T>(static_cast<T>(*value)) : std::nullopt;
    }
    /// The same; false, 0 or an empty text when it cannot be read.
    template<class T>
    T value(const style::KeyOf<T>& key, int index = -1) const
    {
        return read(key, index).value_or(T {});
    }

    /// The column's own value in the same way. T is bool, int, double or std::string.
    template<class T>
    T own() const;
};

/// What a writer is asked to do: give one value, as an editor delivers it, to some cells of one
/// column.
struct EditRequest
{
    CvlUniqueId frame;
    const ColumnDescriptor& column;
    ModelAbstract& model; ///< of the column; for tables that own something
    const QModelIndexList& cells; ///< at least one
    const QVariant& value;

    /// The whole number that the value stands for in a column of choices; nothing for a text that
    /// is no choice, or one that is not offered.
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
    const ModelAbstract& model; ///< of the column; for tables that own something
    const QItemSelectionModel& selection;
    int columnNumber; ///< local; of the whole table, too, in the head of a chain

    QModelIndexList rows(int tableColumn = 0) const
    {
        return uicontrols::selectedRows(selection, tableColumn);
    }
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
