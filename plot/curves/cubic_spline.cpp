// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/curves/cubic_spline.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvala::plot {

namespace {

/// One row of equations for slopes: before * slope[i-1] + own * slope[i] + after * slope[i+1].
struct SlopeRow
{
    double before = 0.0;
    double own = 1.0;
    double after = 0.0;
    double sum = 0.0;
};

} // namespace

static double chordSlope(const std::vector<double>& x, const std::vector<double>& y, std::size_t i)
{
    return (y[i + 1] - y[i]) / (x[i + 1] - x[i]);
}

/// The curvature is the same on both sides of every knot.
static std::vector<SlopeRow> slopeRows(const std::vector<double>& x, const std::vector<double>& y,
                                       const EndSlopes& ends)
{
    const std::size_t last = x.size() - 1;
    std::vector<SlopeRow> rows(x.size());
    rows[0] = std::isfinite(ends.start) ? SlopeRow {0.0, 1.0, 0.0, ends.start}
                                        : SlopeRow {0.0, 2.0, 1.0, 3.0 * chordSlope(x, y, 0)};
    for (std::size_t i = 1; i < last; ++i) {
        const double share = (x[i + 1] - x[i]) / (x[i + 1] - x[i - 1]);
        rows[i] = {share, 2.0, 1.0 - share,
                   3.0 * (share * chordSlope(x, y, i - 1) + (1.0 - share) * chordSlope(x, y, i))};
    }
    rows[last] = std::isfinite(ends.end)
        ? SlopeRow {0.0, 1.0, 0.0, ends.end}
        : SlopeRow {1.0, 2.0, 0.0, 3.0 * chordSlope(x, y, last - 1)};
    return rows;
}

/// The own factor outweighs the other two in every row, so that no order but the given is needed.
static std::vector<double> solve(std::vector<SlopeRow> rows)
{
    for (std::size_t i = 1; i < rows.size(); ++i) {
        const double factor = rows[i].before / rows[i - 1].own;
        rows[i].own -= factor * rows[i - 1].after;
        rows[i].sum -= factor * rows[i - 1].sum;
    }
    std::vector<double> result(rows.size() + 1, 0.0);
    for (std::size_t i = rows.size(); i-- > 0;)
        result[i] = (rows[i].sum - rows[i].after * result[i + 1]) / rows[i].own;
    result.pop_back();
    return result;
}

CubicSpline::CubicSpline(std::vector<double> x, std::vector<double> y, std::vector<double> slopes)
    : m_x(std::move(x))
    , m_y(std::move(y))
    , m_slopes(std::move(slopes))
{
}

CubicSpline::CubicSpline(std::vector<double> x, std::vector<double> y, const EndSlopes& ends)
    : m_x(std::move(x))
    , m_y(std::move(y))
    , m_slopes(solve(slopeRows(m_x, m_y, ends)))
{
}

bool CubicSpline::isFinite() const
{
    return std::all_of(m_slopes.begin(), m_slopes.end(),
                       [](double slope) { return std::isfinite(slope); });
}

double CubicSpline::operator()(double x) const
{
    if (m_x.empty() || std::isnan(x))
        return std::numeric_limits<double>::quiet_NaN();
    if (x <= m_x.front())
        return m_y.front() + m_slopes.front() * (x - m_x.front());
    if (x >= m_x.back())
        return m_y.back() + m_slopes.back() * (x - m_x.back());
    const auto after = std::upper_bound(m_x.begin(), m_x.end(), x);
    const std::size_t i = static_cast<std::size_t>(after - m_x.begin()) - 1;
    const double width = m_x[i + 1] - m_x[i];
    const double share = (x - m_x[i]) / width;
    const double chord = chordSlope(m_x, m_y, i);
    const double square = 3.0 * chord - 2.0 * m_slopes[i] - m_slopes[i + 1];
    const double cube = m_slopes[i] + m_slopes[i + 1] - 2.0 * chord;
    return m_y[i] + width * share * (m_slopes[i] + share * (square + share * cube));
}

CurveFit splineThrough(const CurvePoints& points, const EndSlopes& ends)
{
    const CurvePoints used = usable(points);
    const CurveProblem problem = abscissaProblem(used, 2);
    if (problem != CurveProblem::None)
        return withoutCurve(problem, used.size());
    CurvePoints knots = merged(used);
    const double knotCount = static_cast<double>(knots.size());
    return assessed(CubicSpline(std::move(knots.x), std::move(knots.y), ends), used, knotCount,
                    [](double) { return std::vector<Coefficient>(); });
}

namespace {

/// Points that differ from the one before them, with the parameter of a path through them.
struct Chain
{
    std::vector<double> at;
    std::vector<double> x;
    std::vector<double> y;
    double extentX = 1.0;
    double extentY = 1.0;
};

} // namespace

static double extent(const std::vector<double>& numbers)
{
    const auto [low, high] = std::minmax_element(numbers.begin(), numbers.end());
    return *low < *high ? *high - *low : 1.0;
}

static Chain chained(const CurvePoints& points)
{
    Chain chain {{0.0}, {points.x[0]}, {points.y[0]}, extent(points.x), extent(points.y)};
    for (std::size_t i = 1; i < points.size(); ++i) {
        const double at = chain.at.back()
            + std::hypot((points.x[i] - chain.x.back()) / chain.extentX,
                         (points.y[i] - chain.y.back()) / chain.extentY);
        // A chord may be too short to be seen in the sum.
        if (at <= chain.at.back())
            continue;
        chain.at.push_back(at);
        chain.x.push_back(points.x[i]);
        chain.y.push_back(points.y[i]);
    }
    return chain;
}

/// The derivatives of x and y by the parameter for a slope that goes the way of the chord after a
/// point; not finite for a slope that is not.
static std::pair<double, double> direction(const Chain& chain, std::size_t point, double slope)
{
    const double across = 1.0 / chain.extentX;
    const double up = slope / chain.extentY;
    const double along = across * (chain.x[point + 1] - chain.x[point]) / chain.extentX
        + up * (chain.y[point + 1] - chain.y[point]) / chain.extentY;
    const double speed = std::copysign(std::hypot(across, up), along);
    return {1.0 / speed, slope / speed};
}

SplinePath parametricSplineThrough(const CurvePoints& points, const EndSlopes& ends)
{
    const CurvePoints used = usable(points);
    SplinePath path;
    path.pointCount = used.size();
    const Chain chain = used.size() > 0 ? chained(used) : Chain();
    const std::size_t count = chain.at.size();
    if (count < 2) {
        path.problem = CurveProblem::TooFewPoints;
        return path;
    }
    const auto [startX, startY] = direction(chain, 0, ends.start);
    const auto [endX, endY] = direction(chain, count - 2, ends.end);
    path.length = chain.at.back();
    path.x = CubicSpline(chain.at, chain.x, EndSlopes {startX, endX});
    path.y = CubicSpline(chain.at, chain.y, EndSlopes {startY, endY});
    if (!path.x.isFinite() || !path.y.isFinite())
        path.problem = CurveProblem::OutOfRange;
    return path;
}

CurvePoints samplePath(const SplinePath& path, std::size_t count)
{
    CurvePoints result;
    result.x = sampleCurve(path.x, 0.0, path.length, count).y;
    result.y = sampleCurve(path.y, 0.0, path.length, count).y;
    return result;
}

} // namespace corvala::plot
