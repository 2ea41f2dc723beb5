// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/models/columns/column_descriptor.h"

#include <cstddef>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// The columns of one model, in order, with what holds for whole rows of it. A view of a static
/// array.
class ColumnTable
{
public:
    template<std::size_t N>
    explicit constexpr ColumnTable(const ColumnDescriptor (&columns)[N])
        : m_columns(columns)
        , m_size(static_cast<int>(N))
    {
    }

    /// The first columns have the primary brush, the others the secondary one.
    constexpr ColumnTable primary(int columns) const
    {
        ColumnTable table = *this;
        table.m_primaryColumns = columns;
        return table;
    }
    /// All columns have the identity brush.
    constexpr ColumnTable identity() const
    {
        ColumnTable table = *this;
        table.m_isIdentity = true;
        return table;
    }
    /// Nothing applies while the frame does not show the layer.
    constexpr ColumnTable layer(style::SwitchKey shown) const
    {
        ColumnTable table = *this;
        table.m_layer = shown;
        return table;
    }
    /// Edits of cells are answered with false, and not with true as those without an effect are.
    constexpr ColumnTable refusesEdits() const
    {
        ColumnTable table = *this;
        table.m_refusesEdits = true;
        return table;
    }
    /// Nothing applies in a row whose first column is not ticked.
    constexpr ColumnTable rowMustBeShown() const
    {
        ColumnTable table = *this;
        table.m_rowMustBeShown = true;
        return table;
    }
    /// Where the first column does not apply, nothing further right in the chain does.
    constexpr ColumnTable governsFollowing() const
    {
        ColumnTable table = *this;
        table.m_governsFollowing = true;
        return table;
    }

    constexpr int size() const { return m_size; }
    constexpr const ColumnDescriptor& at(int column) const { return m_columns[column]; }

    constexpr bool isIdentity() const { return m_isIdentity; }
    constexpr int primaryColumns() const { return m_primaryColumns; }
    constexpr style::SwitchKey requiredLayer() const { return m_layer; } ///< not valid for none
    constexpr bool isRefusingEdits() const { return m_refusesEdits; }
    constexpr bool requiresShownRow() const { return m_rowMustBeShown; }
    constexpr bool isGoverningFollowing() const { return m_governsFollowing; }

private:
    const ColumnDescriptor* m_columns;
    int m_size;
    int m_primaryColumns = 0;
    bool m_isIdentity = false;
    style::SwitchKey m_layer;
    bool m_refusesEdits = false;
    bool m_rowMustBeShown = false;
    bool m_governsFollowing = false;
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
