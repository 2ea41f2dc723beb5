// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/style/number_set.h"

#include <QKeySequence>
#include <QObject>

#include <functional>
#include <vector>

class QAction;
class QMainWindow;
class QMenu;
class QShortcut;

namespace corvala::plot {
class Canvas;
class FrameView;
enum class ViewPreset;
}

namespace corvala::app {

class DialogRows;
class NoticeBar;

/// The View menu: what is seen of the plot, and how.
class ViewCommands : public QObject
{
    Q_OBJECT

public:
    /// Puts the menu before another one. The window, which owns the commands, the view of its plot
    /// (may be null) and the notice bar must outlive them.
    ViewCommands(QMainWindow& window, plot::FrameView* view, NoticeBar& notice, QMenu& before);

    /// Shows what the document says.
    void refresh();
    /// Tells when nothing is in view; call when the picture is complete.
    void tellWhenLost();

    QAction& fit() const { return *m_fit; }
    QAction& zoomBox() const { return *m_zoomBox; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QAction* add(const char* name, const QString& text, const QString& tip,
                 const QKeySequence& keys, const std::function<void()>& command);
    void addZooms();
    void addPresets();
    void addPreset(plot::ViewPreset preset, const char* name, const QString& text,
                   const QString& tip, const char* keys, const char* icon);
    void addWindowCommands();
    void change(const std::function<void(plot::Canvas&)>& action);
    void zoomBy(double factor);
    void zoomToSelected();
    void setFullScreen(bool isFull);
    void outline();
    void leave();
    void showModes();

    QMainWindow& m_window;
    plot::FrameView* m_view;
    NoticeBar& m_notice;
    DialogRows* m_rows; ///< owned by the window
    QShortcut* m_escape; ///< owned by the window
    QMenu* m_menu; // owned by the menu bar
    // Owned by the menu.
    QAction* m_zoomBox = nullptr;
    QAction* m_fit = nullptr;
    QAction* m_previous = nullptr;
    QAction* m_parallel = nullptr;
    QAction* m_fullScreen = nullptr;
    QAction* m_outlines = nullptr;
    std::vector<QAction*> m_ofPlots; ///< work while there is a plot
    std::vector<QAction*> m_ofBoxes; ///< where a part of it can fill it
    std::vector<QAction*> m_ofSpace; ///< where it can be turned
    int m_note = 0; ///< in the notice bar
};

} // namespace corvala::app
