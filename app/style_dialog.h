// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sdk/dialogs_common/dialog_initialization.h"

class QAction;
class QObject;
class QRect;
class QWidget;

namespace corvala::app {

/// Opens the style dialog on the main window, or brings it to the front.
QWidget& openStyleDialog(QWidget& mainWindow,
                         corvala::dialogs::common::DialogInitialization_e initialization);

/// Moves the window and the dialog side by side, the dialog at the right, and makes them narrower
/// where the screen has no room for both; where they cannot be that narrow the dialog lies over
/// the window.
void placeSideBySide(QWidget& mainWindow, QWidget& dialog, const QRect& screen);

/// Offers all tabs of line plots, the indices included, which the dialog leaves out unless told.
void offerAllLineTabs();

/// The command that opens the dialog; enabled while the active frame has styles to edit.
QAction* makeStyleDialogAction(QWidget& mainWindow);

} // namespace corvala::app
