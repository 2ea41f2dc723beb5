// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/curves/smoothing_spline.h"

#include "plot/curves/cubic_spline.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>
#include <tuple>
#include <utility>

namespace corvala::plot {

namespace {

/// Value and slope at one knot, then value and slope at the next one, then the right-hand side.
using Row = std::array<double, 5>;
/// Equations of weight 1, to be met as well as possible.
using Block = std::array<Row, 5>;

/// Of the value and the slope at a knot.
struct Covariance
{
    double value = 0.0;
    double both = 0.0;
    double slope = 0.0;
};

/// Value and slope at a knot as sums: of the noise of its two equations, of value and slope at the
/// next knot, and of a constant, each with a factor.
struct Solution
{
    Row value {};
    Row slope {};
};

/// Goes along the knots and keeps, of each, the two equations that tie it to the next one: a QR
/// decomposition of all equations, in which no squares of theirs are formed.
struct PenalizedSpline
{
    /// Points by ascending abscissa, which all differ and lie in 0 to 1; the penalty is the factor
    /// of the integral of the squared curvature.
    PenalizedSpline(const CurvePoints& points, double penalty);

    std::vector<double> values;
    std::vector<double> slopes;
    double degreesOfFreedom = 0.0;
};

} // namespace

/// The covariance of two sums, given that of value and slope at the next knot.
static double product(const Row& one, const Row& other, const Covariance& next)
{
    return one[0] * other[0] + one[1] * other[1]
        + one[2] * (next.value * other[2] + next.both * other[3])
        + one[3] * (next.both * other[2] + next.slope * other[3]);
}

/// Makes one column of a block 0 below the diagonal by a reflection.
static void reflect(Block& block, std::size_t column)
{
    double square = 0.0;
    for (std::size_t row = column; row < 5; ++row)
        square += block[row][column] * block[row][column];
    if (square == 0.0)
        return;
    const double length = std::copysign(std::sqrt(square), -block[column][column]);
    block[column][column] -= length;
    const double half = -length * block[column][column];
    for (std::size_t other = column + 1; other < 5; ++other) {
        double sum = 0.0;
        for (std::size_t row = column; row < 5; ++row)
            sum += block[row][column] * block[row][other];
        for (std::size_t row = column; row < 5; ++row)
            block[row][other] -= sum / half * block[row][column];
    }
    block[column][column] = length;
    for (std::size_t row = column + 1; row < 5; ++row)
        block[row][column] = 0.0;
}

/// Makes a block upper triangular. The largest row goes first, without which the small ones would
/// lose their digits to it.
static void reduce(Block& block)
{
    for (std::size_t column = 0; column < 4; ++column) {
        const auto smaller = [column](const Row& one, const Row& other) {
            return std::fabs(one[column]) < std::fabs(other[column]);
        };
        const auto from = block.begin() + static_cast<std::ptrdiff_t>(column);
        std::iter_swap(from, std::max_element(from, block.end(), smaller));
        reflect(block, column);
    }
}

/// The integral of the squared curvature of a cubic piece, as the squares of two rows.
static std::pair<Row, Row> penaltyRows(double penalty, double width)
{
    const double bend = std::sqrt(penalty / width);
    const double twist = std::sqrt(3.0) * bend;
    const double chord = 2.0 * twist / width;
    return {{0.0, -bend, 0.0, bend, 0.0}, {-chord, -twist, chord, -twist, 0.0}};
}

/// What two equations, the upper triangular ones of a knot, say of its value and of its slope.
static Solution solved(const Row& first, const Row& second)
{
    Solution result;
    for (std::size_t i = 2; i < 5; ++i) {
        const double sign = i < 4 ? -1.0 : 1.0;
        result.slope[i] = sign * second[i] / second[1];
        result.value[i] = (sign * first[i] - first[1] * result.slope[i]) / first[0];
    }
    result.slope[1] = 1.0 / second[1];
    result.value[0] = 1.0 / first[0];
    result.value[1] = -first[1] / second[1] / first[0];
    return result;
}

static std::vector<Solution> decompose(const CurvePoints& points, double penalty)
{
    std::vector<Solution> result;
    Block block {};
    for (std::size_t i = 0; i < points.size(); ++i) {
        const Row first = block[2];
        const Row second = block[3];
        const double root = std::sqrt(points.weight(i));
        block = {};
        block[0] = {first[2], first[3], 0.0, 0.0, first[4]};
        block[1] = {0.0, second[3], 0.0, 0.0, second[4]};
        block[2] = {root, 0.0, 0.0, 0.0, root * points.y[i]};
        if (i + 1 < points.size())
            std::tie(block[3], block[4]) = penaltyRows(penalty, points.x[i + 1] - points.x[i]);
        reduce(block);
        result.push_back(solved(block[0], block[1]));
    }
    return result;
}

PenalizedSpline::PenalizedSpline(const CurvePoints& points, double penalty)
    : values(points.size() + 1, 0.0)
    , slopes(points.size() + 1, 0.0)
{
    const std::vector<Solution> solutions = decompose(points, penalty);
    Covariance next;
    for (std::size_t i = points.size(); i-- > 0;) {
        const Row& value = solutions[i].value;
        const Row& slope = solutions[i].slope;
        values[i] = value[2] * values[i + 1] + value[3] * slopes[i + 1] + value[4];
        slopes[i] = slope[2] * values[i + 1] + slope[3] * slopes[i + 1] + slope[4];
        next = {product(value, value, next), product(value, slope, next),
                product(slope, slope, next)};
        degreesOfFreedom += points.weight(i) * next.value;
    }
    values.pop_back();
    slopes.pop_back();
}

/// By which the curvature is weighed for knots in 0 to 1.
static double penaltyOf(double detail, const CurvePoints& knots)
{
    constexpr double kPi = 3.14159265358979323846;
    constexpr double kFewestWaves = 1e-4; // beyond, no bend can be seen
    const double waves = std::max(kFewestWaves, 10.0 * detail / (1.0 - detail));
    double weight = 0.0;
    for (std::size_t i = 0; i < knots.size(); ++i)
        weight += knots.weight(i);
    return weight / std::pow(kPi * waves, 4.0);
}

/// The spline of this detail through knots in 0 to 1, and its degrees of freedom.
static std::pair<CubicSpline, double> splineOf(const CurvePoints& knots, double detail)
{
    if (detail >= 1.0)
        return {CubicSpline(knots.x, knots.y, EndSlopes()), static_cast<double>(knots.size())};
    PenalizedSpline found(knots, penaltyOf(detail, knots));
    return {CubicSpline(knots.x, std::move(found.values), std::move(found.slopes)),
            found.degreesOfFreedom};
}

CurveFit fitSmoothingSpline(const CurvePoints& points, double detail)
{
    const CurvePoints used = usable(points);
    const CurveProblem problem = abscissaProblem(used, 2);
    if (problem != CurveProblem::None)
        return withoutCurve(problem, used.size());
    const auto [low, high] = std::minmax_element(used.x.begin(), used.x.end());
    const auto share = [low = static_cast<long double>(*low),
                        span = static_cast<long double>(*high) - *low](double x) {
        return static_cast<double>((x - low) / span);
    };
    CurvePoints shares = used;
    std::transform(used.x.begin(), used.x.end(), shares.x.begin(), share);
    auto [spline, freedom] = splineOf(merged(shares), detail);
    const std::vector<Coefficient> coefficients {
        {"degrees of freedom", freedom, std::numeric_limits<double>::quiet_NaN()}};
    return assessed([share, spline = std::move(spline)](double x) { return spline(share(x)); },
                    used, freedom, [&coefficients](double) { return coefficients; });
}

} // namespace corvala::plot
