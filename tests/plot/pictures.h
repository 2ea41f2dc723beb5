// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>

#include <cstdlib>

namespace corvala::tests {

/// Share of pixels that differ visibly; 1 for images of different sizes.
inline double shareOfChange(const QImage& one, const QImage& other)
{
    if (one.size() != other.size() || one.isNull())
        return 1.0;
    int changed = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            const int distance = std::abs(a.red() - b.red()) + std::abs(a.green() - b.green())
                + std::abs(a.blue() - b.blue());
            changed += distance > 24 ? 1 : 0;
        }
    }
    return static_cast<double>(changed) / (one.width() * one.height());
}

/// Share of pixels that are nearly of a colour.
inline double shareOfColor(const QImage& image, const QColor& color)
{
    QImage flat(image.size(), QImage::Format_RGB32);
    flat.fill(color);
    return 1.0 - shareOfChange(image, flat);
}

} // namespace corvala::tests
