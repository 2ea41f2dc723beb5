// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/views/cell_arrow.h"

#include <QAbstractItemView>
#include <QHoverEvent>
#include <QPainter>
#include <QStyleOption>
#include <QTimer>

#include <utility>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::views {

CellArrow::CellArrow(QAbstractItemView& view, std::function<bool(const QModelIndex&)> opens,
                     std::function<void(const QModelIndex&)> open)
    : m_view(view)
    , m_opens(std::move(opens))
    , m_open(std::move(open))
{
    view.viewport()->setAttribute(Qt::WA_Hover);
    view.viewport()->installEventFilter(this);
}

/// Empty for a cell that shows none, opens nothing or has no room for it beside its contents.
QRect CellArrow::arrowOf(const QModelIndex& index) const
{
    const bool isBox = index.data(Qt::CheckStateRole).isValid(); // it stands in the middle
    const int side = isBox ? 9 : 13;
    const int leastWidth = (isBox ? 4 : 3) * side;
    const bool hasFocus = m_view.hasFocus() || m_view.viewport()->hasFocus();
    const bool isCurrent = hasFocus && index == m_view.currentIndex();
    const QRect cell = m_view.visualRect(index).adjusted(0, 0, -1, -1);
    if ((!isCurrent && index != hoveredCell()) || cell.width() < leastWidth || !m_opens(index))
        return {};
    const QRect arrow(cell.right() - side, cell.top() + (cell.height() - side) / 2, side, side);
    return QStyle::visualRect(m_view.layoutDirection(), cell, arrow);
}

void CellArrow::paint(QPainter& painter) const
{
    paintIn(m_view.currentIndex(), painter);
    if (hoveredCell() != m_view.currentIndex())
        paintIn(hoveredCell(), painter);
}

void CellArrow::paintIn(const QModelIndex& index, QPainter& painter) const
{
    QStyleOption option;
    option.initFrom(&m_view);
    option.rect = arrowOf(index);
    if (option.rect.isEmpty())
        return;
    painter.setPen(option.palette.color(QPalette::Mid));
    painter.setBrush(option.palette.button());
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    const int margin = option.rect.width() > 10 ? 2 : 1;
    option.rect.adjust(margin, margin, -margin, -margin);
    m_view.style()->drawPrimitive(QStyle::PE_IndicatorArrowDown, &option, &painter, &m_view);
}

QModelIndex CellArrow::hoveredCell() const
{
    return m_mouse.x() < 0 ? QModelIndex() : m_view.indexAt(m_mouse);
}

bool CellArrow::eventFilter(QObject* viewport, QEvent* event)
{
    switch (event->type()) {
    case QEvent::HoverEnter:
    case QEvent::HoverMove: hover(static_cast<QHoverEvent*>(event)->pos()); break;
    case QEvent::HoverLeave: hover({-1, -1}); break;
    case QEvent::MouseButtonPress: return press(*static_cast<QMouseEvent*>(event));
    case QEvent::MouseMove:
        return m_pressed.isValid()
            && static_cast<QMouseEvent*>(event)->buttons().testFlag(Qt::LeftButton);
    case QEvent::MouseButtonRelease: return release(*static_cast<QMouseEvent*>(event));
    default: break;
    }
    return QObject::eventFilter(viewport, event);
}

void CellArrow::hover(const QPoint& position)
{
    const QModelIndex before = hoveredCell();
    m_mouse = position;
    const QModelIndex after = hoveredCell();
    if (before == after)
        return;
    m_view.viewport()->update(m_view.visualRect(before));
    m_view.viewport()->update(m_view.visualRect(after));
}

/// The press and all that follows up to its release is not the table's, which would select.
bool CellArrow::press(const QMouseEvent& event)
{
    const QModelIndex index = m_view.indexAt(event.pos());
    const bool isOnArrow = event.button() == Qt::LeftButton && event.modifiers() == Qt::NoModifier
        && arrowOf(index).contains(event.pos());
    m_pressed = isOnArrow ? QPersistentModelIndex(index) : QPersistentModelIndex();
    return isOnArrow;
}

/// Opened by the press already, a menu would take the release for a click outside it.
bool CellArrow::release(const QMouseEvent& event)
{
    const QPersistentModelIndex pressed = std::exchange(m_pressed, QPersistentModelIndex());
    if (!pressed.isValid())
        return false;
    if (arrowOf(pressed).contains(event.pos()))
        QTimer::singleShot(0, this, [this, pressed] {
            if (pressed.isValid() && pressed.model() == m_view.model())
                m_open(pressed);
        });
    return true;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::views
