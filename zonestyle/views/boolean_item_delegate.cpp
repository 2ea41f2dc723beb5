// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/boolean_item_delegate.h"

#include "zonestyle/controls/selected_rows.h"
#include "zonestyle/models/model_abstract.h"

#include <QMouseEvent>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

BooleanItemDelegate::BooleanItemDelegate(QAbstractItemView& view)
    : ItemDelegate(view)
    , m_viewport(view.viewport())
{
    view.viewport()->installEventFilter(this);
}

/// Moves the cell so that the check box, which Qt puts at its side, lies in the middle.
QStyleOptionViewItem BooleanItemDelegate::centredOption(const QStyleOptionViewItem& option,
                                                        const QModelIndex& index) const
{
    QRect box = rect(option, index, Qt::CheckStateRole);
    QRect none;
    QRect text;
    doLayout(option, &box, &none, &text, false);
    QStyleOptionViewItem centred = option;
    centred.rect.translate(option.rect.center().x() - box.center().x(), 0);
    return centred;
}

bool BooleanItemDelegate::isOnCheckBox(const QStyleOptionViewItem& option, const QModelIndex& index,
                                       const QPoint& position) const
{
    QRect box = rect(option, index, Qt::CheckStateRole);
    box.moveCenter(option.rect.center());
    return box.contains(position);
}

void BooleanItemDelegate::drawDisplay(QPainter* painter, const QStyleOptionViewItem& option,
                                      const QRect& rect, const QString& text) const
{
    if (!text.isEmpty())
        ItemDelegate::drawDisplay(painter, option, rect, text);
}

void BooleanItemDelegate::drawCheck(QPainter* painter, const QStyleOptionViewItem& option,
                                    const QRect& rect, Qt::CheckState state) const
{
    QRect centred = rect;
    centred.moveCenter(option.rect.center());
    ItemDelegate::drawCheck(painter, option, centred, state);
}

bool BooleanItemDelegate::editorEvent(QEvent* event, QAbstractItemModel* model,
                                      const QStyleOptionViewItem& option, const QModelIndex& index)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return handlePress(*static_cast<QMouseEvent*>(event), *model, option, index);
    case QEvent::MouseButtonRelease:
        return handleRelease(*static_cast<QMouseEvent*>(event), option, index);
    case QEvent::KeyPress: return handleKey(*static_cast<QKeyEvent*>(event), index);
    default: return false;
    }
}

bool BooleanItemDelegate::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_viewport)
        return ItemDelegate::eventFilter(watched, event); // of an editor
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        m_pressed = QPersistentModelIndex(); // of a press that never was released here
        return false;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: return holdsPress(*static_cast<QMouseEvent*>(event));
    default: return false;
    }
}

/// Whether the event goes no further than to the check box that is held. A release over another
/// cell lets go of it.
bool BooleanItemDelegate::holdsPress(const QMouseEvent& event)
{
    if (!m_pressed.isValid())
        return false;
    if (event.type() == QEvent::MouseMove)
        return event.buttons().testFlag(Qt::LeftButton);
    if (event.button() != Qt::LeftButton || view()->indexAt(event.pos()) == m_pressed)
        return false;
    m_pressed = QPersistentModelIndex();
    return true;
}

/// With Ctrl or Shift these keys are the table's own: they select rows.
bool BooleanItemDelegate::handleKey(const QKeyEvent& event, const QModelIndex& index)
{
    const bool toggles = event.key() == Qt::Key_Space || event.key() == Qt::Key_Select;
    const bool selects = event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier);
    return toggles && !selects && toggleSelectedRows(index);
}

/// Deliberate: the check box of a cell that is greyed works all the same.
bool BooleanItemDelegate::handlePress(QMouseEvent& event, QAbstractItemModel& model,
                                      const QStyleOptionViewItem& option, const QModelIndex& index)
{
    QStyleOptionViewItem enabled = centredOption(option, index);
    enabled.state |= QStyle::State_Enabled;
    const bool handled = QItemDelegate::editorEvent(&event, &model, enabled, index);
    m_pressed = handled ? QPersistentModelIndex(index) : QPersistentModelIndex();
    if (handled)
        selectPressedRow(event.modifiers());
    return handled;
}

/// The view leaves the selection alone when a press was handled; a check box in a row that is not
/// selected would then do nothing. Shift selects from the current row on, as it does elsewhere.
void BooleanItemDelegate::selectPressedRow(Qt::KeyboardModifiers modifiers)
{
    QItemSelectionModel* selection = view() ? view()->selectionModel() : nullptr;
    if (!selection)
        return;
    const QModelIndex current = selection->currentIndex();
    const bool extends = modifiers.testFlag(Qt::ShiftModifier) && current.isValid();
    const QModelIndex last(m_pressed);
    const QModelIndex first = extends ? last.sibling(current.row(), last.column()) : last;
    selection->setCurrentIndex(m_pressed, QItemSelectionModel::NoUpdate);
    if (selection->isSelected(m_pressed))
        return;
    const bool adds = modifiers.testFlag(Qt::ControlModifier);
    const bool isDownward = first.row() <= last.row();
    selection->select(
        QItemSelection(isDownward ? first : last, isDownward ? last : first),
        QItemSelectionModel::Rows
            | (adds ? QItemSelectionModel::Select : QItemSelectionModel::ClearAndSelect));
}

/// A release beside the box changes nothing, and must not make the view select the one row either.
bool BooleanItemDelegate::handleRelease(const QMouseEvent& event,
                                        const QStyleOptionViewItem& option,
                                        const QModelIndex& index)
{
    const bool isHeld = m_pressed.isValid() && m_pressed == index;
    m_pressed = QPersistentModelIndex();
    if (isHeld && event.button() == Qt::LeftButton && isOnCheckBox(option, index, event.pos()))
        toggleSelectedRows(index);
    return isHeld;
}

/// False when the cell cannot be checked, shows no check box or is not selected.
bool BooleanItemDelegate::toggleSelectedRows(const QModelIndex& index)
{
    auto* model = view() ? qobject_cast<models::ModelAbstract*>(view()->model()) : nullptr;
    const QItemSelectionModel* selection = view() ? view()->selectionModel() : nullptr;
    if (!model || !selection || !model->flags(index).testFlag(Qt::ItemIsUserCheckable)
        || !selection->isSelected(index))
        return false;
    const QVariant shown = index.data(Qt::CheckStateRole);
    if (!shown.isValid())
        return false;
    const bool isChecked = shown.toInt() == Qt::Checked;
    const int state = isChecked ? Qt::Unchecked : Qt::Checked;
    writeLater(*model,
               [model, state, cells = uicontrols::selectedRows(*selection, index.column())] {
                   model->setDataForIndexes(cells, state, Qt::CheckStateRole);
               });
    return true;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
