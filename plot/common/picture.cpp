// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/picture.h"

#include "plot/common/svg_device.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QHash>
#include <QPageLayout>
#include <QPageSize>
#include <QPaintEngine>
#include <QPdfWriter>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

bool isVectorDevice(const QPaintDevice& device)
{
    return device.paintEngine()->type() != QPaintEngine::Raster;
}

QString pictureCancelled()
{
    return QCoreApplication::translate("corvala::plot",
                                       "drawing was cancelled, or what it shows "
                                       "was changed meanwhile");
}

static bool isNone(const QString& problem, QString* error)
{
    if (error)
        *error = problem;
    return problem.isEmpty();
}

QImage pictureImage(const QSize& size, const PaintPicture& paint, QString* error, Paper paper)
{
    if (!isNone(sizeProblem(size), error))
        return {};
    const bool isWhite = paper == Paper::White;
    QImage image(size, isWhite ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    image.fill(isWhite ? Qt::white : Qt::transparent);
    return isNone(paint(image, paper), error) ? image : QImage();
}

/// Fonts stand in a PDF in the order of a hash, which is the same one as long as this lives.
class FixedHashOrder
{
public:
    FixedHashOrder() { qSetGlobalQHashSeed(0); }
    ~FixedHashOrder() { qSetGlobalQHashSeed(-1); }
    FixedHashOrder(const FixedHashOrder&) = delete;
    FixedHashOrder& operator=(const FixedHashOrder&) = delete;
};

/// A page that has as many pixels as an image of its size.
class PdfPage : public QPdfWriter
{
public:
    PdfPage(QIODevice& file, const PictureSize& size)
        : QPdfWriter(&file)
        , m_pixels(size.pixels())
    {
        setResolution(static_cast<int>(std::lround(size.dotsPerInch)));
        setCreator(QStringLiteral("corvala"));
        setPageLayout({QPageSize(size.points(), QPageSize::Point, {}, QPageSize::ExactMatch),
                       QPageLayout::Portrait,
                       {}});
    }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth: return m_pixels.width();
        case PdmHeight: return m_pixels.height();
        default: return QPdfWriter::metric(metric);
        }
    }

private:
    QSize m_pixels;
};

/// Puts a text in place of a part of a PDF, whose table of places moves with it.
static void replace(QByteArray& pdf, int begin, int end, const QByteArray& text)
{
    constexpr int kPlace = 10; // digits of a place
    constexpr int kEntry = 20; // characters of an entry of the table
    const int longer = text.size() - (end - begin);
    pdf.replace(begin, end - begin, text);
    const int table = pdf.lastIndexOf("\nxref\n");
    const int trailer = pdf.indexOf("trailer", table);
    const int first = pdf.indexOf('\n', table + 6) + 1;
    for (int entry = first; table >= 0 && entry + kEntry <= trailer; entry += kEntry) {
        const int place = pdf.mid(entry, kPlace).toInt();
        if (place > begin)
            pdf.replace(entry, kPlace,
                        QByteArray::number(place + longer).rightJustified(kPlace, '0'));
    }
    const int start = pdf.indexOf("startxref\n", trailer) + 10;
    pdf.replace(start, pdf.indexOf('\n', start) - start, QByteArray::number(table + 1));
}

/// Takes out when it was written.
static void removeDate(QByteArray& pdf)
{
    const int begin = pdf.indexOf("/CreationDate");
    const int end = begin < 0 ? -1 : pdf.indexOf(')', begin);
    if (end >= 0)
        replace(pdf, begin, end + 1, {});
}

/// Gives the page its exact size: Qt rounds it to points. What is drawn hangs on the upper edge.
static void setExactSize(QByteArray& pdf, const QSizeF& points)
{
    const QByteArray name = "/MediaBox [";
    const int begin = pdf.indexOf(name);
    const int end = begin < 0 ? -1 : pdf.indexOf(']', begin);
    if (end < 0)
        return;
    const double top =
        pdf.mid(begin + name.size(), end - begin - name.size()).split(' ').last().toDouble();
    QByteArray box = name;
    for (const double side : {0.0, top - points.height(), points.width(), top})
        box += QByteArray::number(side, 'f', 4) + ' ';
    replace(pdf, begin, end, box.trimmed());
}

QByteArray picturePdf(const PictureSize& size, const PaintPicture& paint, QString* error,
                      Paper paper)
{
    if (!isNone(pageProblem(size), error))
        return {};
    const FixedHashOrder order;
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    {
        PdfPage page(pdf, size);
        if (!isNone(paint(page, paper), error))
            return {};
    }
    removeDate(pdf.buffer());
    setExactSize(pdf.buffer(), size.points());
    return pdf.data();
}

QByteArray pictureSvg(const PictureSize& size, const PaintPicture& paint, QString* error,
                      Paper paper)
{
    if (!isNone(pageProblem(size), error))
        return {};
    SvgDevice svg(size);
    return isNone(paint(svg, paper), error) ? svg.document() : QByteArray();
}

} // namespace corvala::plot
