// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/frame_view.h"

#include "host/document/document.h"
#include "plot/field/view/field_canvas.h"
#include "plot/line/line_canvas.h"
#include "plot/render.h"

#include <QLabel>
#include <QStackedLayout>

namespace corvala::plot {

FrameView::FrameView(QWidget* parent)
    : Canvas(parent)
    , m_layout(new QStackedLayout(this))
    , m_hint(new QLabel(this))
{
    m_hint->setAlignment(Qt::AlignCenter);
    m_layout->addWidget(m_hint);
}

void FrameView::followActiveFrame()
{
    m_followsActiveFrame = true;
    setFrame(host::Document::instance().activeFrameId());
    chooseCanvas();
}

Canvas* FrameView::canvasOf(Kind kind)
{
    Canvas*& canvas = m_canvases[kind];
    if (!canvas) {
        if (kind == Field)
            canvas = new FieldCanvas(this);
        else
            canvas = new LineCanvas(this);
        m_layout->addWidget(canvas);
        connect(canvas, &Canvas::zonePicked, this, &Canvas::zonePicked);
        connect(canvas, &Canvas::lineMapPicked, this, &Canvas::lineMapPicked);
        connect(canvas, &Canvas::workProgressed, this, &Canvas::workProgressed);
        connect(canvas, &Canvas::workEnded, this, &Canvas::workEnded);
        connect(canvas, &Canvas::redrawn, this, [this] { countRedraw(); });
    }
    return canvas;
}

void FrameView::chooseCanvas()
{
    const host::Frame* const drawn = host::Document::instance().frame(frame());
    Canvas* wanted = nullptr;
    if (drawn && drawn->hasData() && drawn->isFieldPlot())
        wanted = canvasOf(Field);
    else if (drawn && drawn->hasData() && drawn->isLinePlot())
        wanted = canvasOf(Line);
    m_current = wanted;
    if (wanted) {
        wanted->setFrame(frame());
        m_layout->setCurrentWidget(wanted);
    } else {
        const bool hasData = drawn && drawn->hasData();
        m_hint->setText(
            hasData ? tr("Nothing is drawn for this plot type")
                    : tr("No data: open a file, a sample or demonstration data in the File menu"));
        m_layout->setCurrentWidget(m_hint);
    }
}

void FrameView::frameChanged(CvlUniqueId)
{
    chooseCanvas();
}

void FrameView::documentChanged(const host::StateEvent&)
{
    const CvlUniqueId wanted =
        m_followsActiveFrame ? host::Document::instance().activeFrameId() : frame();
    if (wanted != frame())
        setFrame(wanted);
    else
        chooseCanvas();
}

bool FrameView::redraw()
{
    if (m_current)
        m_current->requestRedraw();
    return false;
}

QImage FrameView::render(const QSize& size, QString* error)
{
    return m_current ? m_current->render(size, error) : renderToImage(frame(), size, error);
}

QString FrameView::problem() const
{
    return m_current ? m_current->problem() : QString();
}

bool FrameView::isBusy() const
{
    return Canvas::isBusy() || (m_current && m_current->isBusy());
}

void FrameView::fitView()
{
    if (m_current)
        m_current->fitView();
}

void FrameView::cancelWork()
{
    if (m_current)
        m_current->cancelWork();
}

void FrameView::resumeWork()
{
    if (m_current)
        m_current->resumeWork();
}

} // namespace corvala::plot
