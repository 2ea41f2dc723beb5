// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sdk/base/types.h"

#include <QImage>
#include <QTimer>
#include <QWidget>

#include <memory>

namespace corvala::host {
struct StateEvent;
}

namespace corvala::plot {

/// A widget that draws one frame of the document and follows its changes. Each kind of frame has a
/// canvas class; FrameView picks the right one.
class Canvas : public QWidget
{
    Q_OBJECT

public:
    explicit Canvas(QWidget* parent = nullptr);

    CvlUniqueId frame() const { return m_frame; } ///< 0 when it draws none
    /// Draws this frame from now on; 0, or the ID of no frame, shows an empty canvas. Keeps the
    /// view of a frame that it drew before.
    void setFrame(CvlUniqueId frame);

    /// Draws at the next idle moment; many requests until then cost one drawing.
    void requestRedraw();
    /// Drawings so far; tells how far requests were coalesced.
    int redrawCount() const { return m_redraws; }

    /// The frame with the present view as an image of `size` pixels, drawn without the window and
    /// complete even while work is pending. Null, with the reason in `error` (may be null), when it
    /// cannot be drawn.
    virtual QImage render(const QSize& size, QString* error) = 0;

    /// Why this canvas cannot draw on this machine, for the user; empty when it can.
    virtual QString problem() const { return {}; }

    /// True while a redraw or work in slices is pending.
    virtual bool isBusy() const { return m_idle.isActive(); }

public Q_SLOTS:
    /// Shows the whole of what is drawn, as at the start.
    virtual void fitView() = 0;
    /// Puts pending work in slices aside; what is drawn so far stays, with a remark.
    virtual void cancelWork() { }
    /// Takes up again what was put aside.
    virtual void resumeWork() { }

Q_SIGNALS:
    /// A click on the canvas; `zone` is 0 where there is none. A double click has `activate` true,
    /// after the click that began it.
    void zonePicked(CvlInt64 zone, bool activate);
    /// As zonePicked, for line maps.
    void lineMapPicked(CvlInt64 lineMap, bool activate);
    /// Work in slices that takes longer goes on; `done` of `total` pieces are ready.
    void workProgressed(CvlInt64 done, CvlInt64 total);
    /// The last of a series of workProgressed.
    void workEnded(bool cancelled);
    void redrawn();

protected:
    /// Called when another frame is to be drawn; frame() is the new one.
    virtual void frameChanged(CvlUniqueId previous) = 0;
    /// Called for every change of the document while the canvas lives.
    virtual void documentChanged(const host::StateEvent& event) = 0;
    /// Draws, or does a slice of work; true while there is more to do at the next idle moment.
    virtual bool redraw() = 0;
    void countRedraw();

private:
    CvlUniqueId m_frame = 0;
    QTimer m_idle;
    int m_redraws = 0;
    struct Subscription;
    std::shared_ptr<Subscription> m_subscription;
};

} // namespace corvala::plot
