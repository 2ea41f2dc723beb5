// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/canvas.h"
#include "plot/field/view/field_view.h"

#include <QTimer>

#include <vtkInteractorStyle.h>
#include <vtkSmartPointer.h>

class QVTKOpenGLNativeWidget;

namespace corvala::plot {

/// Draws field plots of two and three dimensions with OpenGL. Without OpenGL it shows what to
/// install instead.
class FieldCanvas : public Canvas
{
    Q_OBJECT

public:
    explicit FieldCanvas(QWidget* parent = nullptr);
    ~FieldCanvas() override;

    FieldScene& scene() override { return m_view.scene(); }
    void draw() override;
    bool isUnfinished() const override { return m_isUnfinished; }
    void drawMore() override;
    void stopDrawing() override;
    std::pair<CvlInt64, CvlInt64> drawingProgress() const override;
    QString paint(QPaintDevice& device, Paper paper, const WorkWatch& watch) override;
    QString problem() const override { return m_problem; }
    bool isBeingMoved() const override { return m_hand.isActive(); }
    void sceneChanged(const host::StateEvent& event) override;
    std::optional<double> proposal(style::Key value, int index) const override
    {
        return m_view.proposal(value, index);
    }
    std::any view() const override { return m_view.camera(); }
    void setView(const std::any& view) override;
    void zoomToBox(const QRectF& box) override;
    bool zoomToMaps(const host::NumberSet& maps) override;
    bool canTurn() const override { return m_widget && !m_view.isFlat(); }
    bool canZoomToBox() const override { return m_widget != nullptr; }
    void lookFrom(ViewPreset preset) override;
    bool isParallel() const override { return m_view.isParallel(); }
    void setParallel(bool isParallel) override;
    bool seesSomething() const override;
    QString probe(const QPointF& place) override { return m_view.probe(place); }
    bool isProbing() const override { return m_view.isProbing(); }
    void setOutlined(const host::NumberSet& maps) override;

    /// From where the plot is seen, for tests and diagnosis.
    FieldView& fieldView() { return m_view; }
    /// How much of a picture to draw at a time, as shapeCost, until the time that it takes says
    /// better.
    void setPartSize(std::int64_t corners) { m_budget = corners; }

protected:
    CvlInt64 numberAt(const QPointF& place) override { return m_view.zoneAt(place); }
    std::optional<std::array<double, 3>> placeAt(const QPointF& place) override
    {
        return m_view.placeAt(place);
    }
    bool takesHold(const QPointF& place) override;
    void moveHeld(const QPointF& by) override;
    void letGo() override;
    bool dragged(const QPointF& by) override;
    bool wheelTurned(const QWheelEvent& wheel) override;
    bool keepsMouse() const override { return m_view.isFlat(); }
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Overlay;
    class Picture;

    void makeWidgets();
    void pictureWished();
    void drawPart();
    void learn(double seconds);
    bool isSlow() const;
    void reduce();
    bool isSmooth() const;
    bool seesPixels(int samples);
    void takeHold();

    QString m_problem;
    std::shared_ptr<SurfaceCache> m_cache;
    FieldView m_view;
    QVTKOpenGLNativeWidget* m_widget = nullptr; // not owned; null without OpenGL
    QWidget* m_overlay = nullptr; // not owned
    host::NumberSet m_outlined; ///< maps
    vtkSmartPointer<vtkInteractorStyle> m_style; ///< turns the view in space
    bool m_isLetGo = false; ///< just now
    int m_heldLegend = 0; ///< contour group; 0 while none is moved
    QTimer m_hand; ///< runs while the view is being moved, and until the hand rests
    bool m_isUnfinished = false; ///< more of the picture follows
    bool m_isPrepared = false; ///< nothing of it is drawn yet
    bool m_isQuick = false; ///< it is without smoothing
    int m_samples = 1; ///< each way, of a pixel of it
    bool m_seesPixels = true; ///< something is drawn in the last complete one
    double m_pictureTime = 0.0; ///< so far, in seconds
    std::int64_t m_budget; ///< cost of what is drawn at a time
    double m_quickTime = 0.0; ///< of a full picture without smoothing, in seconds; 0 when unknown
    double m_blendedTime = -1.0; ///< of one without order in depth; negative before the first
    double m_restTime = 0.0; ///< of a smooth one
};

} // namespace corvala::plot
