// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QList>

#include <nlohmann/json.hpp>

class QAction;
class QMenu;
class QWidget;

namespace corvala::play {

/// The entries as scripts and reports show them: {text, enabled}, {separator: true} or
/// {widget, chooserFlag}. `host` parents the widgets that are made for a look at widget actions.
nlohmann::json describeActions(const QList<QAction*>& actions, QWidget* host);

/// Chooses an entry of a list of actions by its text, or by its position from 1 among the
/// entries that are no separators. Throws a ScriptError when there is none, or it is disabled.
QAction* chosenAction(const QList<QAction*>& actions, const nlohmann::json& choice);

/// Clicks the entry of an open menu; null closes the menu without choosing.
void chooseInMenu(QMenu& menu, const nlohmann::json& choice);

/// Clicks a colour in the chooser that the open menu holds.
void chooseColorInMenu(QMenu& menu, int color);

} // namespace corvala::play
