// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/document.h"

#include <vtkSmartPointer.h>

#include <vector>

class vtkImageData;

namespace corvala::plot {

/// The colour of a fraction of the way from the lowest (0) to the highest value (1); dark blue
/// through green to yellow in steps that look equal. Fractions outside give the end colours.
host::Rgb mapColor(double fraction);

/// The colours of `count` bands of equal width.
std::vector<host::Rgb> bandColors(int count);

/// The colour of the band in which a fraction of the way lies.
host::Rgb bandColor(double fraction, int count);

/// The colour of what has no value.
host::Rgb noValueColor();

/// A texture for flooding: its lower half holds the bands from left to right, its upper half the
/// colour of what has no value.
vtkSmartPointer<vtkImageData> bandImage(int count);

} // namespace corvala::plot
