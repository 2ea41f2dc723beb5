// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/frame_view.h"

#include "host/document/document.h"
#include "plot/common/document_events.h"
#include "plot/common/picture.h"
#include "plot/field/view/field_canvas.h"
#include "plot/line/line_canvas.h"
#include "plot/render.h"
#include "plot/stored_view.h"

#include <QLabel>
#include <QScopedValueRollback>
#include <QStackedLayout>

#include <utility>

namespace corvala::plot {

static constexpr int kSliceMilliseconds = 30;
static constexpr int kQuietMilliseconds = 250; ///< before work is reported as progress
static constexpr int kProbeMilliseconds = 40; ///< between answers of what the mouse is over
static constexpr int kFirstDrawing = 100; ///< milliseconds of work before an unfinished picture

struct FrameView::Subscription
{
    boost::signals2::scoped_connection connection;
    boost::signals2::scoped_connection viewsWanted;
};

/// What the active frame shows: the plot type is PlotType_None while it has nothing to draw.
static QPair<CvlUniqueId, int> keyOfActiveFrame()
{
    const host::Frame* const frame = host::Document::instance().activeFrame();
    const bool isDrawn = frame && frame->hasData() && (frame->isFieldPlot() || frame->isLinePlot());
    return {frame ? frame->id() : 0, isDrawn ? frame->plotType() : PlotType_None};
}

FrameView::FrameView(QWidget* parent)
    : QWidget(parent)
    , m_subscription(std::make_unique<Subscription>())
    , m_layout(new QStackedLayout(this))
    , m_hint(new QLabel(this))
{
    qRegisterMetaType<CvlInt64>("CvlInt64");
    m_hint->setAlignment(Qt::AlignCenter);
    m_layout->addWidget(m_hint);
    m_idle.setSingleShot(true);
    m_idle.setInterval(0);
    connect(&m_idle, &QTimer::timeout, this, &FrameView::redraw);
    m_probe.setSingleShot(true);
    m_probe.setInterval(kProbeMilliseconds);
    connect(&m_probe, &QTimer::timeout, this, &FrameView::probe);
    connect(this, &FrameView::completed, this, [this] {
        if (!m_probe.isActive())
            m_probe.start();
    });
    m_subscription->connection = host::Document::instance().events().connect(
        [this](const host::StateEvent& event) { documentChanged(event); });
    m_subscription->viewsWanted =
        host::Document::instance().viewsWanted().connect([this] { keepViews(); });
    showFrame(keyOfActiveFrame());
}

FrameView::~FrameView() = default;

Canvas* FrameView::canvasOf(Kind kind)
{
    Canvas*& canvas = m_canvases[kind];
    if (!canvas) {
        if (kind == Field)
            canvas = new FieldCanvas(this);
        else
            canvas = new LineCanvas(this);
        m_layout->addWidget(canvas);
        connect(canvas, &Canvas::redrawWanted, this, &FrameView::requestRedraw);
        connect(canvas, &Canvas::placePicked, this, &FrameView::placePicked);
        connect(canvas, &Canvas::hovered, this, [this](const QPointF& place) {
            m_hover = place;
            if (!m_probe.isActive())
                m_probe.start();
        });
        connect(canvas, &Canvas::hoverEnded, this, [this] {
            m_hover.reset();
            m_probe.start();
        });
        connect(canvas, &Canvas::viewLeft, this, &FrameView::rememberView);
        connect(canvas, &Canvas::viewLeft, &m_probe, qOverload<>(&QTimer::start));
        connect(canvas, &Canvas::boxEnded, this, &FrameView::boxEnded);
        // What has the mouse hears of the click before anybody else does something.
        connect(canvas, &Canvas::menuWanted, this, &FrameView::menuWanted, Qt::QueuedConnection);
        canvas->setPicksPlaces(m_picksPlaces);
        canvas->setZoomsToBox(m_zoomsToBox);
        connect(canvas, &Canvas::picked, this,
                kind == Field ? &FrameView::zonePicked : &FrameView::lineMapPicked);
    }
    return canvas;
}

void FrameView::showHint()
{
    const host::Frame* const frame = host::Document::instance().activeFrame();
    const bool hasData = frame && frame->hasData();
    m_hint->setText(hasData ? tr("Nothing is drawn for this plot type") : tr("No data"));
    m_layout->setCurrentWidget(m_startPage && !hasData ? m_startPage : m_hint);
}

void FrameView::setStartPage(QWidget* page)
{
    m_startPage = page;
    m_layout->addWidget(page);
    if (!m_canvas)
        showHint();
}

void FrameView::keepViews()
{
    if (m_canvas)
        m_views[m_key] = m_canvas->view();
    for (auto view = m_views.constBegin(); view != m_views.constEnd(); ++view)
        host::Document::instance().keepView(view.key().first, view.key().second,
                                            viewText(view.value(), PlotType_e(view.key().second)));
}

void FrameView::showFrame(const ViewKey& key)
{
    m_key = key;
    const bool isField = key.second == PlotType_Field2D || key.second == PlotType_Field3D;
    Canvas* const wanted = key.second == PlotType_None ? nullptr : canvasOf(isField ? Field : Line);
    if (std::exchange(m_canvas, wanted) != wanted)
        endWork(true);
    if (!m_canvas) {
        showHint();
        return;
    }
    m_canvas->leaveMouse();
    if (m_canvas->scene().frameId() != key.first)
        m_canvas->scene().setFrame(key.first);
    m_canvas->setView(m_views.contains(key)
                          ? m_views.value(key)
                          : storedView(*host::Document::instance().frame(key.first),
                                       static_cast<PlotType_e>(key.second)));
    m_layout->setCurrentWidget(m_canvas);
    requestRedraw();
}

template<class Views>
static void dropViews(Views& views, CvlUniqueId frame)
{
    for (auto view = views.begin(); view != views.end();)
        view = view.key().first == frame ? views.erase(view) : std::next(view);
}

void FrameView::documentChanged(const host::StateEvent& event)
{
    m_isChanged = true;
    if (m_canvas)
        m_views[m_key] = m_canvas->view();
    const bool isOther = event.code == StateCode_DataSetAttached && concerns(event, m_key.first);
    if (isOther) {
        dropViews(m_views, m_key.first);
        dropViews(m_formerViews, m_key.first);
    }
    for (Canvas* const canvas : m_canvases) {
        if (canvas && canvas->scene().apply(event)) {
            canvas->sceneChanged(event);
            requestRedraw();
        }
    }
    if (event.code == StateCode_DocumentCleared || event.code == StateCode_DocumentLoaded)
        m_views.clear(); // of frames that are gone
    const ViewKey key = keyOfActiveFrame();
    if (key != m_key || isOther)
        showFrame(key);
}

void FrameView::requestRedraw()
{
    m_isStale = true;
    m_idle.start();
}

void FrameView::draw()
{
    m_isStale = false;
    m_drawnPieces = m_canvas->scene().progress().first;
    m_canvas->draw();
    ++m_redraws;
}

/// Works on the scene, or on a picture of it that takes longer.
void FrameView::workAndDraw()
{
    MapScene& scene = m_canvas->scene();
    if (m_canvas->isUnfinished() && !m_isStale)
        m_canvas->drawMore();
    else if (!scene.advance(kSliceMilliseconds))
        draw();
    else if (m_work.elapsed() >= m_nextDrawing && scene.progress().first != m_drawnPieces)
        draw();
    else
        return;
    m_nextDrawing = 2 * m_work.elapsed();
}

/// Works on the scene for a while; more follows at the next idle moment.
void FrameView::redraw()
{
    if (m_isPainting || !m_canvas || !m_canvas->isVisible() || !m_canvas->problem().isEmpty())
        return;
    if (!std::exchange(m_isWorking, true)) {
        m_work.start();
        m_nextDrawing = kFirstDrawing;
    }
    workAndDraw();
    const MapScene& scene = m_canvas->scene();
    if (!scene.hasWork() && !m_canvas->isUnfinished() && !m_isStale) {
        endWork(false);
        Q_EMIT completed();
        return;
    }
    if (m_work.elapsed() >= kQuietMilliseconds) {
        const auto [done, total] = scene.hasWork() ? scene.progress() : m_canvas->drawingProgress();
        m_isReporting = true;
        Q_EMIT workProgressed(done, total);
    }
    m_idle.start();
}

void FrameView::endWork(bool cancelled)
{
    m_isWorking = false;
    if (std::exchange(m_isReporting, false))
        Q_EMIT workEnded(cancelled);
}

/// What shows the work may let things happen: a picture of what was changed meanwhile is given up.
QString FrameView::paint(QPaintDevice& device, Paper paper, const WorkWatch& watch)
{
    if (!m_canvas)
        return paintFrame(m_key.first, device, paper);
    const QScopedValueRollback<bool> whilePainting(m_isPainting, true);
    m_isChanged = false;
    const auto goesOn = [&](CvlInt64 done, CvlInt64 total) {
        return watch(done, total) && !m_isChanged;
    };
    const QString problem = m_canvas->paint(device, paper, watch ? WorkWatch(goesOn) : watch);
    if (m_isStale || m_isWorking)
        m_idle.start();
    return problem;
}

QImage FrameView::render(const QSize& size, QString* error, Paper paper)
{
    return pictureImage(
        size, [this](QPaintDevice& device, Paper on) { return paint(device, on); }, error, paper);
}

QString FrameView::problem() const
{
    return m_canvas ? m_canvas->problem() : QString();
}

void FrameView::setPicksPlaces(bool picksPlaces)
{
    m_picksPlaces = picksPlaces;
    for (Canvas* const canvas : m_canvases)
        if (canvas)
            canvas->setPicksPlaces(picksPlaces);
}

void FrameView::setZoomsToBox(bool zooms)
{
    m_zoomsToBox = zooms;
    for (Canvas* const canvas : m_canvases)
        if (canvas)
            canvas->setZoomsToBox(zooms);
}

void FrameView::setOutlined(const host::NumberSet& maps)
{
    for (Canvas* const canvas : m_canvases)
        if (canvas)
            canvas->setOutlined(canvas == m_canvas ? maps : host::NumberSet());
}

/// Waits for the picture: what is drawn and seen is known then.
void FrameView::probe()
{
    if (m_isWorking || m_idle.isActive())
        return;
    Q_EMIT probed(m_canvas && m_hover ? m_canvas->probe(*m_hover) : QString());
    if (m_canvas && m_hover && m_canvas->isProbing())
        m_probe.start();
}

void FrameView::rememberView()
{
    constexpr int kMost = 50;
    QList<std::any>& former = m_formerViews[m_key];
    if (m_canvas)
        former.append(m_canvas->view());
    while (former.size() > kMost)
        former.removeFirst();
}

void FrameView::showPreviousView()
{
    if (!m_canvas || !hasPreviousView())
        return;
    m_canvas->setView(m_formerViews[m_key].takeLast());
    requestRedraw();
}

void FrameView::fitView()
{
    if (m_canvas) {
        rememberView();
        m_canvas->setView({});
        requestRedraw();
    }
}

void FrameView::cancelWork()
{
    if (!m_canvas)
        return;
    if (m_canvas->scene().hasWork()) {
        m_canvas->scene().cancel();
        endWork(true);
        requestRedraw();
    } else if (m_canvas->isUnfinished()) {
        m_canvas->stopDrawing();
        m_idle.stop();
        endWork(true);
    }
}

void FrameView::resumeWork()
{
    if (m_canvas) {
        m_canvas->scene().resume();
        requestRedraw();
    }
}

void FrameView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    requestRedraw();
}

void FrameView::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    endWork(true);
}

} // namespace corvala::plot
