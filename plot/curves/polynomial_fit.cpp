// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/curves/polynomial_fit.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvala::plot {

namespace {

/// A point during the fit.
struct Place
{
    long double at = 0.0L; ///< scaled abscissa
    long double residual = 0.0L; ///< what the terms so far leave
    long double value = 1.0L; ///< of the polynomial at hand
    long double before = 0.0L; ///< of the one before it
};

/// A monic polynomial of scaled abscissas that is orthogonal to those before it, and the one after
/// it: (at - shift) * this - ratio * the one before.
struct Term
{
    long double coefficient = 0.0L;
    long double norm = 0.0L; ///< weighted squares of its values at the points
    long double shift = 0.0L;
    long double ratio = 0.0L;

    long double next(long double at, long double value, long double before) const
    {
        return (at - shift) * value - ratio * before;
    }
};

class OrthogonalSum
{
public:
    OrthogonalSum(const CurvePoints& points, int order);

    /// Whether the points determine all terms.
    bool isDetermined() const;
    double operator()(double x) const;
    /// Of the powers of x; `deviation` is that of a point of weight 1.
    std::vector<Coefficient> powers(double deviation) const;

private:
    AbscissaScale m_scale;
    std::vector<Term> m_terms;
};

} // namespace

/// The term of the polynomial whose values the places have.
static Term project(const CurvePoints& points, const std::vector<Place>& places)
{
    Term term;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const Place& place = places[i];
        const long double weighted = points.weight(i) * place.value;
        term.norm += weighted * place.value;
        term.shift += weighted * place.value * place.at;
        term.coefficient += weighted * place.residual;
    }
    term.shift /= term.norm;
    term.coefficient /= term.norm;
    return term;
}

OrthogonalSum::OrthogonalSum(const CurvePoints& points, int order)
    : m_scale(points.x)
{
    std::vector<Place> places(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) {
        places[i].at = m_scale(points.x[i]);
        places[i].residual = points.y[i];
    }
    while (m_terms.size() <= static_cast<std::size_t>(order)) {
        Term term = project(points, places);
        if (!m_terms.empty())
            term.ratio = term.norm / m_terms.back().norm;
        for (Place& place : places) {
            place.residual -= term.coefficient * place.value;
            place.before =
                std::exchange(place.value, term.next(place.at, place.value, place.before));
        }
        m_terms.push_back(term);
    }
}

bool OrthogonalSum::isDetermined() const
{
    // Values at the points that are no more than rounding.
    constexpr long double kLeastNorm = 1e-34L;
    return std::all_of(m_terms.begin(), m_terms.end(), [this](const Term& term) {
        return std::isfinite(term.coefficient) && term.norm > kLeastNorm * m_terms[0].norm;
    });
}

double OrthogonalSum::operator()(double x) const
{
    const long double at = m_scale(x);
    long double value = 1.0L;
    long double before = 0.0L;
    long double sum = 0.0L;
    for (const Term& term : m_terms) {
        sum += term.coefficient * value;
        before = std::exchange(value, term.next(at, value, before));
    }
    return static_cast<double>(sum);
}

std::vector<Coefficient> OrthogonalSum::powers(double deviation) const
{
    const std::size_t count = m_terms.size();
    std::vector<long double> sums(count, 0.0L);
    std::vector<long double> variances(count, 0.0L);
    std::vector<long double> powers(count + 1, 0.0L); // of the polynomial of the term
    std::vector<long double> before(count + 1, 0.0L);
    powers[0] = 1.0L;
    for (const Term& term : m_terms) {
        for (std::size_t i = 0; i < count; ++i) {
            sums[i] += term.coefficient * powers[i];
            variances[i] += powers[i] * powers[i] / term.norm;
        }
        const long double shift = m_scale.middle / m_scale.unit + term.shift;
        for (std::size_t i = 0; i <= count; ++i)
            before[i] = (i > 0 ? powers[i - 1] / m_scale.unit : 0.0L) - shift * powers[i]
                - term.ratio * before[i];
        std::swap(powers, before);
    }
    std::vector<Coefficient> result;
    for (std::size_t i = 0; i < count; ++i)
        result.push_back({"c" + std::to_string(i), static_cast<double>(sums[i]),
                          static_cast<double>(deviation * std::sqrt(variances[i]))});
    return result;
}

CurveFit fitPolynomial(const CurvePoints& points, int order)
{
    order = std::clamp(order, 1, kLargestOrder);
    const CurvePoints used = usable(points);
    const std::size_t needed = static_cast<std::size_t>(order) + 1;
    const CurveProblem problem = abscissaProblem(used, needed);
    if (problem != CurveProblem::None)
        return withoutCurve(problem, used.size());
    const OrthogonalSum sum(used, order);
    if (!sum.isDetermined())
        return withoutCurve(CurveProblem::SameAbscissas, used.size());
    return assessed(sum, used, static_cast<double>(needed),
                    [&sum](double deviation) { return sum.powers(deviation); });
}

} // namespace corvala::plot
