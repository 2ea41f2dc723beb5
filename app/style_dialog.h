// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sdk/dialogs_common/dialog_initialization.h"

class QRect;
class QWidget;

namespace corvala::app {

/// Null until the dialog is first opened.
QWidget* existingStyleDialog();

/// Opens the style dialog on the main window, or brings it to the front. At first it comes to where
/// it was in the former run, else to where it hides least of the plot.
QWidget& openStyleDialog(QWidget& mainWindow,
                         corvala::dialogs::common::DialogInitialization_e initialization);

/// Moves the window and the dialog side by side, the dialog at the right, and makes them narrower
/// where the screen has no room for both; where they cannot be that narrow the dialog lies over
/// the window.
void placeSideBySide(QWidget& mainWindow, QWidget& dialog, const QRect& screen);

/// Moves the dialog to where it hides least of the main window, and in this least of `plot`, wholly
/// on the screen; makes it narrower where it would hide most of the plot. All in global pixels.
void placeHidingLeast(const QWidget& mainWindow, const QRect& plot, QWidget& dialog,
                      const QRect& screen);

/// Offers all tabs of line plots, the indices included, which the dialog leaves out unless told.
void offerAllLineTabs();

} // namespace corvala::app
