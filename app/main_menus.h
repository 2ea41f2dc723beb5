// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;

namespace corvala::app {

class DocumentCommands;
struct DetailPage;

/// The menus of the main window and its toolbar of common commands. Says what the user wants; the
/// window does it.
class MainMenus : public QObject
{
    Q_OBJECT

public:
    /// Fills the menu bar and adds the toolbar. `documents` has commands of its own; `styleDialog`
    /// opens the style dialog, `details` the panel of details; `layers` are the layers of the plot.
    MainMenus(QMainWindow& window, const DocumentCommands& documents, QAction& styleDialog,
              QAction& details, const QList<QAction*>& layers);

    QToolBar& toolBar() const { return *m_toolBar; } ///< of common commands
    QMenu& plotMenu() const { return *m_plotMenu; }
    void addPlotTypeMenu(const QList<QAction*>& types);
    void addTimeMenu(const QList<QAction*>& commands);
    /// The commands that bring other data.
    void enableOpening(bool enabled);
    /// Shows what the document says.
    void refresh(bool hasPlot);

Q_SIGNALS:
    void openWanted();
    void plot3DWanted();
    void tableWanted();
    void folderWanted();
    void moreDataWanted();
    void closingWanted();
    void filesWanted(const QStringList& files);
    void demoWanted(const QString& name);
    void pictureWanted();
    void pictureCopyWanted();
    void detailsWanted(const QString& page); ///< the name of the page
    void contourVariableWanted(); ///< is to be chosen

private:
    void makeFileMenu(const DocumentCommands& documents);
    void addOpenCommands(QMenu& menu);
    void addSampleMenu(QMenu& menu);
    void addDemoMenu(QMenu& menu);
    void fillRecentMenu(QMenu& menu);
    void makeEditMenu();
    void makePlotMenu(QAction& details, const QList<QAction*>& layers);
    void addContourCommand(QMenu& menu);
    void addDetailsMenu(QMenu& menu);
    void makeHelpMenu();
    void showAbout();
    void makeToolBar(QAction& save);
    void addDataCommands(QMenu& menu);
    void enableDataCommands();
    void fill(QMenu& menu, const QList<QAction*>& commands);
    void refreshUndo();

    QMainWindow& m_window;
    QAction& m_styleDialog;
    QToolBar* m_toolBar = nullptr; ///< owned by the window
    // Owned by the menus.
    QList<QAction*> m_openCommands; ///< the first one is in the toolbar too
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QMenu* m_plotMenu = nullptr;
    QMenu* m_details = nullptr; ///< the pages of details
    QHash<const DetailPage*, QAction*> m_detailPages;
    QAction* m_savePicture = nullptr;
    QAction* m_addData = nullptr;
    QAction* m_closeData = nullptr;
    bool m_isOpeningEnabled = true;
    QAction* m_copyPicture = nullptr;
    QAction* m_contourVariable = nullptr;
};

/// Files that belong together, in a few words.
QString shownName(const QStringList& files);

/// What a menu calls embedded data.
QString demoTitle(const QString& name);

} // namespace corvala::app
