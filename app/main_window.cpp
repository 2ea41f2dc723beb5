// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_window.h"

#include "app/layer_bar.h"
#include "app/notice_bar.h"
#include "app/plot3d_dialog.h"
#include "app/plot3d_layout.h"
#include "app/plot_area.h"
#include "app/recent_files.h"
#include "app/style_dialog.h"
#include "app/time_bar.h"
#include "app/work_progress.h"
#include "host/document/document.h"
#include "host/io/sample_list.h"
#include "play/picture_file.h"
#include "plot/frame_view.h"
#include "samples/demo_data.h"
#include "sdk/common_ui/find_main_window.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QHash>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QStyle>
#include <QVBoxLayout>

namespace corvala::app {

using namespace corvala::dialogs::common;
using host::Document;

MainWindow::MainWindow(QWidget* parent)
    : QMainWindow(parent)
{
    setObjectName(QStringLiteral("mainWindow"));
    makeCentre();
    m_styleDialog = makeStyleDialogAction(*this);
    makeFileMenu();
    makeEditMenu();
    makeToolBars();
    makePlotMenu();
    makeHelpMenu();
    connectOpener();
    connectCanvas();
    connect(&m_observer, &DocumentObserver::changed, this, &MainWindow::refresh);
    connect(&Document::instance().undo().stack(), &QUndoStack::indexChanged, this,
            &MainWindow::refreshUndo);
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
    m_plotArea = new PlotArea(centre);
    layout->addWidget(m_notice);
    layout->addWidget(m_plotArea, 1);
    setCentralWidget(centre);
    m_reading = new WorkProgress(this);
    m_drawing = new WorkProgress(this);
    statusBar()->addWidget(m_reading);
    statusBar()->addWidget(m_drawing);
    m_summary = new QLabel(this);
    statusBar()->addPermanentWidget(m_summary);
}

/// The keys of a command work in the style dialog too.
static void setKeys(QAction& action, const QKeySequence& keys)
{
    action.setShortcut(keys);
    action.setShortcutContext(Qt::ApplicationShortcut);
}

void MainWindow::makeFileMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&File"));
    QAction* open = menu->addAction(style()->standardIcon(QStyle::SP_DialogOpenButton),
                                    tr("&Open..."), this, &MainWindow::chooseFiles);
    setKeys(*open, QKeySequence::Open);
    QAction* plot3d = menu->addAction(tr("Open &Plot3D..."), this, &MainWindow::choosePlot3DFiles);
    QMenu* recent = menu->addMenu(tr("Open &Recent"));
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentMenu(*recent); });
    m_openCommands << open << plot3d << recent->menuAction();
    addSampleMenu(*menu);
    addDemoMenu(*menu);
    menu->addSeparator();
    m_savePicture = menu->addAction(tr("&Save Picture..."), this, &MainWindow::savePicture);
    menu->addSeparator();
    setKeys(*menu->addAction(tr("&Quit"), qApp, &QApplication::closeAllWindows),
            QKeySequence::Quit);
}

void MainWindow::addSampleMenu(QMenu& menu)
{
    const std::vector<host::io::Sample> samples = host::io::sampleList();
    if (samples.empty())
        return;
    QMenu* sampleMenu = menu.addMenu(tr("Sa&mples"));
    for (const host::io::Sample& sample : samples)
        sampleMenu->addAction(sample.title, this,
                              [this, files = sample.files] { openFiles(files); });
    m_openCommands << sampleMenu->menuAction();
}

static QString demoTitle(const QString& name)
{
    static const QHash<QString, const char*> titles {
        {"field2d", QT_TRANSLATE_NOOP("corvala::app::MainWindow", "2D field, 12 zones")},
        {"field3d", QT_TRANSLATE_NOOP("corvala::app::MainWindow", "3D field, 12 zones")},
        {"kinds", QT_TRANSLATE_NOOP("corvala::app::MainWindow", "Zones of all kinds")},
        {"transient", QT_TRANSLATE_NOOP("corvala::app::MainWindow", "Transient zones")},
        {"xy", QT_TRANSLATE_NOOP("corvala::app::MainWindow", "XY lines")},
        {"polar", QT_TRANSLATE_NOOP("corvala::app::MainWindow", "Polar lines")}};
    const char* title = titles.value(name);
    return title ? MainWindow::tr(title) : name;
}

