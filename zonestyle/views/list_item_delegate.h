// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/views/item_delegate.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

/// Cells that are chosen from the list of texts that is the cell's value for editing.
class ListItemDelegate : public ItemDelegate
{
    Q_OBJECT

public:
    /// `option` says how wide the column wants to be: 0 as its text; 1 as the widest entry; 2 and 3
    /// the same, but at most twenty and ten wide characters; 4 with room for an arrow.
    /// `filterWhileTyping` shows the entries that contain the text while the user types.
    ListItemDelegate(QAbstractItemView& view, int option, bool editable, bool filterWhileTyping);

    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;

protected:
    QSize contentsSize(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* makeEditor(QWidget* parent, const QModelIndex& index) const override;
    void fillEditor(QWidget* editor, const QModelIndex& index) const override;
    /// The entry that the text stands for, however the editing ended; nothing for any other text.
    QVariant editedValue(const QWidget& editor) const override;

private Q_SLOTS:
    void onSelectionComplete();

private:
    int widthForEntries(const QStyleOptionViewItem& option, const QModelIndex& index) const;

    int m_option;
    bool m_editable;
    bool m_filterWhileTyping;
    mutable int m_width = 0; ///< 0 until it is known
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
