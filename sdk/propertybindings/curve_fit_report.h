// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/types.h>

#include <QString>

#include <functional>
#include <optional>

namespace corvala::propertybindings {

/// Puts the result of a line map's fit into words: coefficients, their standard errors and R
/// squared, or why there is none; several lines, empty for curves without a result. Nothing while
/// the fit is being made: to be asked again.
using CurveFitReporter = std::function<std::optional<QString>(CvlUniqueId frame, CvlInt64 lineMap)>;

/// The program that fits curves says here how to ask it; an empty function takes that back.
void setCurveFitReporter(CurveFitReporter reporter);

/// Empty while nobody reports.
std::optional<QString> curveFitReport(CvlUniqueId frame, CvlInt64 lineMap);

} // namespace corvala::propertybindings
