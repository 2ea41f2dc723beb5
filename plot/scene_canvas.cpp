// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/scene_canvas.h"

#include <utility>

namespace corvala::plot {

static constexpr int kSliceMilliseconds = 30;
static constexpr int kQuietMilliseconds = 250; ///< before work is reported as progress
static constexpr int kFirstDrawing = 100; ///< milliseconds of work before an unfinished picture

bool SceneCanvas::redraw()
{
    if (!canDraw())
        return false;
    if (!std::exchange(m_isWorking, true)) {
        m_work.start();
        m_nextDrawing = kFirstDrawing;
    }
    if (!scene().advance(kSliceMilliseconds)) {
        draw();
        if (!scene().hasWork()) {
            endWork(false);
            return false;
        }
    } else if (m_work.elapsed() >= m_nextDrawing) {
        draw();
        m_nextDrawing = 2 * m_work.elapsed();
    }
    if (m_work.elapsed() >= kQuietMilliseconds) {
        const auto [done, total] = scene().progress();
        m_isReporting = true;
        Q_EMIT workProgressed(done, total);
    }
    return true;
}

void SceneCanvas::endWork(bool cancelled)
{
    m_isWorking = false;
    if (std::exchange(m_isReporting, false))
        Q_EMIT workEnded(cancelled);
}

void SceneCanvas::cancelWork()
{
    if (scene().hasWork()) {
        scene().cancel();
        endWork(true);
        requestRedraw();
    }
}

void SceneCanvas::resumeWork()
{
    scene().resume();
    requestRedraw();
}

void SceneCanvas::showEvent(QShowEvent* event)
{
    Canvas::showEvent(event);
    requestRedraw();
}

void SceneCanvas::hideEvent(QHideEvent* event)
{
    Canvas::hideEvent(event);
    endWork(true);
}

} // namespace corvala::plot
