// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/style_table_view.h"

#include "zonestyle/models/model_abstract.h"
#include "zonestyle/views/boolean_item_delegate.h"
#include "zonestyle/views/color_item_delegate.h"
#include "zonestyle/views/combo_box_dialog.h"
#include "zonestyle/views/dynamic_line_map_text_edit_dialog.h"
#include "zonestyle/views/list_box_dialog.h"
#include "zonestyle/views/list_item_delegate.h"
#include "zonestyle/views/text_edit_dialog.h"
#include "zonestyle/views/text_item_delegate.h"

#include <sdk/base/cvl.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>

#include <cmath>
#include <map>
#include <tuple>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

using namespace models; // EditorType_e

namespace {

/// Widths by plot type, tab and column, for the life of the process.
std::map<std::tuple<CvlInt64, int, int>, int>& columnWidths()
{
    static std::map<std::tuple<CvlInt64, int, int>, int> widths;
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
    adoptPalette();
    connect(qApp, &QGuiApplication::paletteChanged, this, &StyleTableView::adoptPalette);
}

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
    m_model = newModel;
    m_tabKey = tabKey;
    adoptRowHeight();
    TableView::setModel(newModel);
    installDelegates();
    sizeColumns(Sizing::KeepRemembered);
    connect(verticalHeader(), &QHeaderView::sectionCountChanged, this,
            &StyleTableView::sectionCountChanged);
}

void StyleTableView::adoptPlotType()
{
    if (m_plotType != CvlUtilFrameGetPlotType())
        sizeColumns(Sizing::KeepRemembered);
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
        setColumnWidth(column, width);
        storeColumnWidth(column, columnWidth(column));
    }
}

void StyleTableView::sectionCountChanged(int, int)
{
    adoptRowHeight();
    sizeColumns(Sizing::Reset);
}

void StyleTableView::storeColumnWidth(int column, int width)
{
    columnWidths()[{CvlUtilFrameGetPlotType(), m_tabKey, column}] = width;
}

void StyleTableView::rememberColumnWidth(int column)
{
    if (m_model && horizontalHeader()->model() == m_model && columnWidth(column) >= 1)
        storeColumnWidth(column, columnWidth(column));
}

int StyleTableView::rememberedColumnWidth(int column) const
{
    const auto found = columnWidths().find({CvlUtilFrameGetPlotType(), m_tabKey, column});
    return found == columnWidths().end() ? 0 : found->second;
}

QSize StyleTableView::minimumSizeHint() const
{
    const bool hasRows = m_model && m_model->rowCount() > 0;
    return {1, hasRows ? kLeastRows * sizeHintForRow(0) + kHeaderRoom : kHeaderRoom};
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
    scrollTo(currentIndex());
    const QPoint center = visualRect(currentIndex()).center();
    QContextMenuEvent event(QContextMenuEvent::Other, center, viewport()->mapToGlobal(center));
    contextMenuEvent(&event);
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

/// The menu and its actions go when it closes, or with the view if that goes first.
void StyleTableView::showMenu(const QList<QAction*>& actions, const QPoint& globalPosition)
{
    const QPointer<QMenu> menu = new QMenu(this);
    for (QAction* action : actions) {
        menu->addAction(action);
        action->setParent(menu);
    }
    menu->exec(globalPosition);
    delete menu;
}

bool StyleTableView::editColumnEvent(QContextMenuEvent* event)
{
    const QModelIndex index = indexAt(event->pos());
    if (!index.isValid() || !m_model)
        return false;
    if (!uicontrols::hasSelectedRows(*selectionModel()))
        selectionModel()->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
    PopupDialogBase* popup = makePopup(index, event->globalPos());
    if (!popup)
        return false;
    event->accept();
    PopupDialogBase::run(popup);
    return true;
}

/// The pop-up editor of a cell's column, or null.
PopupDialogBase* StyleTableView::makePopup(const QModelIndex& index, const QPoint& globalPosition)
{
    const int column = index.column();
    const QString shown = index.data(Qt::DisplayRole).toString();
    const auto commit = [view = QPointer(this), model = m_model, column](const QString& text) {
        if (view && model && view->m_model == model)
            view->commitToSelectedRows(column, text);
    };
    const auto choices = [&index] { return index.data(Qt::EditRole).toStringList(); };
    switch (m_model->columnEditorType(column)) {
    case EditorType_TextPopup:
        return new TextEditDialog(globalPosition, parentWidget(), commit, shown);
    case EditorType_ListPopup:
        return new ListBoxDialog(globalPosition, parentWidget(), commit, choices(), shown,
                                 rememberedColumnWidth(column));
    case EditorType_ComboPopup:
        return new ComboBoxDialog(globalPosition, parentWidget(), commit, choices(), shown);
    case EditorType_DynamicTextPopup:
        return new DynamicLineMapTextEditDialog(globalPosition, parentWidget(), commit,
                                                index.data(Qt::EditRole).toString(),
                                                index.row() + 1);
    default: return nullptr;
    }
}

void StyleTableView::commitToSelectedRows(int column, const QString& text)
{
    m_model->setDataForIndexes(uicontrols::selectedRows(*selectionModel(), column), text,
                               Qt::EditRole);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
