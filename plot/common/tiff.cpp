// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/tiff.h"

#include <QByteArray>
#include <QDataStream>
#include <QImage>

#include <cmath>
#include <vector>

namespace corvala::plot {

namespace {

/// Fields of a TIFF directory that pictures need.
enum Tag : quint16 {
    Width = 256,
    Height = 257,
    BitsPerSample = 258,
    Compression = 259,
    Photometric = 262,
    StripOffsets = 273,
    SamplesPerPixel = 277,
    RowsPerStrip = 278,
    StripByteCounts = 279,
    XResolution = 282,
    YResolution = 283,
    ResolutionUnit = 296,
    ExtraSamples = 338
};
enum Type : quint16 { Short = 3, Long = 4, Rational = 5 };

struct Field
{
    Tag tag;
    Type type;
    quint32 count;
    quint32 value; ///< or where it stands
};

} // namespace

/// Bytes of all rows, compressed.
static QByteArray stripOf(const QImage& image, int samples)
{
    constexpr int kLengthBytes = 4; // that Qt puts before what zlib makes
    QByteArray bytes;
    bytes.reserve(image.height() * image.width() * samples);
    for (int y = 0; y < image.height(); ++y)
        bytes.append(reinterpret_cast<const char*>(image.constScanLine(y)),
                     image.width() * samples);
    return qCompress(bytes).mid(kLengthBytes);
}

QByteArray tiffOf(const QImage& image)
{
    constexpr quint32 kHeader = 8;
    constexpr quint32 kBits = 8; // bytes of four sample sizes
    constexpr quint32 kDeflate = 8;
    constexpr quint32 kRgb = 2;
    constexpr quint32 kInches = 2;
    constexpr quint32 kStraightAlpha = 2;
    constexpr double kMetresPerInch = 0.0254;
    const quint32 samples = image.hasAlphaChannel() ? 4 : 3;
    const QByteArray strip = stripOf(
        image.convertToFormat(samples == 4 ? QImage::Format_RGBA8888 : QImage::Format_RGB888),
        static_cast<int>(samples));
    const auto dots = static_cast<quint32>(std::lround(image.dotsPerMeterX() * kMetresPerInch));
    const quint32 ratio = kHeader + kBits;
    const quint32 pixels = ratio + 2 * sizeof(quint32);
    const auto length = static_cast<quint32>(strip.size());
    std::vector<Field> fields = {{Width, Long, 1, static_cast<quint32>(image.width())},
                                 {Height, Long, 1, static_cast<quint32>(image.height())},
                                 {BitsPerSample, Short, samples, kHeader},
                                 {Compression, Short, 1, kDeflate},
                                 {Photometric, Short, 1, kRgb},
                                 {StripOffsets, Long, 1, pixels},
                                 {SamplesPerPixel, Short, 1, samples},
                                 {RowsPerStrip, Long, 1, static_cast<quint32>(image.height())},
                                 {StripByteCounts, Long, 1, length},
                                 {XResolution, Rational, 1, ratio},
                                 {YResolution, Rational, 1, ratio},
                                 {ResolutionUnit, Short, 1, kInches}};
    if (samples == 4)
        fields.push_back({ExtraSamples, Short, 1, kStraightAlpha});
    const quint32 padding = length % 2; // directories begin at even places
    QByteArray file;
    QDataStream out(&file, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("II\x2a\0", 4);
    out << pixels + length + padding;
    for (int sample = 0; sample < 4; ++sample)
        out << quint16(8);
    out << dots << quint32(1);
    out.writeRawData(strip.constData(), strip.size());
    out.writeRawData("\0", static_cast<int>(padding));
    out << static_cast<quint16>(fields.size());
    for (const Field& field : fields)
        out << quint16(field.tag) << quint16(field.type) << field.count << field.value;
    out << quint32(0);
    return file;
}

} // namespace corvala::plot
