// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QImage;
class QString;

namespace corvala::app {

/// Writes a picture in the format that the ending of the file names, whole or not at all. Empty on
/// success, else a text that names the file and the reason.
QString writePicture(const QImage& image, const QString& file);

} // namespace corvala::app
