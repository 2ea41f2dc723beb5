// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/map_scene.h"
#include "plot/common/picture.h"

#include <QElapsedTimer>
#include <QPointF>
#include <QRectF>
#include <QWidget>

#include <any>
#include <array>
#include <optional>
#include <utility>

class QMouseEvent;
class QRubberBand;
class QWheelEvent;

namespace corvala::plot {

/// From where a plot in space is looked at: along an axis, or from the corner as at the start.
enum class ViewPreset { X, Y, Z, Corner };

/// A widget that draws frames of one kind: the picture of a scene, and the hand that moves in it.
/// FrameView picks the canvas for a frame, tells it what changes, and when to draw.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    virtual MapScene& scene() = 0;
    /// Draws the scene as it is; may find more work.
    virtual void draw() = 0;
    /// Whether the picture is too large to be drawn at once, and part of it is still missing.
    virtual bool isUnfinished() const { return false; }
    /// Draws some more of an unfinished picture.
    virtual void drawMore() { }
    /// Leaves an unfinished picture as it is, with a remark, until the next one.
    virtual void stopDrawing() { }
    /// What is drawn of an unfinished picture, and the whole.
    virtual std::pair<CvlInt64, CvlInt64> drawingProgress() const { return {0, 0}; }
    /// Draws the frame with the present view all over a device, without the window and complete
    /// even while work is pending; as PaintPicture. A watch that ends it gets a text, too.
    virtual QString paint(QPaintDevice& device, Paper paper, const WorkWatch& watch) = 0;
    /// Why this canvas cannot draw on this machine, for the user; empty when it can.
    virtual QString problem() const { return {}; }
    /// True while the hand moves the view: another picture follows when it rests.
    virtual bool isBeingMoved() const { return false; }
    /// Called after a change of the document that changed the scene.
    virtual void sceneChanged(const host::StateEvent&) { }

    /// What is taken for a value of the frame's style while another value says that it follows from
    /// the data; nothing when that is not known.
    virtual std::optional<double> proposal(style::Key, int /*index*/) const { return {}; }

    /// Clicks give places of what is drawn from now on, or pick again.
    void setPicksPlaces(bool picksPlaces);

    /// What is seen of the frame, for setView; an empty value shows the whole, as at the start.
    virtual std::any view() const = 0;
    virtual void setView(const std::any& view) = 0;

    /// Drags of the left button draw the box that shall fill the plot, from now on.
    void setZoomsToBox(bool zooms);
    /// Ends what the mouse is about: until its buttons are let go, it does nothing.
    void leaveMouse();
    /// Whether a part of the plot can be made to fill it.
    virtual bool canZoomToBox() const { return true; }
    /// Shows what is in a part of the canvas, which may be larger than the canvas, as large as
    /// possible.
    virtual void zoomToBox(const QRectF& box) = 0;
    /// The same for what is drawn of some maps; false when there is nothing.
    virtual bool zoomToMaps(const host::NumberSet& maps) = 0;
    /// Whether the view can be turned, looked at from a preset, and be parallel.
    virtual bool canTurn() const { return false; }
    virtual void lookFrom(ViewPreset) { }
    virtual bool isParallel() const { return false; }
    virtual void setParallel(bool /*isParallel*/) { }
    /// Marks maps in the window, and not in pictures; too many are marked as one, or not at all.
    virtual void setOutlined(const host::NumberSet& maps) = 0;
    /// What there is to know of a place of the canvas, in a line; empty beside the plot. Takes a
    /// few milliseconds: while isProbing, more is known when it is asked again.
    virtual QString probe(const QPointF& place) = 0;
    virtual bool isProbing() const { return false; }
    /// False when the last picture misses all that is drawn.
    virtual bool seesSomething() const { return true; }

Q_SIGNALS:
    /// Somebody is about to change the view, which is still the one before.
    void viewLeft();
    /// The mouse moved over the canvas without a button, or went elsewhere.
    void hovered(const QPointF& place);
    void hoverEnded();
    /// A box has been drawn, or the mouse was used for something else.
    void boxEnded();
    /// A click with the right button; `number` as of `picked`, at a place of the screen.
    void menuWanted(CvlInt64 number, const QPoint& place);
    /// The picture is out of date for a reason of the canvas's own.
    void redrawWanted();
    /// A click; `number` is that of the zone or line map there, 0 without one. A double click has
    /// `activate` true, after the click that began it.
    void picked(CvlInt64 number, bool activate);
    /// A click on something that is drawn, while clicks give places.
    void placePicked(double x, double y, double z);

protected:
    /// Takes the mouse over a part of the canvas for clicks and drags.
    void watch(QWidget& part);
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

    virtual CvlInt64 numberAt(const QPointF& place) = 0;
    /// Coordinates of what is drawn there; nothing beside it.
    virtual std::optional<std::array<double, 3>> placeAt(const QPointF&) { return {}; }
    // Things that lie over the picture and can be moved by hand: whether the mouse takes hold of
    // one there, its way with the mouse, by pixels, and its end.
    virtual bool takesHold(const QPointF& /*place*/) { return false; }
    virtual void moveHeld(const QPointF& /*by*/) { }
    virtual void letGo() { }
    /// The mouse drags the view by some pixels, or its wheel turns. True when the part is not to
    /// know.
    virtual bool dragged(const QPointF& by) = 0;
    virtual bool wheelTurned(const QWheelEvent& wheel) = 0;
    /// Whether the mouse is kept from the part, which otherwise knows of drags and their button.
    virtual bool keepsMouse() const { return false; }

    void hideEvent(QHideEvent* event) override;

private:
    void showCursor();
    void mousePressed(const QMouseEvent& mouse);
    void beginDrag(const QMouseEvent& mouse, double share);
    bool mouseMoved(const QMouseEvent& mouse);
    bool mouseReleased(const QMouseEvent& mouse);
    void clicked(const QPointF& place);
    void tellPart(QEvent::Type type, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);
    void stretchBox(const QPointF& to);
    void zoomToDrawn();

    QWidget* m_part = nullptr; ///< not owned; what has the mouse
    Qt::MouseButton m_pressed = Qt::NoButton; ///< what began; others do nothing meanwhile
    QPointF m_pressedAt;
    QPointF m_draggedTo;
    bool m_isDoubleClick = false;
    bool m_isDragging = false;
    bool m_isHolding = false; ///< something that is moved by hand
    bool m_picksPlaces = false;
    bool m_zoomsToBox = false;
    bool m_isBoxing = false; ///< the mouse draws a box
    bool m_isLeft = false; ///< until the button is let go, the mouse does nothing
    QElapsedTimer m_wheel; ///< since it was turned
    QRubberBand* m_band = nullptr; ///< owned by Qt; null until it is needed
};

} // namespace corvala::plot
