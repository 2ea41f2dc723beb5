// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/document/frame.h"

#include <QString>

#include <vtkBoundingBox.h>

#include <array>
#include <optional>
#include <utility>

namespace corvala::plot {

/// What the style of a frame says of its axes.
struct AxesStyle
{
    std::array<QString, 3> titles {"X", "Y", "Z"};
    /// What is seen of the coordinates at first, least and most; nothing: all that there is.
    std::array<std::optional<std::pair<double, double>>, 3> ranges;
    double fontScale = 1.0; ///< of all texts, against the size that is usual
    bool hasGrid = false;

    /// The box with the ranges in place of its own extent.
    vtkBoundingBox seen(const vtkBoundingBox& box) const;
};

AxesStyle axesStyleOf(const host::Frame& frame);

/// Whether a value of the style is one of a range of an axis.
bool isAxisRange(style::Key value);

} // namespace corvala::plot
