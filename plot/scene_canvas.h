// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/canvas.h"
#include "plot/common/scene.h"

#include <QElapsedTimer>

namespace corvala::plot {

/// A canvas that shows a scene: works on it in slices, with progress, and draws it now and then
/// until it is complete.
class SceneCanvas : public Canvas
{
    Q_OBJECT

public:
    using Canvas::Canvas;

    virtual Scene& scene() = 0;

public Q_SLOTS:
    void cancelWork() override;
    void resumeWork() override;

protected:
    /// Draws the scene as it is; may find more work.
    virtual void draw() = 0;
    virtual bool canDraw() const { return isVisible(); }

    bool redraw() final;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void endWork(bool cancelled);

    QElapsedTimer m_work; ///< since slices began
    qint64 m_nextDrawing = 0; ///< milliseconds of work when the picture is next refreshed
    bool m_isWorking = false;
    bool m_isReporting = false;
};

} // namespace corvala::plot
