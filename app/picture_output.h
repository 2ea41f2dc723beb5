// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/picture.h"

#include <QStringList>

namespace corvala::app {

/// Filters of a file dialog, one for each way to keep a picture; the usual one first.
QStringList pictureFilters();

/// Why the ending of a file names no format of pictures, for the user; empty when it does.
QString pictureFormatProblem(const QString& file);

/// Whether files of this format can do without a background.
bool canBeTransparent(const QString& file);

/// The size of a picture when none is told: of a page for formats that keep lines and texts, of a
/// window for others.
plot::PictureSize usualPictureSize(const QString& file);

/// Why such a file cannot have this size, for the user; empty when it can.
QString pictureSizeProblem(const QString& file, const plot::PictureSize& size);

/// "1890 x 1417 pixels", or "160 x 120 mm" for formats that keep lines and texts.
QString shownSize(const QString& file, const plot::PictureSize& size);

/// Writes what is painted in the format that the ending of the file names, whole or not at all.
/// Empty on success, else a text that names the file and the reason.
QString writePicture(const QString& file, const plot::PictureSize& size, plot::Paper paper,
                     const plot::PaintPicture& paint);

} // namespace corvala::app
