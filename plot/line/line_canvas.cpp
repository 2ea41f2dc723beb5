// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/line_canvas.h"

#include "plot/common/document_events.h"
#include "plot/common/picture_size.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace corvala::plot {

static constexpr double kPickPixels = 8.0;

LineCanvas::LineCanvas(QWidget* parent)
    : SceneCanvas(parent)
    , m_widget(new QCustomPlot(this))
    , m_plot(*m_widget)
    , m_notice(new QLabel(m_widget))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_widget);
    m_widget->setAccessibleName(tr("Line plot"));
    m_widget->installEventFilter(this);
    m_notice->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_notice->setBackgroundRole(QPalette::Base);
    m_notice->setAutoFillBackground(true);
    m_notice->move(8, 4);
    // Moved by the mouse, the plot draws itself as far as it can at once.
    connect(m_widget, &QCustomPlot::afterReplot, this, [this] {
        if (m_plot.hasWork())
            requestRedraw();
    });
}

void LineCanvas::keepView(CvlUniqueId frame)
{
    const QPair<CvlUniqueId, int> key {frame, m_plot.plotType()};
    if (m_plot.isFitted())
        m_views.remove(key);
    else
        m_views[key] = m_plot.chart().range();
}

void LineCanvas::restoreView()
{
    const auto view = m_views.constFind({frame(), m_plot.plotType()});
    if (view != m_views.constEnd()) {
        m_plot.setMoved();
        m_plot.chart().setRange(*view);
    }
}

void LineCanvas::frameChanged(CvlUniqueId previous)
{
    keepView(previous);
    m_plot.setFrame(frame());
    restoreView();
}

void LineCanvas::documentChanged(const host::StateEvent& event)
{
    const bool changesType = concerns(event, frame()) && namesPlotType(event);
    if (changesType)
        keepView(frame());
    if (concerns(event, frame()) && event.code == StateCode_DataSetAttached) {
        for (const int plotType : {PlotType_LineXY, PlotType_LinePolar})
            m_views.remove({frame(), plotType});
    }
    if (m_plot.apply(event))
        requestRedraw();
    if (changesType)
        restoreView();
}

void LineCanvas::draw()
{
    m_plot.prepare();
    m_widget->replot(QCustomPlot::rpImmediateRefresh);
    m_notice->setText(m_plot.notice());
    m_notice->adjustSize();
    countRedraw();
}

void LineCanvas::resizeEvent(QResizeEvent* event)
{
    SceneCanvas::resizeEvent(event);
    m_plot.setFrameHeight(height());
    requestRedraw();
}

void LineCanvas::fitView()
{
    m_plot.fit();
    requestRedraw();
}

bool LineCanvas::eventFilter(QObject* watched, QEvent* event)
{
    auto* const mouse = static_cast<QMouseEvent*>(event);
    const auto hasMoved = [this](const QPointF& to) {
        return (to - m_pressedAt).manhattanLength() >= QApplication::startDragDistance();
    };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_pressedAt = mouse->localPos();
        m_isDoubleClick = event->type() == QEvent::MouseButtonDblClick;
        break;
    case QEvent::MouseMove:
        if (mouse->buttons() && hasMoved(mouse->localPos()))
            m_plot.setMoved();
        break;
    case QEvent::MouseButtonRelease:
        if (mouse->button() == Qt::LeftButton && !hasMoved(mouse->localPos())) {
            Q_EMIT lineMapPicked(m_plot.chart().lineAt(mouse->localPos(), kPickPixels),
                                 m_isDoubleClick);
        }
        break;
    case QEvent::Wheel: m_plot.setMoved(); break;
    default: break;
    }
    return SceneCanvas::eventFilter(watched, event);
}

QImage LineCanvas::render(const QSize& size, QString* error)
{
    const ChartRange range = m_plot.chart().range();
    return drawLineImage(frame(), m_plot.isFitted() ? nullptr : &range, size, error);
}

QImage drawLineImage(CvlUniqueId frame, const ChartRange* range, const QSize& size, QString* error)
{
    const QString problem = sizeProblem(size);
    if (error)
        *error = problem;
    if (!problem.isEmpty())
        return {};
    QCustomPlot widget;
    LinePlot plot(widget);
    plot.setPatience(-1);
    plot.setFrameHeight(size.height());
    plot.setFrame(frame);
    plot.advance(-1);
    plot.prepare();
    if (range)
        plot.chart().setRange(*range);
    return widget.toPixmap(size.width(), size.height()).toImage();
}

} // namespace corvala::plot
