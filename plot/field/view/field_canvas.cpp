// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/field_canvas.h"

#include "host/document/document.h"
#include "plot/common/document_events.h"
#include "plot/field/view/offscreen.h"
#include "plot/field/view/opengl_check.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <QVTKOpenGLNativeWidget.h>

#include <vtkCallbackCommand.h>
#include <vtkGenericOpenGLRenderWindow.h>
#include <vtkInteractorStyleTrackballCamera.h>
#include <vtkRenderWindowInteractor.h>

#include <cmath>

namespace corvala::plot {

static constexpr int kSamples = 8;
static constexpr int kRestMilliseconds = 200; ///< without a movement, until the hand rests
static constexpr double kMovingSeconds = 0.12; ///< for a picture while the view is moved
/// Software renderers leave holes in lines when they smooth by samples; there the picture at rest
/// is drawn with twice the pixels each way, and made smaller.
static constexpr int kSoftwareSamples = 2;
static constexpr double kWheelStep = 1.15; ///< magnification of one notch

/// Lets its interactor draw while Qt paints it, and at no other time.
class FieldCanvas::Picture : public QVTKOpenGLNativeWidget
{
public:
    using QVTKOpenGLNativeWidget::QVTKOpenGLNativeWidget;

protected:
    void paintGL() override
    {
        interactor()->EnableRenderOn();
        QVTKOpenGLNativeWidget::paintGL();
        interactor()->EnableRenderOff();
    }
};

/// Axes and legends over the picture; the mouse goes through.
class FieldCanvas::Overlay : public QWidget
{
public:
    Overlay(FieldView& view, QWidget* parent)
        : QWidget(parent)
        , m_view(view)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        m_view.paintDecorations(painter);
    }

private:
    FieldView& m_view;
};

