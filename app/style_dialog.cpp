// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/style_dialog.h"

#include "app/window_memory.h"
#include "app/window_place.h"
#include "zonestyle/dialog/zone_style_dialog.h"

#include <QMainWindow>
#include <QRect>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <set>

namespace corvala::app {

using namespace corvala::dialogs::common;
using corvala::sdk::ui::dialogs::ZoneStyleDialog;

static constexpr int kNarrowestWindow = 380;

/// The dialog becomes wider with what its status line and its tabs say.
static constexpr int kRoomToGrow = 50;

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

/// After a window is shown; the window manager has told its frame by then.
static constexpr int kFrameMilliseconds = 300;

QWidget& openStyleDialog(QWidget& mainWindow, DialogInitialization_e initialization)
{
    const bool isFirst = !existingStyleDialog();
    ZoneStyleDialog& dialog = ZoneStyleDialog::getInstance(mainWindow, initialization);
    dialog.launch();
    if (!isFirst)
        return dialog;
    dialog.allowNarrow(); // its preferred size is chosen
    if (restoreStyleDialog(dialog))
        keepOnScreen(dialog);
    else
        placeHidingLeast(mainWindow, plotOf(mainWindow), dialog,
                         mainWindow.screen()->availableGeometry());
    QTimer::singleShot(kFrameMilliseconds, &dialog, [&dialog] { keepOnScreen(dialog); });
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

void placeHidingLeast(const QWidget& mainWindow, const QRect& plot, QWidget& dialog,
                      const QRect& screen)
{
    const QSize frame = frameOf(dialog);
    const QRect window = mainWindow.frameGeometry();
    QSize size = (dialog.size() + frame).boundedTo(screen.size());
    QRect place = placeHidingLeast(size, window, plot, screen);
    if (2 * areaOf(place & plot) > areaOf(plot)) {
        const int narrow = std::max(leastSize(dialog).width(), screen.width() / 2);
        size.setWidth(std::min(size.width(), narrow));
        place = placeHidingLeast(size, window, plot, screen);
    }
    dialog.resize(place.size() - frame);
    dialog.move(place.topLeft());
}

/// Gives a window a width with its frame, and its place in the height of an area.
static void place(QWidget& window, const QRect& area, int left, int width)
{
    const QSize frame = frameOf(window);
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
        leastOfDialog,
        std::min(dialog.width() + frameOf(dialog).width(), area.width() - kNarrowestWindow));
    // Where there is no room for both the dialog lies over the window, which is as wide as it
    // likes.
    const int room = area.width() - dialogWidth;
    const int windowWidth = std::min(mainWindow.width() + frameOf(mainWindow).width(),
                                     room >= kNarrowestWindow ? room : screen.width());
    const int free = area.width() - windowWidth - dialogWidth;
    const int left = area.left() + std::max(free, 0) / 2;
    place(mainWindow, screen, left, windowWidth);
    const int right = std::min(left + windowWidth, screen.left() + screen.width() - dialogWidth);
    place(dialog, screen, right, dialogWidth);
}

} // namespace corvala::app
