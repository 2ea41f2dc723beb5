// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/canvas.h"
#include "plot/line/line_plot.h"

#include <QElapsedTimer>
#include <QHash>
#include <QPointF>

#include <utility>

class QLabel;

namespace corvala::plot {

/// Draws XY and polar line plots.
class LineCanvas : public Canvas
{
    Q_OBJECT

public:
    explicit LineCanvas(QWidget* parent = nullptr);

    QImage render(const QSize& size, QString* error) override;

    /// The plot, for tests and diagnosis.
    QCustomPlot& plot() { return *m_widget; }
    const LinePlot& linePlot() const { return m_plot; }

public Q_SLOTS:
    void fitView() override;
    void cancelWork() override;
    void resumeWork() override;

protected:
    void frameChanged(CvlUniqueId previous) override;
    void documentChanged(const host::StateEvent& event) override;
    bool redraw() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void draw();
    void endReport(bool cancelled);
    void keepView(CvlUniqueId frame);
    void restoreView();

    QCustomPlot* m_widget; // not owned
    LinePlot m_plot;
    QLabel* m_notice; // not owned
    QHash<QPair<CvlUniqueId, int>, ChartRange> m_views; ///< by frame and plot type, where moved in
    QPointF m_pressedAt;
    bool m_isDoubleClick = false;
    QElapsedTimer m_work; ///< since slices began
    bool m_isWorking = false;
    bool m_isReporting = false;
    qint64 m_nextDrawing = 0; ///< milliseconds of work when the picture is next refreshed
};

/// Draws a line frame as an image of `size` pixels, showing `range` of its axes, or all of it when
/// null. Null, with the reason in `error` (may be null), for an empty size or one too large.
QImage drawLineImage(CvlUniqueId frame, const ChartRange* range, const QSize& size, QString* error);

} // namespace corvala::plot
