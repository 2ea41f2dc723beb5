// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_menus.h"

#include "app/command_tips.h"
#include "app/details/detail_pages.h"
#include "app/document_commands.h"
#include "app/field_keys.h"
#include "app/help_commands.h"
#include "app/icons.h"
#include "app/recent_files.h"
#include "host/document/document.h"
#include "host/io/sample_list.h"
#include "samples/demo_data.h"

#include <QApplication>
#include <QFileInfo>
#include <QHash>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolBar>
#include <QToolButton>

#include <algorithm>

namespace corvala::app {

using host::Document;

MainMenus::MainMenus(QMainWindow& window, const DocumentCommands& documents, QAction& styleDialog,
                     QAction& details, const QList<QAction*>& layers)
    : QObject(&window)
    , m_window(window)
    , m_styleDialog(styleDialog)
{
    makeFileMenu(documents);
    makeEditMenu();
    makePlotMenu(details, layers);
    makeHelpMenu();
    makeToolBar(*documents.saveCommands().constFirst());
    connect(&Document::instance().undo().stack(), &QUndoStack::indexChanged, this,
            &MainMenus::refreshUndo);
}

/// The keys of a command work in the style dialog too.
static void setKeys(QAction& action, const QKeySequence& keys)
{
    action.setShortcut(keys);
    action.setShortcutContext(Qt::ApplicationShortcut);
}

static QAction* iconed(QAction* command, const char* icon, const QString& what)
{
    command->setIcon(commandIcon(icon));
    describe(*command, what);
    return command;
}

void MainMenus::makeFileMenu(const DocumentCommands& documents)
{
    QMenu* menu = m_window.menuBar()->addMenu(tr("&File"));
    menu->addAction(&documents.newCommand());
    addOpenCommands(*menu);
    addSampleMenu(*menu);
    addDemoMenu(*menu);
    addDataCommands(*menu);
    menu->addSeparator();
    menu->addActions(documents.saveCommands());
    menu->addSeparator();
    m_savePicture =
        iconed(menu->addAction(tr("Save Pict&ure..."), this, &MainMenus::pictureWanted),
               "save-picture", tr("Write the plot to a file: PNG, PDF, SVG, TIFF and others"));
    m_savePicture->setObjectName(QStringLiteral("savePicture"));
    menu->addSeparator();
    QAction* quit = menu->addAction(tr("&Quit"), qApp, &QApplication::closeAllWindows);
    setKeys(*quit, QKeySequence::Quit);
    iconed(quit, "application-exit", tr("End the program"));
}

void MainMenus::addOpenCommands(QMenu& menu)
{
    QAction* open = menu.addAction(tr("&Open..."), this, &MainMenus::openWanted);
    setKeys(*open, QKeySequence::Open);
    iconed(open, "document-open", tr("Open data files"));
    QAction* folder =
        iconed(menu.addAction(tr("Open Case &Folder..."), this, &MainMenus::folderWanted),
               "open-case-folder", tr("Open the case, or the data, in a folder"));
    QAction* plot3d = iconed(menu.addAction(tr("Open &Plot3D..."), this, &MainMenus::plot3DWanted),
                             "open-plot3d", tr("Open Plot3D files, and say how they are written"));
    QAction* table = iconed(menu.addAction(tr("Open &Table..."), this, &MainMenus::tableWanted),
                            "open-table", tr("Open tables of text, and say how they are written"));
    QMenu* recent = menu.addMenu(tr("Open &Recent"));
    iconed(recent->menuAction(), "document-open-recent", tr("Open again what was opened last"));
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentMenu(*recent); });
    m_openCommands << open << folder << plot3d << table << recent->menuAction();
}

void MainMenus::addDataCommands(QMenu& menu)
{
    m_addData = iconed(menu.addAction(tr("Add &Data..."), this, &MainMenus::moreDataWanted),
                       "data-add", tr("Add the zones of other files to the open data"));
    m_addData->setObjectName(QStringLiteral("addData"));
    m_closeData = iconed(menu.addAction(tr("&Close Data"), this, &MainMenus::closingWanted),
                         "data-close", tr("Drop the data of this plot, with their style"));
    m_closeData->setObjectName(QStringLiteral("closeData"));
}

void MainMenus::addSampleMenu(QMenu& menu)
{
    const std::vector<host::io::Sample> samples = host::io::sampleList();
    if (samples.empty())
        return;
    QMenu* sampleMenu = menu.addMenu(tr("Sa&mples"));
    for (const host::io::Sample& sample : samples)
        describe(
            *sampleMenu->addAction(sample.title, this,
                                   [this, files = sample.files] { Q_EMIT filesWanted(files); }),
            tr("Open real data that come with the program"));
    iconed(sampleMenu->menuAction(), "samples", tr("Open real data that come with the program"));
    m_openCommands << sampleMenu->menuAction();
}

