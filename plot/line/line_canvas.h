// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/line_plot.h"
#include "plot/scene_canvas.h"

#include <QHash>
#include <QPointF>

#include <utility>

class QLabel;

namespace corvala::plot {

/// Draws XY and polar line plots.
class LineCanvas : public SceneCanvas
{
    Q_OBJECT

public:
    explicit LineCanvas(QWidget* parent = nullptr);

    QImage render(const QSize& size, QString* error) override;
    LinePlot& scene() override { return m_plot; }

    /// The plot, for tests and diagnosis.
    QCustomPlot& plot() { return *m_widget; }
    const LinePlot& linePlot() const { return m_plot; }

public Q_SLOTS:
    void fitView() override;

protected:
    void frameChanged(CvlUniqueId previous) override;
    void documentChanged(const host::StateEvent& event) override;
    void draw() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void keepView(CvlUniqueId frame);
    void restoreView();

    QCustomPlot* m_widget; // not owned
    LinePlot m_plot;
    QLabel* m_notice; // not owned
    QHash<QPair<CvlUniqueId, int>, ChartRange> m_views; ///< by frame and plot type, where moved in
    QPointF m_pressedAt;
    bool m_isDoubleClick = false;
};

/// Draws a line frame as an image of `size` pixels, showing `range` of its axes, or all of it when
/// null. Null, with the reason in `error` (may be null), for an empty size or one too large.
QImage drawLineImage(CvlUniqueId frame, const ChartRange* range, const QSize& size, QString* error);

} // namespace corvala::plot
