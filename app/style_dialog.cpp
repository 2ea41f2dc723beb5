// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/style_dialog.h"

#include "sdk/dialogs_common/launch_dialog_action.h"
#include "zonestyle/dialog/zone_style_dialog.h"

#include <QCoreApplication>
#include <QRect>
#include <QScreen>

#include <algorithm>

namespace corvala::app {

using namespace corvala::dialogs::common;
using corvala::sdk::ui::dialogs::ZoneStyleDialog;

static constexpr int kNarrowestWindow = 480;

/// The dialog becomes wider with the number of its tabs.
static constexpr int kRoomToGrow = 40;

QWidget& openStyleDialog(QWidget& mainWindow, DialogInitialization_e initialization)
{
    ZoneStyleDialog& dialog = ZoneStyleDialog::getInstance(mainWindow, initialization);
    dialog.launch();
    return dialog;
}

/// Gives a window its place in the height of an area, and a width with its frame.
static void place(QWidget& window, const QRect& area, int left, int width)
{
    const QSize frame = window.frameGeometry().size() - window.size();
    const int height = std::min(window.height(), area.height() - frame.height());
    window.resize(width - frame.width(), height);
    window.move(left, area.top() + (area.height() - height - frame.height()) / 2);
}

void placeSideBySide(QWidget& mainWindow, QWidget& dialog)
{
    const QScreen* screen = mainWindow.screen();
    if (!screen)
        return;
    const QRect area = screen->availableGeometry().adjusted(0, 0, -kRoomToGrow, 0);
    const int dialogWidth =
        std::min(dialog.frameGeometry().width(), area.width() - kNarrowestWindow);
    const int windowWidth =
        std::min(mainWindow.frameGeometry().width(), area.width() - dialogWidth);
    const int left = area.left() + (area.width() - windowWidth - dialogWidth) / 2;
    place(mainWindow, area, left, windowWidth);
    place(dialog, area, left + windowWidth, dialogWidth);
}

QAction* makeStyleDialogAction(QWidget& mainWindow)
{
    auto* action = new LaunchDialogAction(
        QCoreApplication::translate("corvala::app::MainMenus", "&Zone Style..."),
        ZoneStyleDialog::relevance(),
        [&mainWindow]() -> DialogInterface& {
            return ZoneStyleDialog::getInstance(mainWindow, DialogInitialization_None);
        },
        &mainWindow);
    action->setShortcut(QKeySequence(QStringLiteral("Ctrl+E")));
    action->setShortcutContext(Qt::ApplicationShortcut);
    return action;
}

} // namespace corvala::app
