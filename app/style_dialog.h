// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sdk/dialogs_common/dialog_initialization.h"

class QRect;
class QWidget;

namespace corvala::app {

/// Null until the dialog is first opened.
QWidget* existingStyleDialog();

/// Opens the style dialog on the main window, or brings it to the front.
QWidget& openStyleDialog(QWidget& mainWindow,
                         corvala::dialogs::common::DialogInitialization_e initialization);

/// Where the dialog hides least of the main window, and in this least of the plot, wholly on the
/// screen; narrower where it would hide most of the plot. The corner of its frame and the size
/// within; all in global pixels.
QRect placeHidingLeast(const QWidget& mainWindow, const QWidget& dialog, const QRect& screen);

/// Offers all tabs of line plots, the indices included, which the dialog leaves out unless told.
void offerAllLineTabs();

} // namespace corvala::app
