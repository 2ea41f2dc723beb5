// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/data_opening.h"
#include "app/document_observer.h"
#include "sdk/base/types.h"
#include "sdk/dialogs_common/dialog_initialization.h"

#include <QImage>
#include <QMainWindow>

#include <functional>

class QAction;
class QLabel;
class QMenu;

namespace corvala::app {

class LayerBar;
class NoticeBar;
class PlotArea;
class TimeBar;
class WorkProgress;

/// The window with the plot of the active frame, and the commands on the document.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Reads the files into the active frame while the window goes on. Ignored while a reading
    /// runs; the commands that lead here are disabled then.
    void openFiles(const QStringList& files, const host::io::Plot3DLayout& plot3d = {});
    void openDemo(const QString& name);
    void openStyleDialog(corvala::dialogs::common::DialogInitialization_e initialization);
    /// Opens the style dialog beside the plot, as at the start of the program.
    void openStyleDialogBeside();

    /// Who tells the user what went wrong; an empty handler is the message box of the window.
    void setProblemHandler(std::function<void(const QString& text)> handler);

    /// The plot as it is on the screen. Null, with the reason in `error`, when it cannot be drawn.
    QImage canvasImage(QString* error);

Q_SIGNALS:
    /// Files that openFiles was asked for are opened, or could not be, or the user cancelled.
    void openingEnded(bool opened);

private:
    void makeFileMenu();
    void addSampleMenu(QMenu& menu);
    void addDemoMenu(QMenu& menu);
    void fillRecentMenu(QMenu& menu);
    void makeEditMenu();
    void makePlotMenu();
    void makeHelpMenu();
    void makeToolBars();
    void makeCentre();
    void connectOpener();
    void setReading(bool isReading);
    void connectCanvas();

    void refresh();
    void refreshUndo();

    void chooseFiles();
    void choosePlot3DFiles();
    void changePlot3DLayout(const host::io::ReadRequest& request,
                            const host::io::Plot3DLayout& detected);
    void tellOpened(const host::io::ReadResult& result);
    void savePicture();
    void pickZone(CvlInt64 zone, bool activate);
    void pickLineMap(CvlInt64 lineMap, bool activate);
    void pick(int type, CvlInt64 number, bool activate);
    void showProblem(const QString& text);

    DataOpener m_opener;
    DocumentObserver m_observer;
    std::function<void(const QString&)> m_problemHandler;
    // Owned by Qt.
    PlotArea* m_plotArea = nullptr;
    NoticeBar* m_notice = nullptr;
    LayerBar* m_layerBar = nullptr;
    TimeBar* m_timeBar = nullptr;
    WorkProgress* m_reading = nullptr;
    WorkProgress* m_drawing = nullptr;
    QLabel* m_summary = nullptr;
    QList<QAction*> m_openCommands; ///< the first one is in the toolbar too
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_fitView = nullptr;
    QAction* m_savePicture = nullptr;
    QAction* m_styleDialog = nullptr;
};

} // namespace corvala::app
