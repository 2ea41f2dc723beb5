// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QString>

namespace corvala::plot {

/// A text in as few lines as a width in pixels allows, broken between words; the last line, and a
/// word that is too long, have their middle left out where they do not fit.
QString brokenText(const QString& text, const QFont& font, double width, int mostLines = 2);

} // namespace corvala::plot
