// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <limits>
#include <vector>

namespace corvala::plot {

/// Asked from time to time by what takes long: once it answers false the work is given up, and what
/// comes of it means nothing. Empty for work that goes on to its end.
using GoesOn = std::function<bool()>;

/// The points that a curve is drawn through, and which of them take part.
struct CurvePoints
{
    std::vector<double> x {};
    std::vector<double> y {};
    std::vector<double> weights {}; ///< of the squared distance of a point; all 1 when empty
    /// The ends, in any order, of the range of abscissas that takes part.
    double from = -std::numeric_limits<double>::infinity();
    double to = std::numeric_limits<double>::infinity();

    std::size_t size() const { return x.size(); }
    double weight(std::size_t point) const { return weights.empty() ? 1.0 : weights[point]; }
};

/// The points that take part, in their order: those in the range whose coordinates are finite and
/// whose weight is positive and finite. A point that one of the vectors lacks does not.
CurvePoints usable(const CurvePoints& points);

/// Usable points by ascending abscissa. Those with the same abscissa become one: their mean, with
/// their weights together.
CurvePoints merged(const CurvePoints& points);

/// Whether usable points have at least so many different abscissas.
bool hasAbscissas(const CurvePoints& points, std::size_t count);

/// Moves abscissas into the range -1 to 1, without rounding them wherever possible.
struct AbscissaScale
{
    explicit AbscissaScale(const std::vector<double>& abscissas);

    long double operator()(double x) const { return (x - middle) / unit; }

    long double middle = 0.0L;
    long double unit = 1.0L; ///< a power of two
};

} // namespace corvala::plot
