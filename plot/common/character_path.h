// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainterPath>

namespace corvala::plot {

/// The outlines of the first character of a text round the origin, a capital letter from -1 to 1,
/// upwards. `font` is a FontOverride_e: Greek takes Latin letters for those of the Greek alphabet,
/// Math is a slanted font with serifs, User one of fixed width.
QPainterPath characterPath(const QString& text, int font);

} // namespace corvala::plot
