// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/document_observer.h"
#include "host/io/read_request.h"
#include "sdk/base/types.h"
#include "sdk/dialogs_common/dialog_initialization.h"

#include <QImage>
#include <QMainWindow>
#include <QTimer>

class QFrame;
class QLabel;

namespace corvala::plot {
class FrameView;
}

namespace corvala::app {

class ContourBar;
class DataCommands;
class DetailsDock;
class DocumentCommands;
class LayerBar;
class LayerNotes;
class MainMenus;
class NoticeBar;
class PictureNotes;
class PlotArea;
class PlotTypeChoice;
class StyleDialogCommand;
class TimeBar;
class ViewCommands;
class WorkProgress;

/// The window with the plot of the active frame, and the commands on the document.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Reads the files, or the data in a folder, into the active frame while the window goes on.
    /// Ignored while a reading runs; the commands that lead here are disabled then.
    void openFiles(const QStringList& files);
    void openFiles(const host::io::ReadRequest& request);
    void openDemo(const QString& name);
    /// As DocumentCommands::askBeforeLosing, and before the window closes.
    void askBeforeLosing();
    void openStyleDialog(corvala::dialogs::common::DialogInitialization_e initialization);
    /// Opens the style dialog, now or with the first data.
    void openStyleDialogWithData();
    const QAction& styleDialogCommand() const; ///< checked while the style dialog is open

    /// Keeps its place from run to run from now on, beginning with that of the former run; to be
    /// called before it is shown.
    void restore();

    /// As PlotArea::saveCanvas.
    QString saveCanvas(const QString& file);

Q_SIGNALS:
    /// Files that openFiles was asked for are opened, or could not be, or the user cancelled.
    void openingEnded(bool opened);

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void makeCentre();
    void makeBars();
    void connectOpener();
    void connectCanvas();
    void makeStartPage(plot::FrameView& view);

    void refreshTitle();
    void refresh();
    void showOpened();
    void begin(const QString& work);
    void awaitPicture();
    void cancelWork();

    void pick(CvlInt64 number, bool activate);
    void showProblem(const QString& text);

    DocumentObserver m_observer;
    QTimer m_picture; ///< runs until the picture is complete
    // Owned by Qt.
    PlotArea* m_plotArea = nullptr;
    NoticeBar* m_notice = nullptr;
    LayerNotes* m_layerNotes = nullptr;
    PictureNotes* m_pictureNotes = nullptr;
    PlotTypeChoice* m_plotType = nullptr;
    LayerBar* m_layerBar = nullptr;
    ContourBar* m_contourBar = nullptr;
    TimeBar* m_timeBar = nullptr;
    DetailsDock* m_details = nullptr;
    DataCommands* m_data = nullptr;
    DocumentCommands* m_documents = nullptr;
    StyleDialogCommand* m_styleDialog = nullptr;
    MainMenus* m_menus = nullptr;
    ViewCommands* m_views = nullptr;
    WorkProgress* m_work = nullptr; ///< of reading and drawing
    QLabel* m_picked = nullptr; ///< what was clicked
    QFrame* m_pickEnd = nullptr; ///< a line beside it
    QLabel* m_probe = nullptr; ///< what the mouse is over
    QLabel* m_summary = nullptr;
};

} // namespace corvala::app
