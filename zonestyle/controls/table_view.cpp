// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/controls/table_view.h"

#include "zonestyle/controls/selectionless_header.h"

#include <QAccessible>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace corvala::sdk::ui::dialogs::uicontrols {

/// Every view makes itself a selection model for each model that it is given, and keeps it when it
/// is given another one.
static void deleteUnusedSelectionModels(const QAbstractItemView& view)
{
    const auto own = view.findChildren<QItemSelectionModel*>(QString(), Qt::FindDirectChildrenOnly);
    for (QItemSelectionModel* selectionModel : own) {
        if (selectionModel != view.selectionModel())
            delete selectionModel;
    }
}

TableView::TableView(QWidget* parent)
    : TableViewWithPreferredDimensions(parent)
    , m_updateDeferrer(this)
{
    setVerticalHeader(new SelectionlessHeader(Qt::Vertical, this));
}

void TableView::setModel(QAbstractItemModel* newModel)
{
    if (model())
        disconnect(model(), &QAbstractItemModel::rowsInserted, this, &TableView::rowsInsertedSlot);
    TableViewWithPreferredDimensions::setModel(newModel);
    if (newModel)
        connect(newModel, &QAbstractItemModel::rowsInserted, this, &TableView::rowsInsertedSlot);
}

void TableView::setSelectionModel(QItemSelectionModel* selectionModel)
{
    TableViewWithPreferredDimensions::setSelectionModel(selectionModel);
    m_selectedRows = &SelectedRows::of(*selectionModel);
    deleteUnusedSelectionModels(*this);
    deleteUnusedSelectionModels(*horizontalHeader());
    deleteUnusedSelectionModels(*verticalHeader());
    viewport()->update();
}

void TableView::reset()
{
    TableViewWithPreferredDimensions::reset();
    if (m_selectedRows)
        m_selectedRows->forget(); // a selection model is reset without a word
}

/// Replacing a scattered selection by another one compares all pairs of their ranges; replacing an
/// empty one does not.
void TableView::clearScatteredSelection()
{
    static constexpr std::size_t kFewRanges = 16;
    if (m_selectedRows && m_selectedRows->ranges().size() > kFewRanges)
        clearSelection();
}

void TableView::selectAll()
{
    clearScatteredSelection();
    TableViewWithPreferredDimensions::selectAll();
}

void TableView::setSelection(const QRect& rectangle, QItemSelectionModel::SelectionFlags command)
{
    if (command.testFlag(QItemSelectionModel::Clear))
        clearScatteredSelection();
    TableViewWithPreferredDimensions::setSelection(rectangle, command);
}

bool TableView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event)
{
    const bool edits = TableViewWithPreferredDimensions::edit(index, trigger, event);
    m_editingEvent = edits ? event : nullptr;
    return edits;
}

QItemSelectionModel::SelectionFlags TableView::selectionCommand(const QModelIndex& index,
                                                                const QEvent* event) const
{
    const bool edits = event && event == m_editingEvent;
    m_editingEvent = nullptr;
    return edits ? QItemSelectionModel::NoUpdate
                 : TableViewWithPreferredDimensions::selectionCommand(index, event);
}

/// The address of an event may be that of another one later.
void TableView::mouseReleaseEvent(QMouseEvent* event)
{
    TableViewWithPreferredDimensions::mouseReleaseEvent(event);
    m_editingEvent = nullptr;
}

void TableView::keyPressEvent(QKeyEvent* event)
{
    TableViewWithPreferredDimensions::keyPressEvent(event);
    m_editingEvent = nullptr;
}

/// Replaces Qt's own handling, which makes a region of all the ranges, and for a screen reader a
/// list of all the cells.
void TableView::selectionChanged(const QItemSelection& selected, const QItemSelection&)
{
    viewport()->update();
    announceSelection(selected);
}

void TableView::announceSelection(const QItemSelection& selected)
{
    if (!QAccessible::isActive() || selected.isEmpty() || !selected.first().isValid())
        return;
    const QModelIndex first = selected.first().topLeft();
    const int headerRow = horizontalHeader()->isVisible() ? 1 : 0;
    const int headerColumn = verticalHeader()->isVisible() ? 1 : 0;
    const int tableColumns = model()->columnCount() + headerColumn;
    QAccessibleEvent event(this, QAccessible::Selection);
    event.setChild((first.row() + headerRow) * tableColumns + first.column() + headerColumn);
    QAccessible::updateAccessibility(&event);
}

void TableView::rowsInsertedSlot(const QModelIndex&, int, int)
{
    updateGeometries();
}

/// A header that was scrolled while another view state was shown comes with that offset.
void TableView::updateGeometries()
{
    TableViewWithPreferredDimensions::updateGeometries();
    if (horizontalScrollMode() == ScrollPerPixel)
        horizontalHeader()->setOffset(horizontalScrollBar()->value());
}

