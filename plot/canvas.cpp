// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/canvas.h"

#include <QApplication>
#include <QMouseEvent>

#include <utility>

namespace corvala::plot {

void Canvas::watch(QWidget& part)
{
    part.installEventFilter(this);
}

void Canvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Q_EMIT redrawWanted();
}

bool Canvas::mouseMoved(const QPointF& to, bool isPressed)
{
    const double distance = (to - m_pressedAt).manhattanLength();
    m_isDragging = isPressed && (m_isDragging || distance >= QApplication::startDragDistance());
    return m_isDragging ? dragged(to - std::exchange(m_draggedTo, to)) : keepsMouse();
}

bool Canvas::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const mouse = static_cast<QMouseEvent*>(event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_pressedAt = m_draggedTo = mouse->localPos();
        m_isDragging = false;
        m_isDoubleClick = event->type() == QEvent::MouseButtonDblClick;
        return keepsMouse();
    case QEvent::MouseMove: return mouseMoved(mouse->localPos(), mouse->buttons() != Qt::NoButton);
    case QEvent::MouseButtonRelease:
        if (!m_isDragging && mouse->button() == Qt::LeftButton)
            Q_EMIT picked(numberAt(mouse->localPos()), m_isDoubleClick);
        m_isDoubleClick = m_isDragging = false;
        return keepsMouse();
    case QEvent::Wheel: return wheelTurned(*static_cast<QWheelEvent*>(event));
    default: return QWidget::eventFilter(watched, event);
    }
}

} // namespace corvala::plot
