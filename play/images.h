// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

namespace corvala::play {

/// Share (0 to 1) of the pixels in which two image files differ. Throws a ScriptError when one
/// cannot be read, or their sizes differ.
double shareOfChangedPixels(const QString& one, const QString& two);

} // namespace corvala::play
