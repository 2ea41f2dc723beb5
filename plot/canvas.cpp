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

void Canvas::setPicksPlaces(bool picksPlaces)
{
    m_picksPlaces = picksPlaces;
    if (picksPlaces)
        setCursor(Qt::CrossCursor);
    else
        unsetCursor();
}

void Canvas::mousePressed(const QMouseEvent& mouse)
{
    m_pressedAt = m_draggedTo = mouse.localPos();
    m_isDragging = false;
    m_isDoubleClick = mouse.type() == QEvent::MouseButtonDblClick;
    m_isHolding = mouse.button() == Qt::LeftButton && takesHold(mouse.localPos());
}

bool Canvas::mouseMoved(const QPointF& to, bool isPressed)
{
    const double distance = (to - m_pressedAt).manhattanLength();
    m_isDragging = isPressed && (m_isDragging || distance >= QApplication::startDragDistance());
    if (!m_isDragging)
        return m_isHolding || keepsMouse();
    const QPointF by = to - std::exchange(m_draggedTo, to);
    if (m_isHolding)
        moveHeld(by);
    return m_isHolding || dragged(by);
}

bool Canvas::mouseReleased(const QMouseEvent& mouse)
{
    const bool wasHolding = std::exchange(m_isHolding, false);
    if (wasHolding && m_isDragging)
        letGo();
    else if (!m_isDragging && mouse.button() == Qt::LeftButton)
        clicked(mouse.localPos());
    m_isDoubleClick = m_isDragging = false;
    return wasHolding || keepsMouse();
}

void Canvas::clicked(const QPointF& place)
{
    if (!m_picksPlaces)
        Q_EMIT picked(numberAt(place), m_isDoubleClick);
    else if (const auto found = m_isDoubleClick ? std::nullopt : placeAt(place))
        Q_EMIT placePicked((*found)[0], (*found)[1], (*found)[2]);
}

bool Canvas::eventFilter(QObject* watched, QEvent* event)
{
    const auto* const mouse = static_cast<QMouseEvent*>(event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: mousePressed(*mouse); return m_isHolding || keepsMouse();
    case QEvent::MouseMove: return mouseMoved(mouse->localPos(), mouse->buttons() != Qt::NoButton);
    case QEvent::MouseButtonRelease: return mouseReleased(*mouse);
    case QEvent::Wheel: return wheelTurned(*static_cast<QWheelEvent*>(event));
    default: return QWidget::eventFilter(watched, event);
    }
}

} // namespace corvala::plot
