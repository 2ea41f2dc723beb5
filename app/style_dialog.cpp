// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/style_dialog.h"

#include "sdk/dialogs_common/launch_dialog_action.h"
#include "zonestyle/dialog/zone_style_dialog.h"

#include <QCoreApplication>
#include <QRect>
#include <QScreen>

#include <algorithm>
#include <set>

namespace corvala::app {

using namespace corvala::dialogs::common;
using corvala::sdk::ui::dialogs::ZoneStyleDialog;

static constexpr int kNarrowestWindow = 480;

/// The dialog becomes wider with the number of its tabs.
static constexpr int kRoomToGrow = 40;

/// When it is first shown it covers the main window as little as the screen allows.
static ZoneStyleDialog& styleDialog(QWidget& mainWindow, DialogInitialization_e initialization)
{
    ZoneStyleDialog& dialog = ZoneStyleDialog::getInstance(mainWindow, initialization);
    if (!dialog.testAttribute(Qt::WA_Moved)) {
        const QRect screen = mainWindow.screen()->availableGeometry();
        const QRect window = mainWindow.frameGeometry();
        const int width = dialog.sizeHint().expandedTo(dialog.minimumSize()).width();
        const int right = std::min(window.right() + 1, screen.right() - width - kRoomToGrow);
        dialog.move(std::max(right, screen.left()), std::max(window.top(), screen.top()));
    }
    return dialog;
}

void offerAllLineTabs()
{
    std::set<ZoneStyleDialog::MappingStyleTab_e> tabs;
    for (int tab = ZoneStyleDialog::MappingStyleTab_Definitions;
         tab <= ZoneStyleDialog::MappingStyleTab_Indices; ++tab)
        tabs.insert(static_cast<ZoneStyleDialog::MappingStyleTab_e>(tab));
    ZoneStyleDialog::setAvailableMappingStyleTabs(tabs);
}

QWidget& openStyleDialog(QWidget& mainWindow, DialogInitialization_e initialization)
{
    ZoneStyleDialog& dialog = styleDialog(mainWindow, initialization);
    dialog.launch();
    return dialog;
}

/// The least size of a window, with its frame.
static QSize leastSize(const QWidget& window)
{
    return window.minimumSizeHint().expandedTo(window.minimumSize()) + window.frameGeometry().size()
        - window.size();
}

/// Gives a window a width with its frame, and its place in the height of an area.
static void place(QWidget& window, const QRect& area, int left, int width)
{
    const QSize frame = window.frameGeometry().size() - window.size();
    const int height = std::min(window.height(), area.height() - frame.height());
    window.resize(width - frame.width(), height);
    const int free = std::max(area.height() - window.height() - frame.height(), 0);
    window.move(left, area.top() + free / 2);
}

void placeSideBySide(QWidget& mainWindow, QWidget& dialog, const QRect& screen)
{
    const QRect area = screen.adjusted(0, 0, -kRoomToGrow, 0);
    const int leastOfDialog = std::min(leastSize(dialog).width(), screen.width());
    const int dialogWidth = std::max(
        leastOfDialog, std::min(dialog.frameGeometry().width(), area.width() - kNarrowestWindow));
    // Where there is no room for both the dialog lies over the window, which is as wide as it
    // likes.
    const int room = area.width() - dialogWidth;
    const int windowWidth = std::min(mainWindow.frameGeometry().width(),
                                     room >= kNarrowestWindow ? room : screen.width());
    const int free = area.width() - windowWidth - dialogWidth;
    const int left = area.left() + std::max(free, 0) / 2;
    place(mainWindow, screen, left, windowWidth);
    const int right = std::min(left + windowWidth, screen.left() + screen.width() - dialogWidth);
    place(dialog, screen, right, dialogWidth);
}

QAction* makeStyleDialogAction(QWidget& mainWindow)
{
    auto* action = new LaunchDialogAction(
        QCoreApplication::translate("corvala::app::MainMenus", "&Zone Style..."),
        ZoneStyleDialog::relevance(),
        [&mainWindow]() -> DialogInterface& {
            return styleDialog(mainWindow, DialogInitialization_None);
        },
        &mainWindow);
    action->setShortcut(QKeySequence(QStringLiteral("Ctrl+E")));
    action->setShortcutContext(Qt::ApplicationShortcut);
    return action;
}

} // namespace corvala::app
