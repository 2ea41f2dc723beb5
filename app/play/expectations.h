// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/play/stage.h"

namespace corvala::app::play {

/// Compares what the program shows with what a script expects; throws a ScriptError that says
/// both when they differ.
void compare(const QString& what, const nlohmann::json& seen, const nlohmann::json& wanted);

void expectCell(Stage& stage, const Arguments& wanted);
void expectColumn(Stage& stage, const Arguments& wanted);
/// The dialog's state, the last menu or prompt, windows, refreshes and the undo history.
void expectState(Stage& stage, const Arguments& wanted);

} // namespace corvala::app::play
