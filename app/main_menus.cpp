// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/main_menus.h"

#include "app/details/detail_pages.h"
#include "app/document_commands.h"
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

void MainMenus::makeFileMenu(const DocumentCommands& documents)
{
    QMenu* menu = m_window.menuBar()->addMenu(tr("&File"));
    menu->addAction(&documents.newCommand());
    QAction* open =
        menu->addAction(commandIcon("document-open"), tr("&Open..."), this, &MainMenus::openWanted);
    setKeys(*open, QKeySequence::Open);
    QAction* folder = menu->addAction(tr("Open Case &Folder..."), this, &MainMenus::folderWanted);
    QAction* plot3d = menu->addAction(tr("Open &Plot3D..."), this, &MainMenus::plot3DWanted);
    QAction* table = menu->addAction(tr("Open &Table..."), this, &MainMenus::tableWanted);
    QMenu* recent = menu->addMenu(tr("Open &Recent"));
    connect(recent, &QMenu::aboutToShow, this, [this, recent] { fillRecentMenu(*recent); });
    m_openCommands << open << folder << plot3d << table << recent->menuAction();
    addSampleMenu(*menu);
    addDemoMenu(*menu);
    menu->addSeparator();
    menu->addActions(documents.saveCommands());
    menu->addSeparator();
    m_savePicture = menu->addAction(tr("Save Pict&ure..."), this, &MainMenus::pictureWanted);
    m_savePicture->setObjectName(QStringLiteral("savePicture"));
    menu->addSeparator();
    setKeys(*menu->addAction(tr("&Quit"), qApp, &QApplication::closeAllWindows),
            QKeySequence::Quit);
}

void MainMenus::addSampleMenu(QMenu& menu)
{
    const std::vector<host::io::Sample> samples = host::io::sampleList();
    if (samples.empty())
        return;
    QMenu* sampleMenu = menu.addMenu(tr("Sa&mples"));
    for (const host::io::Sample& sample : samples)
        sampleMenu->addAction(sample.title, this,
                              [this, files = sample.files] { Q_EMIT filesWanted(files); });
    m_openCommands << sampleMenu->menuAction();
}

static QString demoTitle(const QString& name)
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
    QMenu* demos = menu.addMenu(tr("&Demonstration Data"));
    for (const std::string& demo : samples::demoNames()) {
        const QString name = QString::fromStdString(demo);
        demos->addAction(demoTitle(name), this, [this, name] { Q_EMIT demoWanted(name); });
    }
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
        action->setStatusTip(files.join(QStringLiteral(", ")));
    }
    if (entries.isEmpty())
        menu.addAction(tr("No Files Yet"))->setEnabled(false);
}

void MainMenus::makeEditMenu()
{
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Edit"));
    m_undo = menu->addAction(commandIcon("edit-undo"), tr("&Undo"), this,
                             [] { Document::instance().undo().undo(); });
    m_redo = menu->addAction(commandIcon("edit-redo"), tr("&Redo"), this,
                             [] { Document::instance().undo().redo(); });
    m_undo->setShortcuts(QKeySequence::Undo);
    m_redo->setShortcuts(QKeySequence::Redo);
    for (QAction* action : {m_undo, m_redo})
        action->setShortcutContext(Qt::ApplicationShortcut);
}

void MainMenus::makePlotMenu(QAction& details, const QList<QAction*>& layers)
{
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Plot"));
    menu->addAction(&m_styleDialog);
    menu->addAction(&details);
    addDetailsMenu(*menu);
    menu->addSeparator();
    menu->addActions(layers);
    menu->addSeparator();
    m_fitView = menu->addAction(tr("&Fit View"), this, &MainMenus::fitWanted);
    setKeys(*m_fitView, QKeySequence(QStringLiteral("Ctrl+0")));
}

void MainMenus::addDetailsMenu(QMenu& menu)
{
    m_details = menu.addMenu(tr("D&etails Of"));
    for (const DetailPage& page : detailPages())
        m_detailPages.insert(&page, m_details->addAction(shownTitle(page), this, [this, &page] {
            Q_EMIT detailsWanted(QLatin1String(page.name));
        }));
}

void MainMenus::makeHelpMenu()
{
    QMenu* menu = m_window.menuBar()->addMenu(tr("&Help"));
    menu->addActions((new HelpCommands(this))->actions());
    menu->addSeparator();
    menu->addAction(tr("&About corvala"), this, [this] {
        auto* about =
            new QMessageBox(QMessageBox::Information, tr("About corvala"),
                            tr("corvala %1\nPlots field data and edits the style of their zones.\n"
                               "Licence: GPL-3.0-or-later")
                                .arg(QApplication::applicationVersion()),
                            QMessageBox::Close, &m_window);
        about->setAttribute(Qt::WA_DeleteOnClose);
        about->open();
    });
    menu->addAction(tr("About &Qt"), qApp, &QApplication::aboutQt);
}

void MainMenus::makeToolBar(QAction& save)
{
    m_toolBar = m_window.addToolBar(tr("Main"));
    m_toolBar->setObjectName(QStringLiteral("mainBar"));
    m_toolBar->addActions({m_openCommands.first(), &save, m_undo, m_redo});
    m_toolBar->addSeparator();
    m_toolBar->addAction(&m_styleDialog);
}

void MainMenus::enableOpening(bool enabled)
{
    for (QAction* command : m_openCommands)
        command->setEnabled(enabled);
}

void MainMenus::refresh(bool hasPlot)
{
    const host::Frame* frame = Document::instance().activeFrame();
    m_styleDialog.setText(frame && frame->isLinePlot() ? tr("&Mapping Style...")
                                                       : tr("&Zone Style..."));
    m_savePicture->setEnabled(frame && frame->hasData());
    m_fitView->setEnabled(hasPlot);
    m_details->setEnabled(hasPlot);
    for (auto page = m_detailPages.begin(); page != m_detailPages.end(); ++page)
        page.value()->setVisible(hasPlot && page.key()->isFor(*frame));
    refreshUndo();
}

static QString commandText(const QString& command, const QString& step)
{
    return step.isEmpty() ? command : MainMenus::tr("%1 %2").arg(command, withoutAccessKey(step));
}

void MainMenus::refreshUndo()
{
    const QUndoStack& stack = Document::instance().undo().stack();
    m_undo->setEnabled(stack.canUndo());
    m_undo->setText(commandText(tr("&Undo"), stack.undoText()));
    m_redo->setEnabled(stack.canRedo());
    m_redo->setText(commandText(tr("&Redo"), stack.redoText()));
}

} // namespace corvala::app