QString demoTitle(const QString& name)
{
    static const QHash<QString, const char*> titles {
        {"field2d", QT_TRANSLATE_NOOP("corvala::app::MainMenus", "2D field, 12 zones")},
        {"field3d", QT_TRANSLATE_NOOP("corvala::app::MainMenus", "3D field, 12 zones")},
        {"kinds", QT_TRANSLATE_NOOP("corvala::app::MainMenus", "Zones of all kinds")},
        {"transient", QT_TRANSLATE_NOOP("corvala::app::MainMenus", "Transient zones")},
        {"xy", QT_TRANSLATE_NOOP("corvala::app::MainMenus", "XY lines")},
        {"polar", QT_TRANSLATE_NOOP("corvala::app::MainMenus", "Polar lines")}};
    const char* title = titles.value(name);
    return title ? MainMenus::tr(title) : name;
}

void MainMenus::addDemoMenu(QMenu& menu)
{
    QMenu* demos = menu.addMenu(tr("D&emonstration Data"));
    for (const std::string& demo : samples::demoNames()) {
        const QString name = QString::fromStdString(demo);
        describe(
            *demos->addAction(demoTitle(name), this, [this, name] { Q_EMIT demoWanted(name); }),
            tr("Show data that are made on the spot"));
    }
    iconed(demos->menuAction(), "demonstrations", tr("Show data that are made on the spot"));
    m_openCommands << demos->menuAction();
}

QString shownName(const QStringList& files)
{
    const QFileInfo file(files.value(0));
    // A case is known by its folder.
    const QString name = file.fileName() == QLatin1String("controlDict")
        ? QFileInfo(QFileInfo(file.path()).path()).fileName()
        : file.fileName();
    return files.size() > 1 ? MainMenus::tr("%1 and %n more", nullptr, files.size() - 1).arg(name)
                            : name;
}

static QString withoutAccessKey(QString text)
{
    return text.replace(QLatin1Char('&'), QLatin1String("&&"));
}

void MainMenus::fillRecentMenu(QMenu& menu)
{
    menu.clear();
    const QList<QStringList> entries = recentFiles();
    for (const QStringList& files : entries) {
        QAction* action = menu.addAction(withoutAccessKey(shownName(files)), this,
                                         [this, files] { Q_EMIT filesWanted(files); });
        describe(*action, files.join(QStringLiteral(", ")));
    }
    if (entries.isEmpty())
        menu.addAction(tr("No Files Yet"))->setEnabled(false);
}

void MainMenus::makeEditMenu()
{
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Edit"));
    m_undo = menu->addAction(tr("&Undo"), this, [] { Document::instance().undo().undo(); });
    m_redo = menu->addAction(tr("&Redo"), this, [] { Document::instance().undo().redo(); });
    m_undo->setIcon(commandIcon("edit-undo"));
    m_redo->setIcon(commandIcon("edit-redo"));
    m_undo->setShortcuts(QKeySequence::Undo);
    QList<QKeySequence> redoKeys = QKeySequence::keyBindings(QKeySequence::Redo);
    const QKeySequence other(QStringLiteral("Ctrl+Y"));
    if (!redoKeys.contains(other))
        redoKeys << other;
    m_redo->setShortcuts(redoKeys);
    for (QAction* action : {m_undo, m_redo})
        action->setShortcutContext(Qt::ApplicationShortcut);
    menu->addSeparator();
    m_copyPicture = menu->addAction(tr("&Copy Picture"), this, &MainMenus::pictureCopyWanted);
    m_copyPicture->setObjectName(QStringLiteral("copyPicture"));
    m_copyPicture->setShortcut(QKeySequence::Copy); // of this window: other ones copy texts
    iconed(m_copyPicture, "edit-copy", tr("Put the plot, as it is seen, on the clipboard"));
}

void MainMenus::makePlotMenu(QAction& details, const QList<QAction*>& layers)
{
    QMenu* menu = m_plotMenu = m_window.menuBar()->addMenu(tr("&Plot"));
    menu->addAction(&m_styleDialog);
    iconed(&m_styleDialog, "style-dialog", tr("Show or hide the table of the style of each zone"));
    menu->addAction(&details);
    iconed(&details, "document-properties",
           tr("Show or hide the panel of what is set for the plot as a whole"));
    addDetailsMenu(*menu);
    menu->addSeparator();
    addContourCommand(*menu);
    menu->addSeparator();
    menu->addActions(layers);
}

/// A narrow window may have no room for it in the toolbar.
void MainMenus::addContourCommand(QMenu& menu)
{
    m_contourVariable = menu.addAction(commandIcon("layer-contour"), tr("Contour &Variable..."),
                                       this, &MainMenus::contourVariableWanted);
    setUpCommand(*m_contourVariable, "chooseContourVariable",
                 QKeySequence(QStringLiteral("Ctrl+K")),
                 tr("Choose the variable that the colors of contour group 1 show"));
    keepKeysInFields(*m_contourVariable);
}

