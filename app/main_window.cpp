// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_window.h"

#include "app/contour_bar.h"
#include "app/data_commands.h"
#include "app/details/details_dock.h"
#include "app/document_commands.h"
#include "app/elided_label.h"
#include "app/file_drops.h"
#include "app/icons.h"
#include "app/layer_bar.h"
#include "app/layer_notes.h"
#include "app/main_menus.h"
#include "app/notice_bar.h"
#include "app/picked_objects.h"
#include "app/picture_commands.h"
#include "app/picture_notes.h"
#include "app/plot_area.h"
#include "app/plot_menu.h"
#include "app/plot_type_choice.h"
#include "app/seed_picking.h"
#include "app/start_page.h"
#include "app/style_dialog.h"
#include "app/style_dialog_command.h"
#include "app/time_bar.h"
#include "app/view_commands.h"
#include "app/window_memory.h"
#include "app/window_place.h"
#include "app/work_progress.h"
#include "host/document/document.h"
#include "plot/frame_view.h"
#include "sdk/common_ui/find_main_window.h"

#include <QCloseEvent>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QStatusBar>
#include <QVBoxLayout>

namespace corvala::app {

using namespace corvala::dialogs::common;
using host::Document;

static constexpr int kLongestPick = 36; ///< in average characters

static constexpr int kPictureCheckMilliseconds = 100;
static constexpr int kToldMilliseconds = 20'000; ///< that the status bar says what was done

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowIcon(programIcon());
    makeCentre();
    makeBars();
    connectOpener();
    connectCanvas();
    connect(&m_observer, &DocumentObserver::changed, this, &MainWindow::refresh);
    refresh();
    ui::setMainWindow(this);
}

MainWindow::~MainWindow() = default;

void MainWindow::makeCentre()
{
    auto* centre = new QWidget(this);
    auto* layout = new QVBoxLayout(centre);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_notice = new NoticeBar(centre);
    m_layerNotes = new LayerNotes(*m_notice, this);
    m_pictureNotes = new PictureNotes(*m_notice, this);
    m_data = new DataCommands(*this, *m_notice);
    m_documents = new DocumentCommands(*this, *m_notice, m_data->opener());
    m_plotArea = new PlotArea(centre);
    layout->addWidget(m_notice);
    layout->addWidget(m_plotArea, 1);
    setCentralWidget(centre);
    m_work = new WorkProgress(this);
    statusBar()->addWidget(m_work);
    m_picked = new ElidedLabel(this);
    m_picked->setObjectName(QStringLiteral("picked"));
    // What the mouse is over needs the room more.
    m_picked->setMaximumWidth(kLongestPick * fontMetrics().averageCharWidth());
    statusBar()->addWidget(m_picked);
    m_pickEnd = new QFrame(this);
    m_pickEnd->setFrameStyle(QFrame::VLine | QFrame::Sunken);
    statusBar()->addWidget(m_pickEnd);
    m_probe = new ElidedLabel(this);
    m_probe->setObjectName(QStringLiteral("probe"));
    statusBar()->addWidget(m_probe, 1);
    m_summary = new QLabel(this);
    statusBar()->addPermanentWidget(m_summary);
}

void MainWindow::makeBars()
{
    m_layerBar = new LayerBar(this);
    m_timeBar = new TimeBar(
        [this] { return m_plotArea->frameView() && m_plotArea->frameView()->isBusy(); }, this);
    m_details = new DetailsDock(
        [this](style::Key value, int index) -> std::optional<double> {
            const plot::FrameView* const view = m_plotArea->frameView();
            return view && view->canvas() ? view->canvas()->proposal(value, index) : std::nullopt;
        },
        this);
    addDockWidget(Qt::RightDockWidgetArea, m_details);
    m_styleDialog = new StyleDialogCommand(*this);
    m_menus = new MainMenus(*this, *m_documents, *m_styleDialog, *m_details->toggleViewAction(),
                            m_layerBar->layerActions());
    m_views = new ViewCommands(*this, m_plotArea->frameView(), *m_notice, m_menus->plotMenu());
    m_menus->addTimeMenu(m_timeBar->commands());
    m_plotType = new PlotTypeChoice(this);
    m_menus->addPlotTypeMenu(m_plotType->commands());
    m_menus->toolBar().addSeparator();
    m_menus->toolBar().addWidget(m_plotType);
    m_contourBar = new ContourBar(this);
    addToolBar(m_contourBar);
    connect(m_contourBar, &ContourBar::detailsWanted, m_details, &DetailsDock::openPage);
    addToolBarBreak(); // all layers show beside the style dialog, too
    addToolBar(m_layerBar);
    addToolBar(Qt::BottomToolBarArea, m_timeBar);
    connect(m_menus, &MainMenus::openWanted, m_data, &DataCommands::chooseFiles);
    connect(m_menus, &MainMenus::folderWanted, m_data, &DataCommands::chooseFolder);
    connect(m_menus, &MainMenus::plot3DWanted, m_data, &DataCommands::choosePlot3DFiles);
    connect(m_menus, &MainMenus::tableWanted, m_data, &DataCommands::chooseTables);
    connect(m_menus, &MainMenus::moreDataWanted, m_data, &DataCommands::chooseMore);
    connect(m_menus, &MainMenus::closingWanted, m_data, &DataCommands::closeData);
    connect(m_menus, &MainMenus::contourVariableWanted, m_contourBar, &ContourBar::chooseVariable);
    connect(m_menus, &MainMenus::filesWanted, m_data,
            [this](const QStringList& files) { m_data->open(files); });
    connect(m_menus, &MainMenus::demoWanted, m_data, &DataCommands::openDemo);
    // The time that is shown when it is asked for is the one in the picture.
    for (const auto wanted : {&MainMenus::pictureWanted, &MainMenus::pictureCopyWanted})
        connect(m_menus, wanted, m_timeBar, &TimeBar::stop);
    auto* const pictures = new PictureCommands(*this, *m_plotArea);
    connect(m_menus, &MainMenus::pictureWanted, pictures, &PictureCommands::save);
    connect(m_menus, &MainMenus::pictureCopyWanted, pictures, &PictureCommands::copy);
    connect(pictures, &PictureCommands::failed, this, &MainWindow::showProblem);
    connect(pictures, &PictureCommands::told, this,
            [this](const QString& text) { statusBar()->showMessage(text, kToldMilliseconds); });
    connect(m_layerBar, &LayerBar::detailsWanted, m_details, &DetailsDock::openPage);
    connect(m_menus, &MainMenus::detailsWanted, m_details, &DetailsDock::openPage);
    connect(m_pictureNotes, &PictureNotes::detailsWanted, m_details, &DetailsDock::openPageOf);
    connect(m_layerBar, &LayerBar::layerSwitched, m_layerNotes,
            [this](QAction* layer) { m_layerNotes->explain(*layer); });
}

