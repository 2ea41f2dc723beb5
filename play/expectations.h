// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/script_run.h"

namespace corvala::play {

/// Compares what the program shows with what a script expects; throws a ScriptError that says
/// both when they differ.
void compare(const QString& what, const nlohmann::json& seen, const nlohmann::json& wanted);

void expectCell(ScriptRun& run, const Arguments& wanted);
void expectColumn(ScriptRun& run, const Arguments& wanted);
/// The dialog's state, the last menu or prompt, windows, refreshes and the undo history.
void expectState(ScriptRun& run, const Arguments& wanted);

} // namespace corvala::play
