// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/controls/table_view.h"

#include <sdk/base/types.h>

#include <QPointer>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {
class ModelAbstract;
}

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

class ItemDelegate;
class PopupDialogBase;

/// The table of a tab. A right click (or the Menu key) on a cell opens the column's pop-up editor
/// or its menu; both act on all selected rows. Return edits the cell in place or opens its menu.
/// Column widths are remembered by plot type and tab for the life of the process.
class StyleTableView : public uicontrols::TableView
{
    Q_OBJECT

public:
    explicit StyleTableView(QWidget* parent = nullptr);

    using TableView::setModel;
    /// Shows a chain of models (the head is not owned). `tabKey` tells the tab apart from others of
    /// the same plot type.
    void setModel(models::ModelAbstract* model, int tabKey);

    /// To be called when the plot type may be another one: gives the columns the widths that they
    /// had under it.
    void adoptPlotType();

    /// Notes the present width of a column, such as after the user dragged its border.
    void rememberColumnWidth(int column);
    /// 0 when none is remembered for the plot type of the active frame and this tab.
    int rememberedColumnWidth(int column) const;

    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    /// The rows are others: all columns are sized to their contents again.
    void sectionCountChanged(int oldCount, int newCount);

private:
    enum class Sizing { Reset, KeepRemembered };

    void adoptPalette();
    bool editColumnEvent(QContextMenuEvent* event);
    void editCurrentCell();
    void openMenuAtCurrentCell();
    void showMenu(const QList<QAction*>& actions, const QPoint& globalPosition);
    PopupDialogBase* makePopup(const QModelIndex& index, const QPoint& globalPosition);
    void commitToSelectedRows(int column, const QString& text);
    void installDelegates();
    ItemDelegate* makeDelegate(int column);
    void sizeColumns(Sizing sizing);
    void adoptRowHeight();
    void storeColumnWidth(int column, int width);

    QPointer<models::ModelAbstract> m_model; ///< not owned
    int m_tabKey = 0;
    CvlInt64 m_plotType = 0; ///< that the columns are sized for
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
