// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QAction;
class QMainWindow;

namespace corvala::app {

/// Keeps from run to run which panels and toolbars are open, and whether the style dialog is. Made
/// by runs with a user only.
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

/// Brings back the panels and toolbars of the former run. To be called before the window is shown.
void restorePanels(QMainWindow& window);

/// Whether the style dialog was open at the end of the former run; false without one.
bool wasStyleDialogOpen();

} // namespace corvala::app