void MainWindow::connectOpener()
{
    DataOpener& opener = m_data->opener();
    connect(&opener, &DataOpener::started, this, [this, &opener] {
        m_menus->enableOpening(false);
        m_documents->enable(false);
        m_notice->setEnabled(false);
        begin(tr("Reading %1...").arg(shownName(opener.request().files)));
    });
    connect(&opener, &DataOpener::progress, m_work, &WorkProgress::advance);
    connect(&opener, &DataOpener::ended, this, [this](bool opened) {
        m_menus->enableOpening(true);
        m_documents->enable(true);
        m_notice->setEnabled(true);
        awaitPicture();
        if (opened)
            showOpened();
        Q_EMIT openingEnded(opened);
    });
    connect(m_data, &DataCommands::failed, this, &MainWindow::showProblem);
    m_data->setGuard([this] { return m_documents->mayReplaceData(); });
    connect(m_data, &DataCommands::documentWanted, m_documents, &DocumentCommands::open);
    connect(m_documents, &DocumentCommands::failed, this, &MainWindow::showProblem);
    connect(&m_documents->state(), &DocumentState::changed, this, &MainWindow::refreshTitle);
    auto* drops = new FileDrops(*this, *m_plotArea, [&opener] {
        return opener.isRunning() ? tr("%1 is being read: drop other files when that is done")
                                        .arg(shownName(opener.request().files))
                                  : QString();
    });
    connect(drops, &FileDrops::dropped, this,
            qOverload<const QStringList&>(&MainWindow::openFiles));
}

/// What one can begin with while there are no data.
void MainWindow::makeStartPage(plot::FrameView& view)
{
    auto* page = new StartPage;
    view.setStartPage(page);
    connect(page, &StartPage::openWanted, m_data, &DataCommands::chooseFiles);
    connect(page, &StartPage::folderWanted, m_data, &DataCommands::chooseFolder);
    connect(page, &StartPage::filesWanted, this,
            qOverload<const QStringList&>(&MainWindow::openFiles));
    connect(page, &StartPage::demoWanted, m_data, &DataCommands::openDemo);
    connect(&m_data->opener(), &DataOpener::started, page, [page] { page->setEnabled(false); });
    connect(&m_data->opener(), &DataOpener::ended, page, [page] { page->setEnabled(true); });
}

void MainWindow::connectCanvas()
{
    connect(m_work, &WorkProgress::cancelled, this, &MainWindow::cancelWork);
    m_picture.setInterval(kPictureCheckMilliseconds);
    connect(&m_picture, &QTimer::timeout, this, &MainWindow::awaitPicture);
    plot::FrameView* view = m_plotArea->frameView();
    if (!view)
        return;
    makeStartPage(*view);
    letPickSeeds(*m_details, *view);
    connect(view, &plot::FrameView::zonePicked, this, &MainWindow::pick);
    connect(view, &plot::FrameView::lineMapPicked, this, &MainWindow::pick);
    auto* const menu = new PlotMenu(*this, *view, *m_views);
    connect(menu, &PlotMenu::pickWanted, this, &MainWindow::pick);
    connect(view, &plot::FrameView::probed, this, [this](const QString& text) {
        m_probe->setText(text);
        m_summary->setVisible(text.isEmpty()); // room
    });
    connect(view, &plot::FrameView::workEnded, this, &MainWindow::awaitPicture);
    connect(view, &plot::FrameView::completed, this, [this, view] {
        m_details->refresh(); // what follows from the data is known
        m_pictureNotes->tell(view->canvas()->scene().notes());
        m_views->tellWhenLost();
    });
    connect(view, &plot::FrameView::workProgressed, this, [this](CvlInt64 done, CvlInt64 total) {
        if (m_data->opener().isRunning())
            return;
        if (m_work->isHidden())
            begin(tr("Drawing..."));
        m_work->advance(total > 0 ? static_cast<int>(100 * done / total) : -1, tr("Drawing..."));
        m_picture.start();
    });
}

