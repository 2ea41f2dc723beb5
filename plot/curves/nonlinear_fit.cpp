// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/curves/nonlinear_fit.h"

#include <gsl/gsl_blas.h>
#include <gsl/gsl_errno.h>
#include <gsl/gsl_multifit_nlinear.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace corvala::plot {

namespace {

struct Search
{
    const ParametricCurve& curve;
    const ScaledPoints& points;
    const GoesOn& goesOn;
    Parameters parameters; ///< of the last call
    Parameters slopes;

    void take(const gsl_vector* from);
    double residual(std::size_t point);
};

struct FreeWorkspace
{
    void operator()(gsl_multifit_nlinear_workspace* space) const
    {
        gsl_multifit_nlinear_free(space);
    }
};
using Workspace = std::unique_ptr<gsl_multifit_nlinear_workspace, FreeWorkspace>;

} // namespace

void Search::take(const gsl_vector* from)
{
    for (std::size_t i = 0; i < parameters.size(); ++i)
        parameters[i] = gsl_vector_get(from, i);
}

double Search::residual(std::size_t point)
{
    return curve(points.at[point], parameters, slopes.data()) - points.values[point];
}

static int residuals(const gsl_vector* parameters, void* data, gsl_vector* result)
{
    Search& search = *static_cast<Search*>(data);
    if (search.goesOn && !search.goesOn())
        return GSL_EFAILED;
    search.take(parameters);
    for (std::size_t i = 0; i < result->size; ++i)
        gsl_vector_set(result, i, std::sqrt(search.points.weights[i]) * search.residual(i));
    return GSL_SUCCESS;
}

static int jacobian(const gsl_vector* parameters, void* data, gsl_matrix* result)
{
    Search& search = *static_cast<Search*>(data);
    search.take(parameters);
    for (std::size_t i = 0; i < result->size1; ++i) {
        search.residual(i);
        for (std::size_t j = 0; j < result->size2; ++j)
            gsl_matrix_set(result, i, j, std::sqrt(search.points.weights[i]) * search.slopes[j]);
    }
    return GSL_SUCCESS;
}

/// Whether the residuals vanish, or stand upright on every direction in which the parameters can
/// move the curve.
static bool isAtMinimum(const gsl_multifit_nlinear_workspace& space)
{
    constexpr double kNoResidual = 1e-13;
    constexpr double kUpright = 1e-6;
    const double length = gsl_blas_dnrm2(space.f);
    if (length < kNoResidual)
        return true;
    for (std::size_t j = 0; j < space.J->size2; ++j) {
        const gsl_vector_const_view slopes = gsl_matrix_const_column(space.J, j);
        const double limit = kUpright * length * gsl_blas_dnrm2(&slopes.vector);
        // Not true for NaN either.
        if (!(std::fabs(gsl_vector_get(space.g, j)) <= limit))
            return false;
    }
    return std::isfinite(length);
}

static NonlinearFit resultOf(const gsl_multifit_nlinear_workspace& space, long double weightSum)
{
    NonlinearFit fit;
    const std::size_t count = space.x->size;
    fit.parameters.assign(space.x->data, space.x->data + count);
    fit.distance = gsl_blas_dnrm2(space.f);
    fit.covariance.resize(count * count);
    gsl_matrix_view view = gsl_matrix_view_array(fit.covariance.data(), count, count);
    fit.isConverged =
        isAtMinimum(space) && gsl_multifit_nlinear_covar(space.J, 0.0, &view.matrix) == GSL_SUCCESS;
    for (double& element : fit.covariance)
        element = static_cast<double>(element / weightSum);
    for (std::size_t i = 0; i < count; ++i) {
        double& variance = fit.covariance[i * count + i];
        if (variance == 0.0)
            variance = std::numeric_limits<double>::quiet_NaN();
    }
    return fit;
}

ScaledPoints scaled(const CurvePoints& points, const AbscissaScale& scale, double shift,
                    double unit)
{
    ScaledPoints result;
    for (std::size_t i = 0; i < points.size(); ++i) {
        result.at.push_back(static_cast<double>(scale(points.x[i])));
        result.values.push_back(points.y[i] / unit - shift / unit);
        result.weights.push_back(points.weight(i));
        result.weightSum += points.weight(i);
    }
    for (double& weight : result.weights)
        weight = static_cast<double>(weight / result.weightSum);
    return result;
}

NonlinearFit fitNonlinear(const ParametricCurve& curve, const ScaledPoints& points,
                          const Parameters& start, const GoesOn& goesOn)
{
    constexpr std::size_t kMostSteps = 500;
    constexpr double kParameterTolerance = 1e-11;
    // By default an error ends the process.
    static gsl_error_handler_t* const former = gsl_set_error_handler_off();
    static_cast<void>(former);

    Search search {curve, points, goesOn, start, start};
    gsl_multifit_nlinear_fdf problem {};
    problem.f = residuals;
    problem.df = jacobian;
    problem.n = points.at.size();
    problem.p = start.size();
    problem.params = &search;
    const gsl_multifit_nlinear_parameters settings = gsl_multifit_nlinear_default_parameters();
    const Workspace space(
        gsl_multifit_nlinear_alloc(gsl_multifit_nlinear_trust, &settings, problem.n, problem.p));
    const gsl_vector_const_view first = gsl_vector_const_view_array(start.data(), start.size());
    if (!space || gsl_multifit_nlinear_init(&first.vector, &problem, space.get()) != GSL_SUCCESS)
        return {};
    // Where rounding leaves no better place the search ends with an error: what counts is the
    // place.
    int reason = 0;
    gsl_multifit_nlinear_driver(kMostSteps, kParameterTolerance, 0.0, 0.0, nullptr, nullptr,
                                &reason, space.get());
    return goesOn && !goesOn() ? NonlinearFit() : resultOf(*space, points.weightSum);
}

} // namespace corvala::plot
