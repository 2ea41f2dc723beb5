// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/picture_output.h"

#include "play/picture_file.h"
#include "plot/common/tiff.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cmath>

namespace corvala::app {

struct PictureOutput
{
    Q_DECLARE_TR_FUNCTIONS(PictureOutput)
};

/// A way to keep a picture.
struct PictureFormat
{
    const char* filter;
    QStringList endings;
    bool canBeTransparent;
    /// Null for formats of pixels that Qt writes.
    QByteArray (*bytes)(const plot::PictureSize&, const plot::PaintPicture&, QString*, plot::Paper);
    bool isPage; ///< keeps lines and texts
};

static QImage imageOf(const plot::PictureSize& size, const plot::PaintPicture& paint,
                      QString* error, plot::Paper paper)
{
    constexpr double kInchesPerMetre = 1.0 / 0.0254;
    QImage image = plot::pictureImage(size.pixels(), paint, error, paper);
    const auto dots = static_cast<int>(std::lround(size.dotsPerInch * kInchesPerMetre));
    image.setDotsPerMeterX(dots);
    image.setDotsPerMeterY(dots);
    return image;
}

static QByteArray tiffOf(const plot::PictureSize& size, const plot::PaintPicture& paint,
                         QString* error, plot::Paper paper)
{
    const QImage image = imageOf(size, paint, error, paper);
    return image.isNull() ? QByteArray() : plot::tiffOf(image);
}

static const std::vector<PictureFormat>& formats()
{
    static const std::vector<PictureFormat> kFormats = {
        {QT_TRANSLATE_NOOP("PictureOutput", "PNG picture (*.png)"),
         {QStringLiteral("png")},
         true,
         nullptr,
         false},
        {QT_TRANSLATE_NOOP("PictureOutput", "PDF page (*.pdf)"),
         {QStringLiteral("pdf")},
         true,
         plot::picturePdf,
         true},
        {QT_TRANSLATE_NOOP("PictureOutput", "SVG drawing (*.svg)"),
         {QStringLiteral("svg")},
         true,
         plot::pictureSvg,
         true},
        {QT_TRANSLATE_NOOP("PictureOutput", "TIFF picture (*.tif *.tiff)"),
         {QStringLiteral("tif"), QStringLiteral("tiff")},
         true,
         tiffOf,
         false},
        {QT_TRANSLATE_NOOP("PictureOutput", "Other pictures (*.jpg *.jpeg *.bmp)"),
         {QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("bmp")},
         false,
         nullptr,
         false}};
    return kFormats;
}

/// Null for none.
static const PictureFormat* formatOf(const QString& file)
{
    const QString ending = QFileInfo(file).suffix().toLower();
    for (const PictureFormat& format : formats())
        if (format.endings.contains(ending))
            return &format;
    return nullptr;
}

QStringList pictureFilters()
{
    QStringList filters;
    for (const PictureFormat& format : formats())
        filters << PictureOutput::tr(format.filter);
    return filters;
}

QString pictureFormatProblem(const QString& file)
{
    QStringList endings;
    for (const PictureFormat& format : formats())
        for (const QString& ending : format.endings)
            endings << QLatin1Char('.') + ending;
    return formatOf(file) ? QString()
                          : PictureOutput::tr("%1 cannot be written: its ending must name a "
                                              "picture format, one of %2")
                                .arg(file, endings.join(QStringLiteral(", ")));
}

bool canBeTransparent(const QString& file)
{
    const PictureFormat* const format = formatOf(file);
    return format && format->canBeTransparent;
}

QString shownSize(const QString& file, const plot::PictureSize& size)
{
    const PictureFormat* const format = formatOf(file);
    const QSize pixels = size.pixels();
    return format && format->isPage
        ? PictureOutput::tr("%1 x %2 mm")
              .arg(size.millimetres.width())
              .arg(size.millimetres.height())
        : PictureOutput::tr("%1 x %2 pixels").arg(pixels.width()).arg(pixels.height());
}

plot::PictureSize usualPictureSize(const QString& file)
{
    constexpr QSizeF kWindow(1200.0, 900.0);
    const PictureFormat* const format = formatOf(file);
    const plot::PictureSize page;
    return format && format->isPage ? page : plot::PictureSize::ofPixels(kWindow, page.dotsPerInch);
}

QString pictureSizeProblem(const QString& file, const plot::PictureSize& size)
{
    const PictureFormat* const format = formatOf(file);
    return format && format->isPage ? plot::pageProblem(size) : plot::sizeProblem(size.pixels());
}

QString writePicture(const QString& file, const plot::PictureSize& size, plot::Paper paper,
                     const plot::PaintPicture& paint)
{
    const PictureFormat* const format = formatOf(file);
    if (!format)
        return pictureFormatProblem(file);
    QString error;
    const QByteArray bytes =
        format->bytes ? format->bytes(size, paint, &error, paper) : QByteArray();
    const QImage image = format->bytes ? QImage() : imageOf(size, paint, &error, paper);
    if (!error.isEmpty())
        return PictureOutput::tr("%1 cannot be drawn: %2").arg(file, error);
    return format->bytes ? play::writePicture(bytes, file) : play::writePicture(image, file);
}

} // namespace corvala::app
