// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace corvala::app::play {

/// Share (0 to 1) of the pixels in which two image files differ. Throws a ScriptError when one
/// cannot be read, or their sizes differ.
double shareOfChangedPixels(const QString& one, const QString& two);

} // namespace corvala::app::play
