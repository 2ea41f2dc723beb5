// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window_place.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace corvala::app {

QSize frameOf(const QWidget& window)
{
    constexpr QSize kLikely(10, 36);
    const QSize frame = window.frameGeometry().size() - window.size();
    return frame.isEmpty() ? kLikely : frame;
}

void keepOnScreen(QWidget& window)
{
    const QScreen* const shownOn = QGuiApplication::screenAt(window.geometry().center());
    const QRect screen = (shownOn ? shownOn : window.screen())->availableGeometry();
    const QSize frame = frameOf(window);
    const QSize most = screen.size() - frame;
    if (window.width() > most.width() || window.height() > most.height())
        window.resize(window.size().boundedTo(most));
    const QRect place(window.pos(), window.size() + frame);
    if (!screen.contains(place))
        window.move(
            std::max(screen.left(), std::min(place.left(), screen.right() - place.width())),
            std::max(screen.top(), std::min(place.top(), screen.bottom() - place.height())));
}

} // namespace corvala::app
