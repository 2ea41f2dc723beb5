// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QAction;
class QMainWindow;
class QWidget;

namespace corvala::app {

/// Keeps from run to run where the windows of the program stand, how large they are, and which
/// panels and toolbars are open. Made by runs with a user only: batch work leaves no traces.
class WindowMemory : public QObject
{
    Q_OBJECT

public:
    /// Writes when the window closes or the program ends. `styleDialog` is the command that is
    /// checked while the style dialog is open. Both must outlive the memory.
    WindowMemory(QMainWindow& window, const QAction& styleDialog);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void save();

    QMainWindow& m_window;
    const QAction& m_styleDialog;
    bool m_isDialogOpen = false; ///< also while all windows close
};

/// Brings the window to where it was in the former run, wholly on a screen of today, with its
/// panels and toolbars. To be called before it is shown.
void restoreWindow(QMainWindow& window);

/// A former run has shown the style dialog.
bool knowsStyleDialog();

/// Brings the style dialog, which is shown, to where it was; false when no former run showed it.
bool restoreStyleDialog(QWidget& dialog);

/// Whether the style dialog was open at the end of the former run; true without one.
bool wasStyleDialogOpen();

} // namespace corvala::app
