// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/view/field_view.h"
#include "plot/scene_canvas.h"

#include <QHash>
#include <QPointF>

class QVTKOpenGLNativeWidget;

namespace corvala::plot {

/// Draws field plots of two and three dimensions with OpenGL. Without OpenGL it shows what to
/// install instead.
class FieldCanvas : public SceneCanvas
{
    Q_OBJECT

public:
    explicit FieldCanvas(QWidget* parent = nullptr);
    ~FieldCanvas() override;

    QImage render(const QSize& size, QString* error) override;
    QString problem() const override { return m_problem; }
    bool isBusy() const override { return SceneCanvas::isBusy() || m_hand.isActive(); }

    FieldScene& scene() override { return m_view.scene(); }
    FieldView& view() { return m_view; }

public Q_SLOTS:
    void fitView() override;

protected:
    void frameChanged(CvlUniqueId previous) override;
    void documentChanged(const host::StateEvent& event) override;
    void draw() override;
    bool canDraw() const override { return m_widget && isVisible(); }
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Overlay;
    class Picture;

    void makeWidgets();
    void takePlotType();
    void drawSamples(int samples);
    bool isSlow() const;
    bool handleMouse(QEvent* event);
    void click(const QPointF& position, bool activate);

    QString m_problem;
    std::shared_ptr<SurfaceCache> m_cache;
    FieldView m_view;
    QVTKOpenGLNativeWidget* m_widget = nullptr; // not owned; null without OpenGL
    QWidget* m_overlay = nullptr; // not owned
    QHash<QPair<CvlUniqueId, bool>, CameraState> m_cameras; ///< by frame and flatness
    QTimer m_hand; ///< runs while the view is being moved, and until the hand rests
    double m_quickTime = 0.0; ///< of a full picture without smoothing, in seconds; 0 when unknown
    double m_restTime = 0.0; ///< of one with it
    QPointF m_pressedAt;
    bool m_isDoubleClick = false;
    bool m_isDragging = false;
};

} // namespace corvala::plot
