// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/document.h"

#include <vtkSmartPointer.h>

#include <vector>

class vtkImageData;

namespace corvala::plot {

/// Colours that stand for values from the lowest to the highest.
struct ColorScale
{
    ColorMap_e map = ColorMap_Viridis;
    bool isReversed = false;
};

inline bool operator==(const ColorScale& left, const ColorScale& right)
{
    return left.map == right.map && left.isReversed == right.isReversed;
}

/// The colour of a fraction of the way from the lowest (0) to the highest value (1). Fractions
/// outside give the end colours.
host::Rgb scaleColor(const ColorScale& scale, double fraction);

/// The colours of `count` bands of equal width.
std::vector<host::Rgb> bandColors(const ColorScale& scale, int count);

/// The colour of the band in which a fraction of the way lies.
host::Rgb bandColor(const ColorScale& scale, double fraction, int count);

/// The colour of what has no value.
host::Rgb noValueColor();

/// A texture for flooding: its lower half holds the bands from left to right, its upper half the
/// colour of what has no value.
vtkSmartPointer<vtkImageData> bandImage(const ColorScale& scale, int count);

} // namespace corvala::plot
