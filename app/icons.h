// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace corvala::app {

/// The icon of a command by its name in the freedesktop icon naming, such as "document-open", or a
/// name of our own where that has none: the desktop theme's, else ours (icons/NAME.svg), whose dark
/// strokes become light on a dark palette.
QIcon commandIcon(const char* name);

/// The icon of the program, in all sizes that desktops ask for.
QIcon programIcon();

} // namespace corvala::app
