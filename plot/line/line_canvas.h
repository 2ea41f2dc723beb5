// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/canvas.h"
#include "plot/line/line_plot.h"

#include <QTimer>

class QLabel;

namespace corvala::plot {

/// Draws XY and polar line plots.
class LineCanvas : public Canvas
{
    Q_OBJECT

public:
    explicit LineCanvas(QWidget* parent = nullptr);

    LinePlot& scene() override { return m_plot; }
    void draw() override;
    QString paint(QPaintDevice& device, Paper paper, const WorkWatch& watch) override;
    std::any view() const override;
    void setView(const std::any& view) override;
    bool canZoomToBox() const override { return !m_plot.isPolar(); }
    void zoomToBox(const QRectF& box) override;
    bool zoomToMaps(const host::NumberSet& maps) override;
    QString probe(const QPointF& place) override;
    void setOutlined(const host::NumberSet& maps) override;
    bool seesSomething() const override { return m_plot.chart().seesSomething(); }
    std::optional<double> proposal(style::Key value, int index) const override;
    void sceneChanged(const host::StateEvent& event) override;

    /// The plot, for tests and diagnosis.
    QCustomPlot& plot() { return *m_widget; }

protected:
    CvlInt64 numberAt(const QPointF& place) override;
    bool takesHold(const QPointF& place) override;
    void moveHeld(const QPointF& by) override;
    void letGo() override;
    bool dragged(const QPointF& by) override;
    bool wheelTurned(const QWheelEvent& wheel) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool show(const std::optional<ChartRange>& range);

    QCustomPlot* m_widget; // not owned
    LinePlot m_plot;
    QLabel* m_notice; // not owned
    QTimer m_rest; ///< runs until the hand that moves the plot rests
};

/// Draws a line frame, showing `range` of its axes, or all of it when null; as PaintPicture. What
/// another plot of the frame knows (may be null) is not made again. `notes` (may be null) gets what
/// there is to wonder at.
QString paintLines(CvlUniqueId frame, const ChartRange* range, const LinePlot* known,
                   QPaintDevice& device, Paper paper, std::vector<SceneNote>* notes = nullptr,
                   const WorkWatch& watch = {});

} // namespace corvala::plot
