// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/canvas.h"

class QLabel;
class QStackedLayout;

namespace corvala::plot {

/// Draws a frame of any plot type with the canvas for it. Canvases are made when they are first
/// needed.
class FrameView : public Canvas
{
    Q_OBJECT

public:
    explicit FrameView(QWidget* parent = nullptr);

    /// From now on the frame drawn is always the active one.
    void followActiveFrame();

    /// The canvas that draws at present; null for a frame without data.
    Canvas* canvas() const { return m_current; }

    QImage render(const QSize& size, QString* error) override;
    QString problem() const override;
    bool isBusy() const override;

public Q_SLOTS:
    void fitView() override;
    void cancelWork() override;
    void resumeWork() override;

protected:
    void frameChanged(CvlUniqueId previous) override;
    void documentChanged(const host::StateEvent& event) override;
    bool redraw() override;

private:
    enum Kind { Field, Line, KindCount };

    void chooseCanvas();
    Canvas* canvasOf(Kind kind);

    bool m_followsActiveFrame = false;
    QStackedLayout* m_layout = nullptr; // not owned
    QLabel* m_hint = nullptr; // not owned
    Canvas* m_canvases[KindCount] = {}; // not owned
    Canvas* m_current = nullptr; // not owned
};

} // namespace corvala::plot
