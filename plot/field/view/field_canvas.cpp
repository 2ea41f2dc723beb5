// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/field_canvas.h"

#include "host/document/document.h"
#include "plot/field/view/offscreen.h"
#include "plot/field/view/opengl_check.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <QVTKOpenGLNativeWidget.h>
#include <QWheelEvent>

#include <vtkCallbackCommand.h>
#include <vtkGenericOpenGLRenderWindow.h>
#include <vtkInteractorStyleTrackballCamera.h>
#include <vtkRenderWindowInteractor.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvala::plot {

static constexpr int kSamples = 8;
static constexpr int kRestMilliseconds = 200; ///< without a movement, until the hand rests
static constexpr std::int64_t kFirstBudget = kLargestPiece;
static constexpr double kPartSeconds = 0.1; ///< for a part of a large picture
static constexpr double kMovingSeconds = 0.1; ///< for a picture while the view is moved
/// Software renderers leave holes in lines when they smooth by samples; there the picture at rest
/// is drawn with twice the pixels each way, and made smaller.
static constexpr int kSoftwareSamples = 2;
/// Cost of a picture that is smoothed so, at most: more takes many seconds.
static constexpr std::int64_t kMostSmoothed = 5'000'000;
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
    Overlay(FieldView& view, const host::NumberSet& outlined, QWidget* parent)
        : QWidget(parent)
        , m_view(view)
        , m_outlined(outlined)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_NoSystemBackground);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        m_view.paintDecorations(painter);
        m_view.paintOutlines(painter, m_outlined);
    }

private:
    FieldView& m_view;
    const host::NumberSet& m_outlined;
};

FieldCanvas::FieldCanvas(QWidget* parent)
    : Canvas(parent)
    , m_problem(openGlProblem())
    , m_cache(std::make_shared<SurfaceCache>())
    , m_view(m_cache)
    , m_budget(kFirstBudget)
{
    m_hand.setSingleShot(true);
    m_hand.setInterval(kRestMilliseconds);
    connect(&m_hand, &QTimer::timeout, this, &Canvas::redrawWanted);
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
    watch(*m_widget);
    layout()->addWidget(m_widget);
    vtkNew<vtkGenericOpenGLRenderWindow> window;
    m_widget->setRenderWindow(window.Get());
    m_view.attach(window);
    // The canvas draws when it is idle, and not whenever the interactor wishes.
    vtkRenderWindowInteractor* const interactor = window->GetInteractor();
    interactor->EnableRenderOff();
    m_style = vtkSmartPointer<vtkInteractorStyleTrackballCamera>::New();
    interactor->SetInteractorStyle(m_style);
    const auto observe = [this](vtkObject& subject, unsigned long event, auto callback) {
        vtkNew<vtkCallbackCommand> command;
        command->SetClientData(this);
        command->SetCallback(callback);
        subject.AddObserver(event, command);
    };
    observe(*interactor, vtkCommand::RenderEvent,
            [](vtkObject*, unsigned long, void* canvas, void*) {
                static_cast<FieldCanvas*>(canvas)->pictureWished();
            });
    observe(*m_style, vtkCommand::EndInteractionEvent,
            [](vtkObject*, unsigned long, void* canvas, void*) {
                static_cast<FieldCanvas*>(canvas)->m_isLetGo = true;
            });
    m_overlay = new Overlay(m_view, m_outlined, m_widget);
}

/// The interactor wishes a picture while it turns the view, and once more when it is let go:
/// another follows then anyway.
void FieldCanvas::pictureWished()
{
    if (!std::exchange(m_isLetGo, false))
        Q_EMIT redrawWanted();
}

void FieldCanvas::resizeEvent(QResizeEvent* event)
{
    Canvas::resizeEvent(event);
    if (m_widget) {
        layout()->activate();
        m_overlay->setGeometry(m_widget->rect());
    }
}

void FieldCanvas::setView(const std::any& view)
{
    const host::Frame* const drawn = host::Document::instance().frame(scene().frameId());
    m_view.setFlat(drawn && drawn->plotType() == PlotType_Field2D);
    const auto* const camera = std::any_cast<CameraState>(&view);
    m_view.setCamera(camera ? *camera : CameraState());
}

void FieldCanvas::zoomToBox(const QRectF& box)
{
    m_view.zoomToBox(box);
}

bool FieldCanvas::zoomToMaps(const host::NumberSet& maps)
{
    const vtkBoundingBox box = scene().boundsOf(maps);
    if (box.IsValid())
        m_view.zoomTo(box);
    return box.IsValid();
}