void MainWindow::addDemoMenu(QMenu& menu)
{
    QMenu* demos = menu.addMenu(tr("&Demonstration Data"));
    for (const std::string& demo : samples::demoNames()) {
        const QString name = QString::fromStdString(demo);
        demos->addAction(demoTitle(name), this, [this, name] { openDemo(name); });
    }
    m_openCommands << demos->menuAction();
}

/// Files that belong together, in a few words.
static QString shownName(const QStringList& files)
{
    const QString name = QFileInfo(files.value(0)).fileName();
    return files.size() > 1 ? MainWindow::tr("%1 and %n more", nullptr, files.size() - 1).arg(name)
                            : name;
}

void MainWindow::fillRecentMenu(QMenu& menu)
{
    menu.clear();
    const QList<QStringList> entries = recentFiles();
    for (const QStringList& files : entries) {
        QString text = shownName(files);
        QAction* action = menu.addAction(text.replace(QLatin1Char('&'), QLatin1String("&&")), this,
                                         [this, files] { openFiles(files); });
        action->setStatusTip(files.join(QStringLiteral(", ")));
    }
    if (entries.isEmpty())
        menu.addAction(tr("No Files Yet"))->setEnabled(false);
}

/// An icon of the desktop's theme, or of the style where the theme has none.
static QIcon iconOf(const char* name, QStyle::StandardPixmap other)
{
    return QIcon::fromTheme(QLatin1String(name), QApplication::style()->standardIcon(other));
}

void MainWindow::makeEditMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Edit"));
    m_undo = menu->addAction(iconOf("edit-undo", QStyle::SP_ArrowBack), tr("&Undo"), this,
                             [] { Document::instance().undo().undo(); });
    m_redo = menu->addAction(iconOf("edit-redo", QStyle::SP_ArrowForward), tr("&Redo"), this,
                             [] { Document::instance().undo().redo(); });
    m_undo->setShortcuts(QKeySequence::Undo);
    m_redo->setShortcuts(QKeySequence::Redo);
    for (QAction* action : {m_undo, m_redo})
        action->setShortcutContext(Qt::ApplicationShortcut);
}

void MainWindow::makePlotMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Plot"));
    menu->addAction(m_styleDialog);
    menu->addSeparator();
    menu->addActions(m_layerBar->layerActions());
    menu->addSeparator();
    m_fitView = menu->addAction(tr("&Fit View"), this, [this] {
        if (m_plotArea->frameView())
            m_plotArea->frameView()->fitView();
    });
    setKeys(*m_fitView, QKeySequence(QStringLiteral("Ctrl+0")));
}

void MainWindow::makeHelpMenu()
{
    QMenu* menu = menuBar()->addMenu(tr("&Help"));
    menu->addAction(tr("&About corvala"), this, [this] {
        auto* about =
            new QMessageBox(QMessageBox::Information, tr("About corvala"),
                            tr("corvala %1\nPlots field data and edits the style of their zones.\n"
                               "Licence: GPL-3.0-or-later")
                                .arg(QApplication::applicationVersion()),
                            QMessageBox::Close, this);
        about->setAttribute(Qt::WA_DeleteOnClose);
        about->open();
    });
    menu->addAction(tr("About &Qt"), qApp, &QApplication::aboutQt);
}

void MainWindow::makeToolBars()
{
    QToolBar* main = addToolBar(tr("Main"));
    main->setObjectName(QStringLiteral("mainBar"));
    main->addActions({m_openCommands.first(), m_undo, m_redo});
    main->addSeparator();
    main->addAction(m_styleDialog);
    m_layerBar = new LayerBar(this);
    addToolBar(m_layerBar);
    m_timeBar = new TimeBar(this);
    addToolBar(Qt::BottomToolBarArea, m_timeBar);
}

