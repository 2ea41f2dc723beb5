// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/controls/table_view.h"

#include <sdk/base/types.h>

#include <QPointer>

#include <memory>
#include <tuple>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {
class ModelAbstract;
}

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

class CellArrow;
class ItemDelegate;

/// The table of a tab. A right click (or the Menu key, or a click on the arrow that the cell under
/// the mouse and the current one show) opens the column's pop-up editor or its menu; both act on
/// all selected rows. Return edits the cell in place or opens its menu. Column widths are
/// remembered by plot type and tab for the life of the process.
class StyleTableView : public uicontrols::TableView
{
    Q_OBJECT

public:
    explicit StyleTableView(QWidget* parent = nullptr);
    ~StyleTableView() override;

    using TableView::setModel;
    /// Shows a chain of models (the head is not owned). `tabKey` tells the tab apart from others of
    /// the same plot type.
    void setModel(models::ModelAbstract* model, int tabKey);

    /// To be called when the plot type may be another one while the table stays: its widths stay,
    /// too, and are remembered for columns that had none under this plot type.
    void adoptPlotType();

    /// Notes the present width of a column, such as after the user dragged its border.
    void rememberColumnWidth(int column);
    /// 0 when none is remembered for the plot type of the active frame and this tab.
    int rememberedColumnWidth(int column) const;

    /// Takes the focus; what was typed into an editor in a cell is committed.
    void finishEditing();

    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// What a double click on the border of a column fits it to: the widest of the rows that are
    /// seen and of a sample of the others.
    int sizeHintForColumn(int column) const override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    /// The rows are others: all columns are sized to their contents again.
    void sectionCountChanged(int oldCount, int newCount);
    /// What is seen may be longer.
    void growColumns();

private:
    enum class Sizing { Reset, KeepRemembered };

    void adoptPalette();
    bool editColumnEvent(QContextMenuEvent* event);
    void editCurrentCell();
    void openMenuAtCurrentCell();
    bool opensOnRightClick(const QModelIndex& index) const;
    void openAtArrow(const QModelIndex& index);
    void openFor(const QModelIndex& index, const QPoint& position);
    void selectRowIfNone(const QModelIndex& index);
    QRect visibleRect(const QModelIndex& index) const;
    int fittingWidth(const QModelIndex& index) const;
    int widestSeen(int column) const;
    void showMenu(const QList<QAction*>& actions, const QPoint& globalPosition);
    void commitToSelectedRows(int column, const QString& text);
    void installDelegates();
    ItemDelegate* makeDelegate(int column);
    void sizeColumns(Sizing sizing);
    void adoptRowHeight();
    std::tuple<CvlInt64, int, int> widthKey(int column) const;
    /// Of the table's own accord.
    void storeColumnWidth(int column, int width);

    QPointer<models::ModelAbstract> m_model; ///< not owned
    int m_tabKey = 0;
    CvlInt64 m_plotType = 0; ///< that the columns are sized for
    std::unique_ptr<CellArrow> m_arrow; ///< goes first: it asks the view
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
