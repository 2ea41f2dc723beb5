// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/style_table_view.h"

#include "zonestyle/actions/action.h"
#include "zonestyle/models/model_abstract.h"
#include "zonestyle/views/boolean_item_delegate.h"
#include "zonestyle/views/cell_arrow.h"
#include "zonestyle/views/cell_popups.h"
#include "zonestyle/views/color_item_delegate.h"
#include "zonestyle/views/list_item_delegate.h"
#include "zonestyle/views/text_item_delegate.h"

#include <sdk/base/cvl.h>
#include <sdk/uicommon/edit_session.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <QToolTip>
#include <QWindow>

#include <cmath>
#include <map>
#include <tuple>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

using namespace models; // EditorType_e

namespace {

struct ColumnWidth
{
    int pixels = 0;
    bool isOfTable = false; ///< and not of the user
};

/// Widths by plot type, tab and column, for the life of the process.
std::map<std::tuple<CvlInt64, int, int>, ColumnWidth>& columnWidths()
{
    static std::map<std::tuple<CvlInt64, int, int>, ColumnWidth> widths;
    return widths;
}

constexpr int kHeaderRoom = 34; // pixels
constexpr int kLeastRows = 6;

QColor blend(const QColor& from, const QColor& to, double share)
{
    const auto between = [share](int a, int b) {
        return static_cast<int>(std::lround(a + (b - a) * share));
    };
    return QColor(between(from.red(), to.red()), between(from.green(), to.green()),
                  between(from.blue(), to.blue()));
}

} // namespace

StyleTableView::StyleTableView(QWidget* parent)
    : TableView(parent)
{
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->hide();
    setSelectionBehavior(SelectRows);
    setEditTriggers(DoubleClicked | EditKeyPressed);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setAccessibleName(tr("Style table"));
    setHorizontalScrollMode(ScrollPerPixel);
    setTextElideMode(Qt::ElideMiddle); // what tells long names apart is at their end
    m_arrow = std::make_unique<CellArrow>(
        *this, [this](const QModelIndex& index) { return opensOnRightClick(index); },
        [this](const QModelIndex& index) { openAtArrow(index); });
    adoptPalette();
    connect(qApp, &QGuiApplication::paletteChanged, this, &StyleTableView::adoptPalette);
}

StyleTableView::~StyleTableView() = default;

/// Selected rows are tinted, not filled: swatches, check boxes and greyed texts stay readable.
void StyleTableView::adoptPalette()
{
    QPalette colors = QApplication::palette(this);
    colors.resolve(0); // the other roles stay those of the desktop
    const QColor base = colors.color(QPalette::Active, QPalette::Base);
    const QColor text = colors.color(QPalette::Active, QPalette::Text);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        const QColor highlight = colors.color(group, QPalette::Highlight);
        colors.setColor(group, QPalette::Highlight, blend(base, highlight, 0.3));
        colors.setColor(group, QPalette::HighlightedText, text);
    }
    colors.setColor(QPalette::Disabled, QPalette::Text, blend(base, text, 0.5));
    setPalette(colors);
}

void StyleTableView::changeEvent(QEvent* event)
{
    TableView::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        adoptPalette();
}

void StyleTableView::setModel(ModelAbstract* newModel, int tabKey)
{
    disconnect(verticalHeader(), &QHeaderView::sectionCountChanged, this,
               &StyleTableView::sectionCountChanged);
    if (m_model)
        disconnect(m_model, &QAbstractItemModel::layoutChanged, this, &StyleTableView::growColumns);
    m_model = newModel;
    m_tabKey = tabKey;
    adoptRowHeight();
    TableView::setModel(newModel);
    horizontalHeader()->viewport()->installEventFilter(this);
    installDelegates();
    sizeColumns(Sizing::KeepRemembered);
    connect(verticalHeader(), &QHeaderView::sectionCountChanged, this,
            &StyleTableView::sectionCountChanged);
    if (m_model)
        connect(m_model, &QAbstractItemModel::layoutChanged, this, &StyleTableView::growColumns);
}