void MainWindow::begin(const QString& work)
{
    m_picture.stop();
    statusBar()->clearMessage(); // which would hide the work
    m_work->begin(work);
}

/// Reading ends with the first complete picture of what was read.
void MainWindow::awaitPicture()
{
    if (m_data->opener().isRunning())
        return;
    const bool isBusy = m_plotArea->frameView() && m_plotArea->frameView()->isBusy();
    if (!isBusy) {
        m_picture.stop();
        m_work->end();
    } else if (!m_picture.isActive()) {
        m_picture.start();
        m_work->advance(-1, tr("Drawing..."));
    }
}

void MainWindow::cancelWork()
{
    m_timeBar->stop();
    if (m_data->opener().isRunning())
        m_data->opener().cancel();
    else if (m_plotArea->frameView())
        m_plotArea->frameView()->cancelWork();
}

static QString summaryOf(const host::DataSet& data)
{
    return MainWindow::tr("Zones: %1, variables: %2")
        .arg(data.zoneCount())
        .arg(data.variableCount());
}

void MainWindow::refreshTitle()
{
    const QString title = m_documents->title();
    setWindowTitle(title.isEmpty() ? tr("corvala") : tr("%1 - corvala").arg(title));
    setWindowModified(m_documents->state().isChanged());
    m_documents->refresh();
}

void MainWindow::refresh()
{
    const host::Frame* frame = Document::instance().activeFrame();
    const bool hasData = frame && frame->hasData();
    refreshTitle();
    const QString picked = pickedText();
    m_picked->setText(picked.isEmpty() ? picked : tr("Picked: %1").arg(picked));
    m_picked->setToolTip(picked);
    m_pickEnd->setVisible(!picked.isEmpty());
    m_summary->setText(hasData ? summaryOf(*frame->data()) : QString());
    m_menus->refresh(hasData && m_plotArea->frameView());
    m_views->refresh();
    m_plotType->refresh();
    m_layerBar->refresh();
    m_layerNotes->refresh(m_layerBar->layerActions());
    m_contourBar->refresh();
    m_timeBar->refresh();
    m_details->refresh();
}

/// Before the first picture, which may take its time.
void MainWindow::showOpened()
{
    refresh();
    for (QAction* layer : m_layerBar->layerActions())
        if (!m_notice->isVisible())
            m_layerNotes->explain(*layer);
    repaint();
}

void MainWindow::openFiles(const QStringList& files)
{
    m_data->open(files);
}

void MainWindow::openFiles(const host::io::ReadRequest& request)
{
    m_data->open(request);
}

/// Much of a small screen; at the left, so that the style dialog has the more room beside it.
static QRect firstPlace(const QMainWindow& window)
{
    const QRect screen = window.screen()->availableGeometry();
    const QSize size = window.sizeHint().boundedTo(screen.size() * 0.9 - frameOf(window));
    const int free = screen.height() - size.height() - frameOf(window).height();
    return {screen.topLeft() + QPoint(0, free / 4), size};
}

void MainWindow::restore()
{
    new WindowPlace(*this, QStringLiteral("main"), [this] { return firstPlace(*this); });
    restorePanels(*this);
    refresh(); // which bars show follows from the document, too
}

void MainWindow::openDemo(const QString& name)
{
    m_data->openDemo(name);
}

void MainWindow::askBeforeLosing()
{
    m_documents->askBeforeLosing();
}

/// What a question or a file dialog is about shall not change behind it.
bool MainWindow::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked)
        m_timeBar->stop();
    return QMainWindow::event(event);
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(m_documents->mayLose());
}

QString MainWindow::saveCanvas(const QString& file)
{
    return m_plotArea->saveCanvas(file);
}

void MainWindow::openStyleDialog(DialogInitialization_e initialization)
{
    app::openStyleDialog(*this, initialization);
}

void MainWindow::openStyleDialogWithData()
{
    m_styleDialog->openWithData();
}

const QAction& MainWindow::styleDialogCommand() const
{
    return *m_styleDialog;
}

void MainWindow::pick(CvlInt64 number, bool activate)
{
    pickObject(number);
    if (activate && number > 0)
        openStyleDialog(DialogInitialization_SelectPickedObjects);
}

void MainWindow::showProblem(const QString& text)
{
    auto* box = new QMessageBox(QMessageBox::Warning, tr("corvala"), text, QMessageBox::Ok, this);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace corvala::app