void FieldCanvas::lookFrom(ViewPreset preset)
{
    switch (preset) {
    case ViewPreset::X: m_view.lookFrom({1, 0, 0}, {0, 0, 1}); break;
    case ViewPreset::Y: m_view.lookFrom({0, -1, 0}, {0, 0, 1}); break;
    case ViewPreset::Z: m_view.lookFrom({0, 0, 1}, {0, 1, 0}); break;
    case ViewPreset::Corner: m_view.lookFrom(CameraState().position, CameraState().viewUp); break;
    }
}

void FieldCanvas::setParallel(bool isParallel)
{
    m_view.setParallel(isParallel);
}

bool FieldCanvas::seesSomething() const
{
    return !m_view.scene().bounds().IsValid() || (m_seesPixels && m_view.seesSomething());
}

/// Whether anything is on the paper of the plot. What is fitted is seen.
bool FieldCanvas::seesPixels(int samples)
{
    if (m_isQuick || m_view.isFitted() || m_view.hasGrid())
        return true;
    const QRect plot = m_view.pixelsOfPlot(samples * devicePixelRatioF());
    vtkNew<vtkUnsignedCharArray> pixels;
    m_widget->renderWindow()->GetPixelData(plot.left(), plot.top(), plot.right(), plot.bottom(), 0,
                                           pixels);
    const unsigned char* const first = pixels->GetPointer(0);
    return std::any_of(first, first + pixels->GetNumberOfValues(),
                       [](unsigned char part) { return part != 255; });
}

void FieldCanvas::setOutlined(const host::NumberSet& maps)
{
    m_outlined = maps;
    if (m_overlay)
        m_overlay->update();
}

void FieldCanvas::sceneChanged(const host::StateEvent& event)
{
    m_quickTime = m_restTime = 0.0;
    m_blendedTime = -1.0;
    m_budget = std::min(m_budget, kFirstBudget); // what is new takes longer
    if (event.code == StateCode_SolutionTimeChanged)
        m_view.widen();
    for (const host::StyleChange& change : event.styleChanges)
        if (isAxisRange(style::Key {change.attribute}))
            m_view.setFitted();
}

/// Whether a full picture takes too long for a hand that moves the view.
bool FieldCanvas::isSlow() const
{
    constexpr double kSmoothing = 4.0; // times the work, at most
    return m_quickTime > 0.0 ? m_quickTime > kMovingSeconds
                             : m_restTime > kSmoothing * kMovingSeconds;
}

/// What keeps the hand waiting is left out: first the order in depth of what is translucent, then
/// all but some points.
void FieldCanvas::reduce()
{
    FieldScene& scene = m_view.scene();
    const bool isReduced = m_hand.isActive() && isSlow();
    const bool isBlended = isReduced && !scene.isStandInShown() && scene.translucentCost() > 0
        && m_blendedTime <= kMovingSeconds;
    m_view.setSorted(!isBlended);
    scene.setStandIn(isReduced && !isBlended);
}

/// Whether the picture at rest is drawn larger; counted and not timed, so that it is the same on
/// every machine.
bool FieldCanvas::isSmooth() const
{
    return !m_isQuick && m_view.scene().expectedCost() <= kMostSmoothed;
}

static double secondsOf(const QElapsedTimer& clock)
{
    return static_cast<double>(clock.nsecsElapsed()) * 1e-9;
}

/// A full smooth picture when the hand rests, else a quick one.
void FieldCanvas::draw()
{
    FieldScene& scene = m_view.scene();
    m_isQuick = m_hand.isActive() || scene.hasWork();
    reduce();
    // Translucent faces are drawn by depth, which cannot be with samples.
    const bool drawsLarger = isSoftwareOpenGl() || scene.isTranslucent();
    m_samples = drawsLarger && isSmooth() ? kSoftwareSamples : 1;
    m_widget->renderWindow()->SetMultiSamples(drawsLarger ? 0 : kSamples);
    m_pictureTime = 0.0;
    m_isUnfinished = m_isPrepared = false;
    m_view.setCut(false);
    m_view.parts().begin(m_budget);
    drawPart();
}

void FieldCanvas::drawMore()
{
    if (!std::exchange(m_isPrepared, false))
        m_view.parts().goOn(m_budget);
    drawPart();
}

void FieldCanvas::stopDrawing()
{
    m_isUnfinished = m_isPrepared = false;
    m_view.setCut(true);
    m_view.parts().begin(m_budget);
    m_overlay->update();
}