void MainWindow::connectOpener()
{
    connect(&m_opener, &DataOpener::started, this, [this] { setReading(true); });
    connect(&m_opener, &DataOpener::progress, m_reading, &WorkProgress::advance);
    connect(m_reading, &WorkProgress::cancelled, &m_opener, &DataOpener::cancel);
    connect(&m_opener, &DataOpener::ended, this, [this] { setReading(false); });
    connect(&m_opener, &DataOpener::opened, this, &MainWindow::tellOpened);
    connect(&m_opener, &DataOpener::failed, this, &MainWindow::showProblem);
    connect(&m_opener, &DataOpener::opened, this, [this] { Q_EMIT openingEnded(true); });
    connect(&m_opener, &DataOpener::failed, this, [this] { Q_EMIT openingEnded(false); });
    connect(&m_opener, &DataOpener::cancelled, this, [this] { Q_EMIT openingEnded(false); });
}

void MainWindow::setReading(bool isReading)
{
    for (QAction* command : m_openCommands)
        command->setEnabled(!isReading);
    m_notice->setEnabled(!isReading);
    if (isReading)
        m_reading->begin(tr("Reading %1...").arg(shownName(m_opener.request().files)));
    else
        m_reading->end();
}

void MainWindow::connectCanvas()
{
    plot::FrameView* view = m_plotArea->frameView();
    if (!view)
        return;
    connect(view, &plot::Canvas::zonePicked, this, &MainWindow::pickZone);
    connect(view, &plot::Canvas::lineMapPicked, this, &MainWindow::pickLineMap);
    connect(m_drawing, &WorkProgress::cancelled, view, &plot::Canvas::cancelWork);
    connect(view, &plot::Canvas::workEnded, m_drawing, &WorkProgress::end);
    connect(view, &plot::Canvas::workProgressed, this, [this](CvlInt64 done, CvlInt64 total) {
        if (m_drawing->isHidden())
            m_drawing->begin(tr("Drawing..."));
        m_drawing->advance(total > 0 ? static_cast<int>(100 * done / total) : -1,
                           tr("Drawing zone %1 of %2").arg(done).arg(total));
    });
}

static QString summaryOf(const host::DataSet& data)
{
    return MainWindow::tr("Zones: %1, variables: %2")
        .arg(data.zoneCount())
        .arg(data.variableCount());
}

void MainWindow::refresh()
{
    const host::Frame* frame = Document::instance().activeFrame();
    const bool hasData = frame && frame->hasData();
    const QString title = hasData ? QString::fromStdString(frame->data()->title) : QString();
    setWindowTitle(title.isEmpty() ? tr("corvala") : tr("%1 - corvala").arg(title));
    m_styleDialog->setText(frame && frame->isLinePlot() ? tr("&Mapping Style...")
                                                        : tr("&Zone Style..."));
    m_summary->setText(hasData ? summaryOf(*frame->data()) : QString());
    m_savePicture->setEnabled(hasData);
    m_fitView->setEnabled(hasData && m_plotArea->frameView());
    m_layerBar->refresh();
    m_timeBar->refresh();
    refreshUndo();
}

static QString commandText(const QString& command, QString step)
{
    step.replace(QLatin1Char('&'), QLatin1String("&&"));
    return step.isEmpty() ? command : MainWindow::tr("%1 %2").arg(command, step);
}

void MainWindow::refreshUndo()
{
    const QUndoStack& stack = Document::instance().undo().stack();
    m_undo->setEnabled(stack.canUndo());
    m_undo->setText(commandText(tr("&Undo"), stack.undoText()));
    m_redo->setEnabled(stack.canRedo());
    m_redo->setText(commandText(tr("&Redo"), stack.redoText()));
}

