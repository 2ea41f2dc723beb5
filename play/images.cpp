// SPDX-License-Identifier: BSD-3-Clause
#include "play/images.h"

#include "play/script.h"

#include <QImage>

namespace corvala::play {

static QImage load(const QString& file)
{
    QImage image(file);
    if (image.isNull())
        throw ScriptError(Text::tr("%1 cannot be read as an image").arg(file));
    return image.convertToFormat(QImage::Format_RGB32);
}

double shareOfChangedPixels(const QString& one, const QString& two)
{
    const QImage first = load(one);
    const QImage second = load(two);
    if (first.size() != second.size())
        throw ScriptError(Text::tr("the images differ in size: %1 by %2 and %3 by %4")
                              .arg(first.width())
                              .arg(first.height())
                              .arg(second.width())
                              .arg(second.height()));
    int changed = 0;
    for (int y = 0; y < first.height(); ++y) {
        const auto* firstLine = reinterpret_cast<const QRgb*>(first.constScanLine(y));
        const auto* secondLine = reinterpret_cast<const QRgb*>(second.constScanLine(y));
        for (int x = 0; x < first.width(); ++x)
            changed += (firstLine[x] ^ secondLine[x]) & 0xffffff ? 1 : 0;
    }
    return double(changed) / (double(first.width()) * first.height());
}

} // namespace corvala::play
