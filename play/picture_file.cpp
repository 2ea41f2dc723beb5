// SPDX-License-Identifier: BSD-3-Clause
#include "play/picture_file.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

namespace corvala::play {

QString writePicture(const QImage& image, const QString& file)
{
    QSaveFile output(file);
    QImageWriter writer(&output, QFileInfo(file).suffix().toLatin1());
    if (output.open(QIODevice::WriteOnly) && writer.write(image) && output.commit())
        return {};
    const bool isFormatBad = writer.error() == QImageWriter::UnsupportedFormatError;
    return QCoreApplication::translate("Picture", "%1 cannot be written: %2")
        .arg(file,
             isFormatBad ? QCoreApplication::translate(
                 "Picture", "its ending must name a picture format, such as .png")
                         : output.errorString());
}

} // namespace corvala::play
