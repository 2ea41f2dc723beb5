// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QByteArray;
class QImage;

namespace corvala::plot {

/// The image as a TIFF file, compressed without loss, with its resolution, and with its
/// transparency where it has some.
QByteArray tiffOf(const QImage& image);

} // namespace corvala::plot
