// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>

class QWidget;

namespace corvala::app {

/// What the window manager adds to the size of a window, or likely does where it has not answered
/// yet.
QSize frameOf(const QWidget& window);

/// Moves the window, and makes it smaller as far as it can be, so that all of it is on its screen.
void keepOnScreen(QWidget& window);

} // namespace corvala::app
