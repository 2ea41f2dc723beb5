// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QAction;
class QKeySequence;
class QString;

namespace corvala::app {

/// Makes a command say what it does: in the status bar, and with its keys in its tool tip. To be
/// called again when its keys change.
void describe(QAction& command, const QString& what);

/// Gives a command an object name, keys that work in the style dialog too, and a description.
void setUpCommand(QAction& command, const char* name, const QKeySequence& keys,
                  const QString& what);

} // namespace corvala::app
