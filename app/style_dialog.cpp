// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/style_dialog.h"

#include "sdk/dialogs_common/launch_dialog_action.h"
#include "zonestyle/dialog/zone_style_dialog.h"

#include <QCoreApplication>
#include <QScreen>

#include <algorithm>

namespace corvala::app {

using namespace corvala::dialogs::common;
using corvala::sdk::ui::dialogs::ZoneStyleDialog;

static constexpr int kNarrowestWindow = 480;

QWidget& openStyleDialog(QWidget& mainWindow, DialogInitialization_e initialization)
{
    ZoneStyleDialog& dialog = ZoneStyleDialog::getInstance(mainWindow, initialization);
    dialog.launch();
    return dialog;
}

void placeSideBySide(QWidget& mainWindow, QWidget& dialog)
{
    const QScreen* screen = mainWindow.screen();
    if (!screen)
        return;
    const QRect area = screen->availableGeometry();
    const QSize frame = mainWindow.frameGeometry().size() - mainWindow.size();
    const int dialogWidth = std::min(dialog.frameGeometry().width(), area.width() / 2);
    const int most = area.width() - dialogWidth - frame.width();
    const int width = std::max(kNarrowestWindow, std::min(mainWindow.width(), most));
    mainWindow.resize(width, std::min(mainWindow.height(), area.height() - frame.height()));
    const int left = area.left() + std::max(0, most - width) / 2;
    const int top =
        area.top() + std::max(0, area.height() - mainWindow.frameGeometry().height()) / 2;
    mainWindow.move(left, top);
    dialog.move(left + width + frame.width(), top);
}

QAction* makeStyleDialogAction(QWidget& mainWindow)
{
    auto* action = new LaunchDialogAction(
        QCoreApplication::translate("MainWindow", "&Zone Style..."), ZoneStyleDialog::relevance(),
        [&mainWindow]() -> DialogInterface& {
            return ZoneStyleDialog::getInstance(mainWindow, DialogInitialization_None);
        },
        &mainWindow);
    action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
    action->setShortcutContext(Qt::ApplicationShortcut);
    return action;
}

} // namespace corvala::app