void StyleTableView::adoptPlotType()
{
    if (!m_model || m_plotType == CvlUtilFrameGetPlotType())
        return;
    m_plotType = CvlUtilFrameGetPlotType();
    for (int column = 0; column < m_model->columnCount(); ++column) {
        if (rememberedColumnWidth(column) == 0)
            rememberColumnWidth(column);
    }
}

/// Rows get their height before they exist: changing it afterwards takes a signal for each.
void StyleTableView::adoptRowHeight()
{
    const int rows = m_model ? m_model->rowCount() : 0;
    if (rows == 0 || m_model->columnCount() == 0)
        return;
    const ItemDelegate delegate(*this);
    const int height = delegate.sizeHint(viewOptions(), m_model->index(rows - 1, 0)).height();
    if (height >= 1 && height != verticalHeader()->defaultSectionSize())
        verticalHeader()->setDefaultSectionSize(height);
}

ItemDelegate* StyleTableView::makeDelegate(int column)
{
    const int option = m_model->columnEditorOption(column);
    switch (m_model->columnEditorType(column)) {
    case EditorType_TextPopup:
    case EditorType_Text: return new TextItemDelegate(*this, option);
    case EditorType_ListPopup:
    case EditorType_List: return new ListItemDelegate(*this, option, false, false);
    case EditorType_EditableList: return new ListItemDelegate(*this, option, true, false);
    case EditorType_ComboPopup: return new ListItemDelegate(*this, option, true, true);
    case EditorType_Boolean: return new BooleanItemDelegate(*this);
    case EditorType_Color: return new ColorItemDelegate(*this);
    default: return new ItemDelegate(*this);
    }
}

void StyleTableView::installDelegates()
{
    const int columns = m_model ? m_model->columnCount() : 0;
    for (int column = 0; column < columns; ++column) {
        QAbstractItemDelegate* former = itemDelegateForColumn(column);
        setItemDelegateForColumn(column, makeDelegate(column));
        if (former)
            former->deleteLater(); // it may be handling an event
    }
}

/// Sizes come from the last row. Without rows there is nothing to measure, and what is remembered
/// stays.
void StyleTableView::sizeColumns(Sizing sizing)
{
    m_plotType = CvlUtilFrameGetPlotType();
    const int rows = m_model ? m_model->rowCount() : 0;
    if (rows == 0)
        return;
    for (int column = 0; column < m_model->columnCount(); ++column) {
        const int remembered = sizing == Sizing::KeepRemembered ? rememberedColumnWidth(column) : 0;
        if (remembered >= 1) {
            setColumnWidth(column, remembered);
            continue;
        }
        const int width = sizeHintForIndex(m_model->index(rows - 1, column)).width();
        setColumnWidth(column, qMax(1, width)); // an empty cell would hide it
        storeColumnWidth(column, columnWidth(column));
    }
}

/// A width that the user gave stays.
void StyleTableView::growColumns()
{
    for (int column = 0; column < m_model->columnCount(); ++column) {
        if (m_model->columnEditorType(column) != EditorType_None
            || m_model->columnEditorOption(column) != kGrowsWithText
            || !columnWidths()[widthKey(column)].isOfTable)
            continue;
        const int needed = widestSeen(column);
        if (needed <= columnWidth(column))
            continue;
        setColumnWidth(column, needed);
        storeColumnWidth(column, columnWidth(column));
    }
}

void StyleTableView::sectionCountChanged(int, int)
{
    adoptRowHeight();
    sizeColumns(Sizing::Reset);
}

std::tuple<CvlInt64, int, int> StyleTableView::widthKey(int column) const
{
    return {CvlUtilFrameGetPlotType(), m_tabKey, column};
}

void StyleTableView::storeColumnWidth(int column, int width)
{
    columnWidths()[widthKey(column)] = {width, true};
}

void StyleTableView::rememberColumnWidth(int column)
{
    const int width = columnWidth(column);
    if (m_model && horizontalHeader()->model() == m_model && width >= 1
        && width != rememberedColumnWidth(column))
        columnWidths()[widthKey(column)] = {width, false};
}

