// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/line/curve_maker.h"

#include <QString>

#include <optional>

namespace corvala::plot {

/// A problem in words, such as "too few points"; empty for none.
QString problemText(CurveProblem problem);

/// Reports what came of the fits of line maps. Many points are fitted on another thread.
class FitReports
{
public:
    /// Coefficients with their standard errors and R squared, or the problem, in lines of plain
    /// text, for each line of the map up to fifty; empty for a map without a fit. Nothing while it
    /// is being made: to be asked again, and begun anew when another report is asked for in
    /// between. The map must exist.
    std::optional<QString> of(const host::Frame& frame, CvlInt64 map);

private:
    // What is in work.
    std::weak_ptr<const host::DataSet> m_data;
    LineRecipe m_line;
    std::shared_ptr<const LinePoints> m_points;
    CurveMaker m_maker;
};

} // namespace corvala::plot
