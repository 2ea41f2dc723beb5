// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class QByteArray;
class QImage;
class QString;

namespace corvala::play {

/// Writes a picture in the format that the ending of the file names, whole or not at all. Empty on
/// success, else a text that names the file and the reason.
QString writePicture(const QImage& image, const QString& file);

/// Writes the bytes of a picture, likewise.
QString writePicture(const QByteArray& bytes, const QString& file);

} // namespace corvala::play