int StyleTableView::rememberedColumnWidth(int column) const
{
    const auto found = columnWidths().find(widthKey(column));
    return found == columnWidths().end() ? 0 : found->second.pixels;
}

/// All rows are equally high; QTableView::sizeHintForRow would measure the cells of one.
QSize StyleTableView::minimumSizeHint() const
{
    const bool hasRows = m_model && m_model->rowCount() > 0;
    const int rowHeight = verticalHeader()->defaultSectionSize() + (showGrid() ? 1 : 0);
    return {1, hasRows ? kLeastRows * rowHeight + kHeaderRoom : kHeaderRoom};
}

QModelIndex StyleTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    if (!m_model || !m_model->isForCurrentFrame())
        return currentIndex();
    return TableView::moveCursor(action, modifiers);
}

/// Not every platform turns these keys into a request for the context menu.
static bool opensMenu(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Menu
        || (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier)
        || (event.key() == Qt::Key_Down && event.modifiers() == Qt::AltModifier);
}

void StyleTableView::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (state() == EditingState || (!isReturn && !opensMenu(*event))) {
        TableView::keyPressEvent(event);
        return;
    }
    event->accept(); // Return would go on to the dialog and close it
    if (isReturn)
        editCurrentCell();
    else
        openMenuAtCurrentCell();
}

/// In place where the cell can be edited so, else by its menu.
void StyleTableView::editCurrentCell()
{
    const QPointer<StyleTableView> self(this);
    QKeyEvent editKey(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier);
    TableView::keyPressEvent(&editKey);
    if (self && !editKey.isAccepted())
        openMenuAtCurrentCell();
}

void StyleTableView::openMenuAtCurrentCell()
{
    if (!currentIndex().isValid())
        return;
    selectRowIfNone(currentIndex());
    scrollTo(currentIndex());
    openFor(currentIndex(), visibleRect(currentIndex()).center());
}

/// An open list of completions keeps it from its editor that the focus goes.
void StyleTableView::finishEditing()
{
    setFocus();
    QWidget* editor = state() == EditingState ? indexWidget(currentIndex()) : nullptr;
    if (!editor)
        return;
    commitData(editor);
    closeEditor(editor, QAbstractItemDelegate::NoHint);
}

