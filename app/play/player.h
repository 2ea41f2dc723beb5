// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/play/script.h"

namespace corvala::app {
class MainWindow;
}

namespace corvala::app::play {

/// Plays a script in the program. Reads the whole script first: a line that is wrong by itself
/// stops it before anything happens. Empty on success, else "SCRIPT:LINE: message".
QString playScript(const QString& file, MainWindow& window);

} // namespace corvala::app::play
