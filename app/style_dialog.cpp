// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/style_dialog.h"

#include "app/window_place.h"
#include "zonestyle/dialog/zone_style_dialog.h"

#include <QMainWindow>
#include <QRect>
#include <QScreen>

#include <algorithm>
#include <set>

namespace corvala::app {

using namespace corvala::dialogs::common;
using corvala::sdk::ui::dialogs::ZoneStyleDialog;

void offerAllLineTabs()
{
    std::set<ZoneStyleDialog::MappingStyleTab_e> tabs;
    for (int tab = ZoneStyleDialog::MappingStyleTab_Definitions;
         tab <= ZoneStyleDialog::MappingStyleTab_Indices; ++tab)
        tabs.insert(static_cast<ZoneStyleDialog::MappingStyleTab_e>(tab));
    ZoneStyleDialog::setAvailableMappingStyleTabs(tabs);
}

QWidget* existingStyleDialog()
{
    return ZoneStyleDialog::m_dialogInstance;
}

static QRect plotOf(const QWidget& mainWindow)
{
    const auto* const window = qobject_cast<const QMainWindow*>(&mainWindow);
    const QWidget* const plot = window ? window->centralWidget() : nullptr;
    return plot ? QRect(plot->mapToGlobal({0, 0}), plot->size()) : mainWindow.frameGeometry();
}

QWidget& openStyleDialog(QWidget& mainWindow, DialogInitialization_e initialization)
{
    ZoneStyleDialog& dialog = ZoneStyleDialog::getInstance(mainWindow, initialization);
    dialog.launch();
    return dialog;
}

/// The least size of a window, with its frame.
static QSize leastSize(const QWidget& window)
{
    return window.minimumSizeHint().expandedTo(window.minimumSize()) + frameOf(window);
}

static int areaOf(const QRect& area)
{
    return area.isEmpty() ? 0 : area.width() * area.height();
}

/// The place of a window of some size, of those along the edges of the screen and of the main
/// window.
static QRect placeHidingLeast(const QSize& size, const QRect& window, const QRect& plot,
                              const QRect& screen)
{
    const QRect room(screen.topLeft(), screen.size() - size + QSize(1, 1));
    QRect best;
    for (const int x :
         {window.right() + 1, window.left() - size.width(), room.right(), room.left()})
        for (const int y :
             {window.top(), window.bottom() + 1, window.top() - size.height(), room.bottom()}) {
            const QRect place(std::clamp(x, room.left(), std::max(room.left(), room.right())),
                              std::clamp(y, room.top(), std::max(room.top(), room.bottom())),
                              size.width(), size.height());
            const auto hides = [&](const QRect& some) {
                return std::pair(areaOf(some & plot), areaOf(some & window));
            };
            if (best.isNull() || hides(place) < hides(best))
                best = place;
        }
    return best;
}

QRect placeHidingLeast(const QWidget& mainWindow, const QWidget& dialog, const QRect& screen)
{
    const QRect plot = plotOf(mainWindow);
    const QSize frame = frameOf(dialog);
    const QRect window = mainWindow.frameGeometry();
    QSize size = (dialog.size() + frame).boundedTo(screen.size());
    QRect place = placeHidingLeast(size, window, plot, screen);
    if (2 * areaOf(place & plot) > areaOf(plot)) {
        const int narrow = std::max(leastSize(dialog).width(), screen.width() / 2);
        size.setWidth(std::min(size.width(), narrow));
        place = placeHidingLeast(size, window, plot, screen);
    }
    return {place.topLeft(), place.size() - frame};
}

} // namespace corvala::app