/// On a screen with a fractional scale the frame round the current cell reaches beyond it.
void TableView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    TableViewWithPreferredDimensions::currentChanged(current, previous);
    for (const QModelIndex& index : {current, previous}) {
        if (index.isValid())
            viewport()->update(visualRect(index).adjusted(-2, -2, 2, 2));
    }
}

bool TableView::isCellSelected(const QModelIndex& index) const
{
    if (!m_selectedRows || !index.isValid())
        return false;
    return m_selectedRows->areAll() ? m_selectedRows->contains(index.row())
                                    : selectionModel()->isSelected(index);
}

TableView::CellBlock TableView::cellsIn(const QRect& area) const
{
    const auto endOr = [](int section, int last) { return section < 0 ? last : section; };
    const QHeaderView& columns = *horizontalHeader();
    const int left = columns.visualIndexAt(isRightToLeft() ? area.right() : area.left());
    const int right = columns.visualIndexAt(isRightToLeft() ? area.left() : area.right());
    return {rowAt(area.top()), endOr(rowAt(area.bottom()), verticalHeader()->count() - 1), left,
            endOr(right, columns.count() - 1)};
}

/// Paints as QTableView does, but looks selected rows up: Qt searches all ranges of the selection
/// for every cell.
void TableView::paintEvent(QPaintEvent* event)
{
    if (!model() || !selectionModel())
        return;
    const CellBlock cells = cellsIn(event->rect());
    if (cells.top < 0 || cells.left < 0)
        return;
    QPainter painter(viewport());
    paintCells(painter, cells);
    if (showGrid())
        paintGrid(painter, cells);
}

QStyleOptionViewItem TableView::cellOption(const QModelIndex& index,
                                           const QStyleOptionViewItem& base) const
{
    const int grid = showGrid() ? 1 : 0;
    QStyleOptionViewItem option = base;
    option.rect = QRect(columnViewportPosition(index.column()), rowViewportPosition(index.row()),
                        columnWidth(index.column()) - grid, rowHeight(index.row()) - grid);
    if (isRightToLeft())
        option.rect.translate(grid, 0);
    option.state.setFlag(QStyle::State_Selected, isCellSelected(index));
    const bool hasFocusNow = hasFocus() || viewport()->hasFocus();
    option.state.setFlag(QStyle::State_HasFocus, hasFocusNow && index == currentIndex());
    return option;
}

/// Fills the room for the grid, too: on a screen with a fractional scale its lines leave some of
/// it.
static void fillSelected(QPainter& painter, const QStyleOptionViewItem& option)
{
    if (!option.state.testFlag(QStyle::State_Selected))
        return;
    const bool isActive = option.state.testFlag(QStyle::State_Active);
    painter.fillRect(option.rect.adjusted(0, 0, 1, 1),
                     option.palette.brush(isActive ? QPalette::Active : QPalette::Inactive,
                                          QPalette::Highlight));
}

void TableView::paintCells(QPainter& painter, const CellBlock& cells)
{
    QStyleOptionViewItem base = viewOptions();
    base.palette.setCurrentColorGroup(isEnabled() ? QPalette::Normal : QPalette::Disabled);
    for (int row = cells.top; row <= cells.bottom; ++row) {
        for (int visual = cells.left; visual <= cells.right; ++visual) {
            const QModelIndex index = model()->index(row, horizontalHeader()->logicalIndex(visual));
            const QStyleOptionViewItem option = cellOption(index, base);
            fillSelected(painter, option);
            style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &painter, this);
            itemDelegate(index)->paint(&painter, option, index);
        }
    }
}

void TableView::paintGrid(QPainter& painter, const CellBlock& cells)
{
    const QStyleOptionViewItem option = viewOptions();
    const int hint = style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this);
    painter.setPen(QPen(QColor::fromRgba(static_cast<QRgb>(hint)), 0, gridStyle()));
    const auto start = [this](int visual) {
        return columnViewportPosition(horizontalHeader()->logicalIndex(visual));
    };
    const auto edge = [this, &start](int visual) { // the side where a column ends
        const int width = columnWidth(horizontalHeader()->logicalIndex(visual));
        return isRightToLeft() ? start(visual) : start(visual) + width - 1;
    };
    const auto bottom = [this](int row) { return rowViewportPosition(row) + rowHeight(row) - 1; };
    const int far = edge(cells.right);
    const int near = isRightToLeft()
        ? start(cells.left) + columnWidth(horizontalHeader()->logicalIndex(cells.left)) - 1
        : start(cells.left);
    for (int row = cells.top; row <= cells.bottom; ++row)
        painter.drawLine(near, bottom(row), far, bottom(row));
    for (int visual = cells.left; visual <= cells.right; ++visual)
        painter.drawLine(edge(visual), rowViewportPosition(cells.top), edge(visual),
                         bottom(cells.bottom));
}

} // namespace corvala::sdk::ui::dialogs::uicontrols