FieldCanvas::FieldCanvas(QWidget* parent)
    : SceneCanvas(parent)
    , m_problem(openGlProblem())
    , m_cache(std::make_shared<SurfaceCache>())
    , m_view(m_cache)
{
    m_hand.setSingleShot(true);
    m_hand.setInterval(kRestMilliseconds);
    connect(&m_hand, &QTimer::timeout, this, &Canvas::requestRedraw);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    if (m_problem.isEmpty()) {
        makeWidgets();
    } else {
        auto* label = new QLabel(m_problem, this);
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
}

FieldCanvas::~FieldCanvas()
{
    m_view.attach(nullptr);
}

void FieldCanvas::makeWidgets()
{
    m_widget = new Picture(this);
    QSurfaceFormat format = QVTKOpenGLNativeWidget::defaultFormat();
    format.setSamples(0);
    m_widget->setFormat(format);
    m_widget->setAccessibleName(tr("Field plot"));
    m_widget->installEventFilter(this);
    layout()->addWidget(m_widget);
    vtkNew<vtkGenericOpenGLRenderWindow> window;
    window->SetMultiSamples(isSoftwareOpenGl() ? 0 : kSamples);
    m_widget->setRenderWindow(window.Get());
    m_view.attach(window);
    // The canvas draws when it is idle, and not whenever the interactor wishes.
    vtkRenderWindowInteractor* const interactor = window->GetInteractor();
    interactor->EnableRenderOff();
    interactor->SetInteractorStyle(vtkNew<vtkInteractorStyleTrackballCamera>());
    vtkNew<vtkCallbackCommand> wish;
    wish->SetClientData(this);
    wish->SetCallback([](vtkObject*, unsigned long, void* canvas, void*) {
        static_cast<FieldCanvas*>(canvas)->requestRedraw();
    });
    interactor->AddObserver(vtkCommand::RenderEvent, wish);
    m_overlay = new Overlay(m_view, m_widget);
}

void FieldCanvas::resizeEvent(QResizeEvent* event)
{
    SceneCanvas::resizeEvent(event);
    if (m_widget) {
        layout()->activate();
        m_overlay->setGeometry(m_widget->rect());
        requestRedraw();
    }
}

void FieldCanvas::takePlotType()
{
    const host::Frame* const drawn = host::Document::instance().frame(frame());
    const bool flat = drawn && drawn->plotType() == PlotType_Field2D;
    m_view.setFlat(flat);
    m_view.setCamera(m_cameras.value({frame(), flat}));
}

void FieldCanvas::frameChanged(CvlUniqueId previous)
{
    m_cameras[{previous, m_view.isFlat()}] = m_view.camera();
    takePlotType();
    m_view.scene().setFrame(frame());
}

void FieldCanvas::documentChanged(const host::StateEvent& event)
{
    const bool isOurs = concerns(event, frame());
    if (isOurs && event.code == StateCode_DataSetAttached) {
        m_cameras.remove({frame(), true});
        m_cameras.remove({frame(), false});
        takePlotType();
    } else if (isOurs && namesPlotType(event)) {
        m_cameras[{frame(), m_view.isFlat()}] = m_view.camera();
        takePlotType();
    } else if (isOurs && event.code == StateCode_SolutionTimeChanged) {
        m_view.widen();
    }
    if (m_view.scene().apply(event)) {
        m_quickTime = m_restTime = 0.0;
        requestRedraw();
    }
}

/// Whether a full picture takes too long for a hand that moves the view.
bool FieldCanvas::isSlow() const
{
    constexpr double kSmoothing = 4.0; // times the work, at most
    return m_quickTime > 0.0 ? m_quickTime > kMovingSeconds
                             : m_restTime > kSmoothing * kMovingSeconds;
}

/// A full smooth picture when the hand rests, else a quick one.
void FieldCanvas::draw()
{
    FieldScene& scene = m_view.scene();
    const bool isQuick = m_hand.isActive() || scene.hasWork();
    const bool standsIn = m_hand.isActive() && isSlow();
    scene.setStandIn(standsIn);
    QElapsedTimer clock;
    clock.start();
    drawSamples(isQuick || !isSoftwareOpenGl() ? 1 : kSoftwareSamples);
    if (!standsIn)
        (isQuick ? m_quickTime : m_restTime) = static_cast<double>(clock.nsecsElapsed()) * 1e-9;
    m_overlay->update();
    countRedraw();
}

/// Draws each pixel of the screen as `samples` by `samples`, which the widget makes smaller when it
/// is painted.
void FieldCanvas::drawSamples(int samples)
{
    vtkRenderWindow* const window = m_widget->renderWindow();
    const QSize drawn(window->GetSize()[0], window->GetSize()[1]);
    m_view.setSize(size(), samples * devicePixelRatioF());
    window->SetSize(samples * drawn.width(), samples * drawn.height());
    m_view.prepare();
    window->Render();
    window->WaitForCompletion();
    // Between drawings, places are those of the screen: the mouse goes by them.
    window->SetSize(drawn.width(), drawn.height());
    m_view.setSize(size(), devicePixelRatioF());
}

QImage FieldCanvas::render(const QSize& size, QString* error)
{
    return drawFieldImage(frame(), m_view.camera(), m_cache, size, error);
}

void FieldCanvas::fitView()
{
    m_view.fit();
    requestRedraw();
}

bool FieldCanvas::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        // The interactor would take letters for commands; here they belong to the window.
        event->ignore();
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel: return handleMouse(event);
    default: return SceneCanvas::eventFilter(watched, event);
    }
}

bool FieldCanvas::handleMouse(QEvent* event)
{
    if (event->type() == QEvent::Wheel) {
        auto* const wheel = static_cast<QWheelEvent*>(event);
        if (m_view.isFlat()) {
            const double notches = wheel->angleDelta().y() / 120.0;
            m_view.magnify(std::pow(kWheelStep, notches), wheel->position());
            requestRedraw();
        }
        m_hand.start();
        m_view.setMoved();
        return m_view.isFlat();
    }
    auto* const mouse = static_cast<QMouseEvent*>(event);
    const QPointF position = mouse->localPos();
    if (event->type() == QEvent::MouseMove) {
        const QPointF moved = position - m_pressedAt;
        m_isDragging = m_isDragging
            || (mouse->buttons() && moved.manhattanLength() >= QApplication::startDragDistance());
        if (m_isDragging && mouse->buttons()) {
            m_view.setMoved();
            m_hand.start();
            if (m_view.isFlat()) {
                m_view.pan(moved);
                m_pressedAt = position;
                requestRedraw();
            }
        }
    } else if (event->type() == QEvent::MouseButtonRelease) {
        if (!m_isDragging && mouse->button() == Qt::LeftButton)
            click(position, m_isDoubleClick);
        m_isDoubleClick = m_isDragging = false;
    } else {
        m_pressedAt = position;
        m_isDragging = false;
        m_isDoubleClick = event->type() == QEvent::MouseButtonDblClick;
    }
    return m_view.isFlat();
}

void FieldCanvas::click(const QPointF& position, bool activate)
{
    Q_EMIT zonePicked(m_view.zoneAt(position), activate);
}

} // namespace corvala::plot