void MainWindow::openFiles(const QStringList& files, const host::io::Plot3DLayout& plot3d)
{
    host::io::ReadRequest request;
    request.files = files;
    request.plot3d = plot3d;
    m_opener.start(request);
}

void MainWindow::openDemo(const QString& name)
{
    std::string error;
    if (samples::openDemo(name.toStdString(), 0, error))
        m_notice->tell({});
    else
        showProblem(QString::fromStdString(error));
}

void MainWindow::chooseFiles()
{
    const QStringList files = QFileDialog::getOpenFileNames(this, tr("Open Data"), {},
                                                            host::io::DataReader::nameFilters());
    if (!files.isEmpty())
        openFiles(files);
}

void MainWindow::choosePlot3DFiles()
{
    const QStringList files = QFileDialog::getOpenFileNames(this, tr("Open Plot3D Data"));
    if (files.isEmpty())
        return;
    Plot3DDialog dialog({}, nullptr, this);
    if (dialog.exec() == QDialog::Accepted)
        openFiles(files, dialog.chosenLayout());
}

void MainWindow::changePlot3DLayout(const host::io::ReadRequest& request,
                                    const host::io::Plot3DLayout& detected)
{
    Plot3DDialog dialog(request.plot3d, &detected, this);
    if (dialog.exec() == QDialog::Accepted)
        openFiles(request.files, dialog.chosenLayout());
}

void MainWindow::tellOpened(const host::io::ReadResult& result)
{
    rememberFiles(m_opener.request().files);
    QStringList notes;
    for (const std::string& note : result.data->notes)
        notes << QString::fromStdString(note);
    if (!result.detectedPlot3D) {
        m_notice->tell(notes.join(QLatin1Char(' ')));
        return;
    }
    const host::io::Plot3DLayout detected = *result.detectedPlot3D;
    const host::io::ReadRequest request = m_opener.request();
    notes.prepend(tr("Detected: %1.").arg(describePlot3DLayout(detected)));
    m_notice->tell(notes.join(QLatin1Char(' ')), tr("Change..."),
                   [this, request, detected] { changePlot3DLayout(request, detected); });
}

QImage MainWindow::canvasImage(QString* error)
{
    return m_plotArea->image(error);
}

void MainWindow::savePicture()
{
    QFileDialog dialog(this, tr("Save Picture"), {}, tr("Pictures (*.png *.jpg *.bmp)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("png"));
    dialog.selectFile(QStringLiteral("plot.png"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    QString error;
    const QImage image = canvasImage(&error);
    if (!image.isNull())
        error = play::writePicture(image, dialog.selectedFiles().value(0));
    if (!error.isEmpty())
        showProblem(error);
}

void MainWindow::openStyleDialog(DialogInitialization_e initialization)
{
    app::openStyleDialog(*this, initialization);
}

void MainWindow::openStyleDialogBeside()
{
    placeSideBySide(*this, app::openStyleDialog(*this, DialogInitialization_None));
}

void MainWindow::pick(int type, CvlInt64 number, bool activate)
{
    std::vector<host::Pick> picks;
    if (number > 0)
        picks.push_back({type, number});
    Document::instance().setPicks(picks);
    if (activate && number > 0)
        openStyleDialog(DialogInitialization_SelectPickedObjects);
}

void MainWindow::pickZone(CvlInt64 zone, bool activate)
{
    pick(PickType_Zone, zone, activate);
}

void MainWindow::pickLineMap(CvlInt64 lineMap, bool activate)
{
    pick(PickType_LineMap, lineMap, activate);
}

void MainWindow::setProblemHandler(std::function<void(const QString&)> handler)
{
    m_problemHandler = std::move(handler);
}

void MainWindow::showProblem(const QString& text)
{
    if (m_problemHandler) {
        m_problemHandler(text);
        return;
    }
    auto* box = new QMessageBox(QMessageBox::Warning, tr("corvala"), text, QMessageBox::Ok, this);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace corvala::app