std::pair<CvlInt64, CvlInt64> FieldCanvas::drawingProgress() const
{
    return {m_view.parts().drawn(), m_view.scene().drawingCost()};
}

/// Draws the next part of the picture, each pixel of the screen as one or several, which the widget
/// makes smaller when it is painted. Preparations that take long are a part of their own.
void FieldCanvas::drawPart()
{
    QElapsedTimer clock;
    clock.start();
    vtkRenderWindow* const window = m_widget->renderWindow();
    const QSize drawn(window->GetSize()[0], window->GetSize()[1]);
    m_view.setSize(size(), m_samples * devicePixelRatioF());
    window->SetSize(m_samples * drawn.width(), m_samples * drawn.height());
    if (!m_isUnfinished) {
        m_view.prepare();
        m_isPrepared = secondsOf(clock) > kPartSeconds;
    }
    if (!m_isPrepared) {
        window->Render();
        window->WaitForCompletion();
        if (!m_view.parts().hasMore())
            m_seesPixels = seesPixels(m_samples);
    }
    // Between drawings, places are those of the screen: the mouse goes by them.
    window->SetSize(drawn.width(), drawn.height());
    m_view.setSize(size(), devicePixelRatioF());
    m_isUnfinished = m_isPrepared || m_view.parts().hasMore();
    learn(secondsOf(clock));
    if (!m_isUnfinished)
        m_view.parts().begin(m_budget); // when the widget wishes
    m_overlay->update();
}

/// From the time that a part took: how much to draw at a time, and how long a picture takes.
void FieldCanvas::learn(double seconds)
{
    m_pictureTime += seconds;
    if (m_isPrepared)
        return;
    if (seconds > 1.5 * kPartSeconds)
        m_budget = std::max<std::int64_t>(m_budget / 2, kLargestPiece);
    else if (m_isUnfinished && seconds < kPartSeconds / 2)
        m_budget *= 2;
    if (!m_view.isSorted() && m_blendedTime < 0.0) {
        m_blendedTime = 0.0; // the first one took the time to make its shaders as well
        return;
    }
    double& known = !m_isQuick ? m_restTime : m_view.isSorted() ? m_quickTime : m_blendedTime;
    if (!m_view.scene().isStandInShown())
        known = m_isUnfinished ? std::max(known, m_pictureTime) : m_pictureTime;
}

QString FieldCanvas::paint(QPaintDevice& device, Paper paper, const WorkWatch& watch)
{
    return paintField(scene().frameId(), m_view.camera(), m_cache, device, paper, nullptr, watch);
}

bool FieldCanvas::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
        // The interactor would take letters for commands; here they belong to the window.
        event->ignore();
        return true;
    }
    return Canvas::eventFilter(watched, event);
}

void FieldCanvas::takeHold()
{
    m_view.setMoved();
    m_hand.start();
}

bool FieldCanvas::takesHold(const QPointF& place)
{
    m_heldLegend = m_view.legendAt(place);
    return m_heldLegend != 0;
}

void FieldCanvas::moveHeld(const QPointF& by)
{
    m_view.moveLegend(m_heldLegend, by);
    m_overlay->update();
}

/// The place of the legend becomes one of the style, in one undo step.
void FieldCanvas::letGo()
{
    constexpr const auto& kGroup = style::contourGroups;
    const auto corner = m_view.legendCorner(m_heldLegend);
    if (!corner)
        return;
    host::Document& document = host::Document::instance();
    const auto write = [&](style::Key key, const host::StyleInput& value) {
        host::SetStyle operation {host::pathOf(key), value, std::nullopt};
        operation.index = m_heldLegend;
        document.execute(operation);
    };
    document.undo().begin(UndoKind_StyleGroup);
    write(kGroup.automaticLegend, false);
    write(kGroup.legendX, corner->x());
    write(kGroup.legendY, corner->y());
    document.undo().end(host::UndoHistory::Closing::OneStep);
}

/// In space the interactor turns the view.
bool FieldCanvas::dragged(const QPointF& by)
{
    takeHold();
    if (m_view.isFlat()) {
        m_view.pan(by);
        Q_EMIT redrawWanted();
    }
    return m_view.isFlat();
}

bool FieldCanvas::wheelTurned(const QWheelEvent& wheel)
{
    takeHold();
    if (m_view.isFlat()) {
        const double notches = wheel.angleDelta().y() / 120.0;
        m_view.magnify(std::pow(kWheelStep, notches), wheel.position());
        Q_EMIT redrawWanted();
    }
    return m_view.isFlat();
}

} // namespace corvala::plot
