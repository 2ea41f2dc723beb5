// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/views/item_delegate.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

/// Cells of text that are edited in a line edit.
class TextItemDelegate : public ItemDelegate
{
    Q_OBJECT

public:
    /// `option` 2 and 3 limit the width to twenty and ten wide characters.
    TextItemDelegate(QAbstractItemView& view, int option);

protected:
    /// A text that does not fit is marked, and not written.
    QWidget* makeEditor(QWidget* parent, const QModelIndex& index) const override;
    QSize contentsSize(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Starts from what the cell shows; not every column has a value for editing.
    void fillEditor(QWidget* editor, const QModelIndex& index) const override;

private:
    int m_option;
    mutable int m_width = 0; ///< 0 until it is known
};

/// The width of some "m" in the font of a cell, with room for margins.
int widthOfCharacters(const QStyleOptionViewItem& option, int count);

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
