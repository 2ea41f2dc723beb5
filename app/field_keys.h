// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QAction;

namespace corvala::app {

/// Makes the first keys of a command work in fields in which text is typed, too, where some
/// desktops give them another meaning. To be called when it has them.
void keepKeysInFields(QAction& command);

} // namespace corvala::app