void MainMenus::addDetailsMenu(QMenu& menu)
{
    m_details = menu.addMenu(tr("D&etails Of"));
    for (const DetailPage& page : detailPages())
        m_detailPages.insert(&page, m_details->addAction(shownTitle(page), this, [this, &page] {
            Q_EMIT detailsWanted(QLatin1String(page.name));
        }));
    for (QAction* page : m_details->actions())
        describe(*page, tr("Show this page in the panel of details"));
    describe(*m_details->menuAction(), tr("Show a page in the panel of details"));
}

void MainMenus::addPlotTypeMenu(const QList<QAction*>& types)
{
    auto* const menu = new QMenu(tr("Plot T&ype"), m_plotMenu);
    m_plotMenu->insertMenu(m_contourVariable, menu);
    fill(*menu, types);
}

/// The menu can be opened while one of its commands can be used.
void MainMenus::fill(QMenu& menu, const QList<QAction*>& commands)
{
    menu.addActions(commands);
    connect(m_plotMenu, &QMenu::aboutToShow, &menu, [&menu, commands] {
        menu.menuAction()->setEnabled(
            std::any_of(commands.begin(), commands.end(),
                        [](const QAction* command) { return command->isEnabled(); }));
    });
}

void MainMenus::addTimeMenu(const QList<QAction*>& commands)
{
    fill(*m_plotMenu->addMenu(tr("Solution &Time")), commands);
}

void MainMenus::makeHelpMenu()
{
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Help"));
    menu->addActions((new HelpCommands(this))->actions());
    menu->addSeparator();
    iconed(menu->addAction(tr("&About corvala"), this, &MainMenus::showAbout), "help-about",
           tr("Tell which program this is"));
    iconed(menu->addAction(tr("About &Qt"), qApp, &QApplication::aboutQt), "help-about-toolkit",
           tr("Tell about the library that draws the windows"));
}

void MainMenus::showAbout()
{
    auto* about =
        new QMessageBox(QMessageBox::NoIcon, tr("About corvala"),
                        tr("corvala %1\nPlots field data and edits the style of their zones.\n"
                           "Licence: GPL-3.0-or-later")
                            .arg(QApplication::applicationVersion()),
                        QMessageBox::Close, &m_window);
    about->setIconPixmap(programIcon().pixmap(64));
    about->setAttribute(Qt::WA_DeleteOnClose);
    about->open();
}

void MainMenus::makeToolBar(QAction& save)
{
    m_toolBar = m_window.addToolBar(tr("Main"));
    m_toolBar->setObjectName(QStringLiteral("mainBar"));
    m_toolBar->addActions({m_openCommands.first(), &save, m_undo, m_redo});
    m_toolBar->addSeparator();
    m_toolBar->addAction(&m_styleDialog);
    if (auto* button = qobject_cast<QToolButton*>(m_toolBar->widgetForAction(&m_styleDialog)))
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

void MainMenus::enableOpening(bool enabled)
{
    for (QAction* command : m_openCommands)
        command->setEnabled(enabled);
    m_isOpeningEnabled = enabled;
    enableDataCommands();
}

void MainMenus::enableDataCommands()
{
    const host::Frame* const frame = Document::instance().activeFrame();
    for (QAction* const command : {m_addData, m_closeData})
        command->setEnabled(m_isOpeningEnabled && frame && frame->hasData());
}

void MainMenus::refresh(bool hasPlot)
{
    const host::Frame* frame = Document::instance().activeFrame();
    m_styleDialog.setText(frame && frame->isLinePlot() ? tr("&Mapping Style...")
                                                       : tr("&Zone Style..."));
    for (QAction* const command : {m_savePicture, m_copyPicture})
        command->setEnabled(frame && frame->hasData());
    enableDataCommands();
    m_contourVariable->setEnabled(frame && frame->hasData() && frame->isFieldPlot());
    m_details->setEnabled(hasPlot);
    for (auto page = m_detailPages.begin(); page != m_detailPages.end(); ++page)
        page.value()->setVisible(hasPlot && page.key()->isFor(*frame));
    refreshUndo();
}

static constexpr int kLongestStep = 60; ///< in characters; a zone may have a long name

/// Says what it takes back, as far as there is room.
static void nameStep(QAction& action, const QString& command, const QString& step)
{
    const QString shown =
        step.size() > kLongestStep ? step.left(kLongestStep - 3) + QStringLiteral("...") : step;
    QString text =
        step.isEmpty() ? command : MainMenus::tr("%1 %2").arg(command, withoutAccessKey(shown));
    action.setText(text);
    text = step.isEmpty() ? command : MainMenus::tr("%1 %2").arg(command, step);
    describe(action, text.remove(QLatin1Char('&')));
}

void MainMenus::refreshUndo()
{
    const QUndoStack& stack = Document::instance().undo().stack();
    m_undo->setEnabled(stack.canUndo());
    nameStep(*m_undo, tr("&Undo"), stack.undoText());
    m_redo->setEnabled(stack.canRedo());
    nameStep(*m_redo, tr("&Redo"), stack.redoText());
}

} // namespace corvala::app
