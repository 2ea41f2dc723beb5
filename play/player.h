// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/script.h"

namespace corvala::play {

class Stage;

/// Plays a script. Reads the whole script first: a line that is wrong by itself
/// stops it before anything happens. Empty on success, else "SCRIPT:LINE: message".
QString playScript(const QString& file, Stage& stage);

} // namespace corvala::play
