// SPDX-License-Identifier: BSD-3-Clause
#include "play/picture_file.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>
#include <QSaveFile>

namespace corvala::play {

static QString problemOf(const QString& file, const QString& reason)
{
    return QCoreApplication::translate("Picture", "%1 cannot be written: %2").arg(file, reason);
}

QString writePicture(const QByteArray& bytes, const QString& file)
{
    QSaveFile output(file);
    const bool isWritten =
        output.open(QIODevice::WriteOnly) && output.write(bytes) == bytes.size() && output.commit();
    return isWritten ? QString() : problemOf(file, output.errorString());
}

QString writePicture(const QImage& image, const QString& file)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QImageWriter writer(&bytes, QFileInfo(file).suffix().toLatin1());
    if (writer.write(image))
        return writePicture(bytes.data(), file);
    return problemOf(file,
                     writer.error() == QImageWriter::UnsupportedFormatError
                         ? QCoreApplication::translate(
                             "Picture", "its ending must name a picture format, such as .png")
                         : writer.errorString());
}

} // namespace corvala::play
