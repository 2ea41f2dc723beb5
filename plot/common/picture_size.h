// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <QSizeF>
#include <QString>

#include <optional>

namespace corvala::plot {

// Dots per inch.
constexpr double kLowestResolution = 10.0;
constexpr double kHighestResolution = 2400.0;

/// How large a picture is on paper, and how many pixels it has there.
struct PictureSize
{
    QSizeF millimetres {160.0, 120.0};
    double dotsPerInch = 300.0;

    QSize pixels() const;
    QSizeF points() const; ///< 72 to an inch
    static PictureSize ofPixels(const QSizeF& pixels, double dotsPerInch);
};

/// The size that a text gives in pixels, as "1200x900", or on paper, as "160x120mm". Nothing, when
/// it is neither, or a side is not above 0.
std::optional<PictureSize> pictureSizeOf(const QString& text, double dotsPerInch);

// Sides that a picture may have at most.
constexpr int kLargestImage = 8192; // pixels
constexpr double kLargestPage = 5000.0; // millimetres; readers of PDF show no more

// Why a picture of this size cannot be drawn, for the user; empty when it can.

QString sizeProblem(const QSize& size); ///< of an image
/// Of a page, which has no pixels of its own.
QString pageProblem(const PictureSize& size);

} // namespace corvala::plot
