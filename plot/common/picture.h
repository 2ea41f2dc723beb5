// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/common/picture_size.h"

#include <QByteArray>
#include <QImage>

#include <functional>

class QPaintDevice;

namespace corvala::plot {

/// What is where nothing is drawn.
enum class Paper { White, Transparent };

/// Draws a picture all over a device, in its pixels. Empty on success, else the reason why it
/// cannot be drawn, for the user.
using PaintPicture = std::function<QString(QPaintDevice&, Paper)>;

/// What is said of a picture whose drawing was ended before it was complete.
QString pictureCancelled();

/// Whether a device takes lines, areas and texts as such, and not as pixels.
bool isVectorDevice(const QPaintDevice& device);

// A picture in one of the ways to keep it. Empty, with the reason in `error` (may be null), when it
// cannot be drawn. The same picture gives the same bytes.

QImage pictureImage(const QSize& size, const PaintPicture& paint, QString* error,
                    Paper paper = Paper::White);
/// A page of exactly this size; images are as they are, with `dotsPerInch`.
QByteArray picturePdf(const PictureSize& size, const PaintPicture& paint, QString* error,
                      Paper paper = Paper::White);
QByteArray pictureSvg(const PictureSize& size, const PaintPicture& paint, QString* error,
                      Paper paper = Paper::White);

} // namespace corvala::plot
