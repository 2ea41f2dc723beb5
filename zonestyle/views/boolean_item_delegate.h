// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/views/item_delegate.h"

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

/// Cells with a check box in their middle. A click on it, or Space, switches all selected rows of
/// the column to one state, the opposite of the cell's.
class BooleanItemDelegate : public ItemDelegate
{
    Q_OBJECT

public:
    explicit BooleanItemDelegate(QAbstractItemView& view);

    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;
    /// While the button is held on a check box, what the mouse does belongs to that box alone: the
    /// view would select the rows that it moves over.
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    /// Of a cell without a check box, as one of "N/A". An empty text is not drawn: it would cover
    /// the check box with the background of a selected cell.
    void drawDisplay(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect,
                     const QString& text) const override;
    void drawCheck(QPainter* painter, const QStyleOptionViewItem& option, const QRect& rect,
                   Qt::CheckState state) const override;

private:
    QStyleOptionViewItem centredOption(const QStyleOptionViewItem& option,
                                       const QModelIndex& index) const;
    bool isOnCheckBox(const QStyleOptionViewItem& option, const QModelIndex& index,
                      const QPoint& position) const;
    bool holdsPress(const QMouseEvent& event);
    bool handleKey(const QKeyEvent& event, const QModelIndex& index);
    bool handlePress(QMouseEvent& event, QAbstractItemModel& model,
                     const QStyleOptionViewItem& option, const QModelIndex& index);
    void selectPressedRow(Qt::KeyboardModifiers modifiers);
    bool handleRelease(const QMouseEvent& event, const QStyleOptionViewItem& option,
                       const QModelIndex& index);
    bool toggleSelectedRows(const QModelIndex& index);

    /// Only to be compared: it still gets events while its view is being destroyed.
    const QObject* m_viewport;
    QPersistentModelIndex m_pressed; ///< the cell whose check box the mouse button was pressed on
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
