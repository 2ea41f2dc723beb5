// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/controls/selected_rows.h"

#include <sdk/dialogs_common/table_view_with_preferred_dimensions.h>
#include <sdk/propertybindings/widget_update_deferrer_on_busy.h>

#include <QPointer>

namespace corvala::sdk::ui::dialogs::uicontrols {

/// A table view whose clicks that edit leave the selection alone, and whose painting costs the same
/// however many rows are selected.
class TableView : public corvala::dialogs::common::TableViewWithPreferredDimensions
{
    Q_OBJECT

public:
    explicit TableView(QWidget* parent = nullptr);

    void setModel(QAbstractItemModel* model) override;
    /// Deletes the selection models that the view and its headers made for themselves; one that
    /// was given before stays its owner's.
    void setSelectionModel(QItemSelectionModel* selectionModel) override;
    void reset() override;
    void selectAll() override;

    /// As QItemSelectionModel::isSelected, at a cost that does not depend on the selection.
    bool isCellSelected(const QModelIndex& index) const;

protected:
    using TableViewWithPreferredDimensions::edit;
    bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void setSelection(const QRect& rectangle, QItemSelectionModel::SelectionFlags command) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void updateGeometries() override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private Q_SLOTS:
    void rowsInsertedSlot(const QModelIndex& parent, int first, int last);

private:
    /// Rows and visual columns, both ends included; empty when an end is negative.
    struct CellBlock
    {
        int top;
        int bottom;
        int left;
        int right;
    };

    CellBlock cellsIn(const QRect& area) const;
    QStyleOptionViewItem cellOption(const QModelIndex& index,
                                    const QStyleOptionViewItem& base) const;
    void paintCells(QPainter& painter, const CellBlock& cells);
    void paintGrid(QPainter& painter, const CellBlock& cells);
    void announceSelection(const QItemSelection& selected);
    void clearScatteredSelection();

    mutable const QEvent* m_editingEvent = nullptr; ///< compared only, never dereferenced
    QPointer<SelectedRows> m_selectedRows; ///< of the selection model
    propertybindings::WidgetUpdateDeferrerOnBusy m_updateDeferrer;
};

} // namespace corvala::sdk::ui::dialogs::uicontrols
