// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/picture.h"

#include "plot/common/svg_device.h"

#include <QBuffer>
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

/// Whether the picture was painted.
static bool isPainted(QPaintDevice& device, const PaintPicture& paint, QString* error)
{
    const QString problem = paint(device);
    if (error)
        *error = problem;
    return problem.isEmpty();
}

static bool canBeDrawn(const QSize& size, QString* error)
{
    const QString problem = sizeProblem(size);
    if (error)
        *error = problem;
    return problem.isEmpty();
}

QImage pictureImage(const QSize& size, const PaintPicture& paint, QString* error)
{
    if (!canBeDrawn(size, error))
        return {};
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    return isPainted(image, paint, error) ? image : QImage();
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

/// Takes out when it was written; blanks keep the places in the file that its table names.
static void removeDate(QByteArray& pdf)
{
    const int begin = pdf.indexOf("/CreationDate");
    const int end = begin < 0 ? -1 : pdf.indexOf(')', begin);
    if (end >= 0)
        std::fill(pdf.begin() + begin, pdf.begin() + end + 1, ' ');
}

QByteArray picturePdf(const PictureSize& size, const PaintPicture& paint, QString* error)
{
    if (!canBeDrawn(size.pixels(), error))
        return {};
    const FixedHashOrder order;
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&pdf);
        writer.setResolution(static_cast<int>(std::lround(size.dotsPerInch)));
        writer.setCreator(QStringLiteral("corvala"));
        writer.setPageLayout(
            {QPageSize(size.millimetres, QPageSize::Millimeter, {}, QPageSize::ExactMatch),
             QPageLayout::Portrait,
             {}});
        if (!isPainted(writer, paint, error))
            return {};
    }
    removeDate(pdf.buffer());
    return pdf.data();
}

QByteArray pictureSvg(const PictureSize& size, const PaintPicture& paint, QString* error)
{
    if (!canBeDrawn(size.pixels(), error))
        return {};
    SvgDevice svg(size);
    return isPainted(svg, paint, error) ? svg.document() : QByteArray();
}

} // namespace corvala::plot
