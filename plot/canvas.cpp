// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/canvas.h"

#include <QApplication>
#include <QMouseEvent>
#include <QRubberBand>

#include <algorithm>
#include <utility>

namespace corvala::plot {

static constexpr int kThinnestBox = 4; ///< pixels
static constexpr int kWheelPause = 1000; ///< milliseconds after which it begins anew

void Canvas::watch(QWidget& part)
{
    m_part = &part;
    part.installEventFilter(this);
}

void Canvas::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Q_EMIT redrawWanted();
}

void Canvas::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    leaveMouse();
}

static constexpr Qt::KeyboardModifiers kBoxModifiers = Qt::ControlModifier | Qt::ShiftModifier;

void Canvas::showCursor()
{
    if (m_picksPlaces || m_zoomsToBox)
        setCursor(Qt::CrossCursor);
    else
        unsetCursor();
}

void Canvas::setPicksPlaces(bool picksPlaces)
{
    m_picksPlaces = picksPlaces;
    showCursor();
}

void Canvas::setZoomsToBox(bool zooms)
{
    m_zoomsToBox = zooms;
    showCursor();
    if (!zooms && m_isBoxing)
        leaveMouse();
}

/// A part that does something with the mouse itself takes it for let go: it would go on when it is
/// seen again, without a button.
void Canvas::leaveMouse()
{
    if (m_pressed == Qt::NoButton || m_isLeft)
        return;
    m_isLeft = true;
    if (std::exchange(m_isBoxing, false)) {
        m_band->hide();
        Q_EMIT boxEnded();
    } else if (!std::exchange(m_isHolding, false) && m_isDragging && !keepsMouse()) {
        tellPart(QEvent::MouseButtonRelease, Qt::NoButton, Qt::NoModifier);
    }
}

/// Past those who watch the hand.
void Canvas::tellPart(QEvent::Type type, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    QMouseEvent event(type, m_draggedTo, m_pressed, buttons, modifiers);
    static_cast<QObject&>(*m_part).event(&event);
}

void Canvas::mousePressed(const QMouseEvent& mouse)
{
    const bool isFirst = mouse.buttons() == mouse.button();
    if (m_isBoxing || !isFirst)
        return;
    m_pressed = mouse.button();
    m_pressedAt = m_draggedTo = mouse.localPos();
    m_isDragging = m_isLeft = false;
    m_isDoubleClick = mouse.type() == QEvent::MouseButtonDblClick;
    const bool isLeft = mouse.button() == Qt::LeftButton;
    const bool isBox = m_zoomsToBox || (mouse.modifiers() & kBoxModifiers) == kBoxModifiers;
    m_isBoxing = isLeft && isBox && canZoomToBox();
    m_isHolding = !m_isBoxing && isLeft && takesHold(mouse.localPos());
    if (m_isBoxing && !m_band)
        m_band = new QRubberBand(QRubberBand::Rectangle, this);
}

void Canvas::stretchBox(const QPointF& to)
{
    m_band->setGeometry(QRectF(m_pressedAt, to).normalized().toAlignedRect().intersected(rect()));
    m_band->setVisible(m_isDragging);
    m_band->raise();
}

/// A box that is thinner than a hand can draw is none.
void Canvas::zoomToDrawn()
{
    m_isBoxing = false;
    const QRect box = m_band->geometry();
    m_band->hide();
    if (m_isDragging && std::min(box.width(), box.height()) >= kThinnestBox) {
        Q_EMIT viewLeft();
        zoomToBox(box);
        Q_EMIT redrawWanted();
    }
    Q_EMIT boxEnded();
}

/// A hand that clicks trembles: until it has gone some way, nothing moves, and the part does not
/// know of the button. The drag begins where that way ends, so that the view follows smoothly.
void Canvas::beginDrag(const QMouseEvent& mouse, double share)
{
    m_isDragging = true;
    if (m_isBoxing || m_isHolding)
        return;
    Q_EMIT viewLeft();
    m_draggedTo = m_pressedAt + share * (mouse.localPos() - m_pressedAt);
    if (!keepsMouse())
        tellPart(QEvent::MouseButtonPress, m_pressed, mouse.modifiers());
}

bool Canvas::mouseMoved(const QMouseEvent& mouse)
{
    const QPointF to = mouse.localPos();
    if (mouse.buttons() == Qt::NoButton)
        return keepsMouse();
    if (m_isLeft || m_pressed == Qt::NoButton)
        return true;
    const double distance = (to - m_pressedAt).manhattanLength();
    const double threshold = std::max(QApplication::startDragDistance(), 1);
    if (!m_isDragging && distance >= threshold)
        beginDrag(mouse, threshold / distance);
    if (m_isBoxing)
        stretchBox(to);
    if (!m_isDragging || m_isBoxing)
        return true;
    const QPointF by = to - std::exchange(m_draggedTo, to);
    if (m_isHolding)
        moveHeld(by);
    return m_isHolding || dragged(by);
}

/// Only that of the button that began ends what it is about.
bool Canvas::mouseReleased(const QMouseEvent& mouse)
{
    if (mouse.button() != m_pressed)
        return true;
    m_pressed = Qt::NoButton;
    const bool wasHolding = std::exchange(m_isHolding, false);
    const bool isTaken = m_isBoxing || m_isLeft || wasHolding || !m_isDragging || keepsMouse();
    if (m_isBoxing)
        zoomToDrawn();
    else if (wasHolding && m_isDragging)
        letGo();
    else if (!m_isDragging && !m_isLeft && mouse.button() == Qt::LeftButton)
        clicked(mouse.localPos());
    else if (!m_isDragging && !m_isLeft && mouse.button() == Qt::RightButton)
        Q_EMIT menuWanted(numberAt(mouse.localPos()), mouse.globalPos());
    m_isDoubleClick = m_isDragging = m_isLeft = false;
    return isTaken;
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
    case QEvent::MouseButtonDblClick: mousePressed(*mouse); return true;
    case QEvent::MouseMove:
        if (mouse->buttons() == Qt::NoButton)
            Q_EMIT hovered(mouse->localPos());
        return mouseMoved(*mouse);
    case QEvent::Leave: Q_EMIT hoverEnded(); return false;
    case QEvent::MouseButtonRelease: return mouseReleased(*mouse);
    case QEvent::Wheel:
        if (!m_wheel.isValid() || m_wheel.restart() > kWheelPause)
            Q_EMIT viewLeft();
        m_wheel.start();
        return wheelTurned(*static_cast<QWheelEvent*>(event));
    default: return QWidget::eventFilter(watched, event);
    }
}

} // namespace corvala::plot