/// Without a selected row an edit would act on nothing.
void StyleTableView::selectRowIfNone(const QModelIndex& index)
{
    if (!uicontrols::hasSelectedRows(*selectionModel()))
        selectionModel()->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

QRect StyleTableView::visibleRect(const QModelIndex& index) const
{
    return visualRect(index) & viewport()->rect();
}

/// What a right click on the cell opens, at another position.
void StyleTableView::openFor(const QModelIndex& index, const QPoint& position)
{
    QContextMenuEvent event(QContextMenuEvent::Other, visibleRect(index).center(),
                            viewport()->mapToGlobal(position));
    contextMenuEvent(&event);
}

bool StyleTableView::opensOnRightClick(const QModelIndex& index) const
{
    if (!index.isValid() || !m_model)
        return false;
    return (isPopupType(m_model->columnEditorType(index.column()))
            && m_model->flags(index).testFlag(Qt::ItemIsEditable))
        || m_model->columnHasActions(index.column());
}

void StyleTableView::paintEvent(QPaintEvent* event)
{
    TableView::paintEvent(event);
    QPainter painter(viewport());
    m_arrow->paint(painter);
}

/// As a right click: a row that is not selected becomes the only one that is.
void StyleTableView::openAtArrow(const QModelIndex& index)
{
    if (!isCellSelected(index))
        selectionModel()->select(index,
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    openFor(index, visibleRect(index).bottomLeft());
}

/// The keys stand where the eye begins, on the first header.
bool StyleTableView::eventFilter(QObject* watched, QEvent* event)
{
    // The type first: other events come from a header that is being destroyed, too.
    if (event->type() != QEvent::ToolTip || watched != horizontalHeader()->viewport())
        return TableView::eventFilter(watched, event);
    const auto* help = static_cast<QHelpEvent*>(event);
    if (horizontalHeader()->logicalIndexAt(help->pos()) == 0)
        QToolTip::showText(help->globalPos(),
                           tr("Space switches the check boxes of all selected rows.\n"
                              "Return or F2 edits the current cell.\n"
                              "Alt+Down, Menu or Shift+F10 opens its menu.\n"
                              "Ctrl+A selects all rows; Shift and Ctrl extend the selection.\n"
                              "A double click on the border of a column fits its width."),
                           horizontalHeader());
    return true;
}

int StyleTableView::fittingWidth(const QModelIndex& index) const
{
    const auto* delegate = qobject_cast<const ItemDelegate*>(itemDelegate(index));
    return delegate ? delegate->fittingWidth(viewOptions(), index) : 0;
}

/// What the rows that are seen need.
int StyleTableView::widestSeen(int column) const
{
    const int rows = m_model ? m_model->rowCount() : 0;
    const int last = rowAt(viewport()->height() - 1);
    int widest = 0;
    for (int row = qMax(0, rowAt(0)); row <= (last < 0 ? rows - 1 : last); ++row)
        widest = qMax(widest, fittingWidth(m_model->index(row, column)));
    return widest + (showGrid() ? 1 : 0);
}

int StyleTableView::sizeHintForColumn(int column) const
{
    constexpr int kSample = 500;
    const int rows = m_model ? m_model->rowCount() : 0;
    int widest = 0;
    for (int row = 0; row < rows; row += qMax(1, rows / kSample))
        widest = qMax(widest, fittingWidth(m_model->index(row, column)));
    return qMax(widestSeen(column), widest + (showGrid() ? 1 : 0));
}

void StyleTableView::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        event->accept();
        openMenuAtCurrentCell();
        return;
    }
    const QModelIndex index = indexAt(event->pos());
    if (!index.isValid() || !m_model)
        return;
    if (m_model->flags(index).testFlag(Qt::ItemIsEditable) && editColumnEvent(event))
        return;
    const QList<QAction*> actions = m_model->columnActions(selectionModel(), index.column());
    if (actions.isEmpty())
        return;
    event->accept();
    showMenu(actions, event->globalPos());
}

/// The menu and its actions go when it has closed. It is no child of the view, which may be
/// destroyed while an action of the menu asks the user: the menu would then go in the middle of the
/// click that chose the action.
void StyleTableView::showMenu(const QList<QAction*>& actions, const QPoint& globalPosition)
{
    QMenu menu;
    for (QAction* action : actions) {
        menu.addAction(action);
        action->setParent(&menu);
        const auto* entry = qobject_cast<const actions::Action*>(action);
        if (entry && entry->isPresentValue()) {
            action->setCheckable(true);
            action->setChecked(true);
        }
    }
    menu.winId();
    menu.windowHandle()->setTransientParent(window()->windowHandle());
    connect(this, &QObject::destroyed, &menu, &QMenu::close);
    const EditSession session([&menu] { menu.close(); });
    menu.exec(globalPosition);
}

bool StyleTableView::editColumnEvent(QContextMenuEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    if (!index.isValid() || !m_model)
        return false;
    selectRowIfNone(index);
    const int column = index.column();
    const auto commit = [view = QPointer(this), model = m_model, column](const QString& text) {
        if (view && model && view->m_model == model)
            view->commitToSelectedRows(column, text);
    };
    PopupDialogBase* popup =
        makePopup(*m_model, index,
                  {event->globalPos(), parentWidget(), rememberedColumnWidth(column)}, commit);
    if (!popup)
        return false;
    event->accept();
    PopupDialogBase::run(popup);
    return true;
}

void StyleTableView::commitToSelectedRows(int column, const QString& text)
{
    m_model->setDataForIndexes(uicontrols::selectedRows(*selectionModel(), column), text,
                               Qt::EditRole);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
