// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/curves/cubic_spline.h"
#include "plot/curves/exponential_fit.h"
#include "plot/curves/gaussian_fit.h"
#include "plot/curves/polynomial_fit.h"
#include "plot/curves/smoothing_spline.h"
#include "tests/support/rows.h"

#include <QtTest>

#include <cmath>
#include <functional>

using namespace corvala::plot;
using namespace corvala::tests;

using Numbers = std::vector<double>;
using Function = std::function<double(double)>;
using Fit = std::function<CurveFit(const CurvePoints&)>;

static constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
static constexpr double kInfinity = std::numeric_limits<double>::infinity();

static constexpr double kCertain = 10; ///< digits

// Data and certified values: National Institute of Standards and Technology, Statistical Reference
// Datasets (public domain).

static CurvePoints norris()
{
    return {{0.2, 337.4, 118.2, 884.6, 10.1,  226.5, 666.3, 996.3, 448.6, 777.0, 558.2, 0.4,
             0.6, 775.5, 666.9, 338.0, 447.5, 11.6,  556.0, 228.1, 995.8, 887.6, 120.2, 0.3,
             0.3, 556.8, 339.1, 887.2, 999.0, 779.0, 11.1,  118.3, 229.2, 669.1, 448.9, 0.5},
            {0.1, 338.8, 118.1, 888.0, 9.2,   228.1, 668.5, 998.5, 449.1, 778.9, 559.2, 0.3,
             0.1, 778.1, 668.8, 339.3, 448.9, 10.8,  557.7, 228.3, 998.0, 888.8, 119.6, 0.3,
             0.6, 557.6, 339.3, 888.0, 998.5, 778.9, 10.2,  117.6, 228.9, 668.4, 449.2, 0.2}};
}

static CurvePoints pontius()
{
    CurvePoints points;
    points.y = {.11019,  .21956,  .32949,  .43899,  .54803,  .65694,  .76562,  .87487,
                .98292,  1.09146, 1.20001, 1.30822, 1.41599, 1.52399, 1.63194, 1.73947,
                1.84646, 1.95392, 2.06128, 2.16844, .11052,  .22018,  .32939,  .43886,
                .54798,  .65739,  .76596,  .87474,  .98300,  1.09150, 1.20004, 1.30818,
                1.41613, 1.52408, 1.63159, 1.73965, 1.84696, 1.95445, 2.06177, 2.16829};
    for (std::size_t i = 0; i < points.y.size(); ++i)
        points.x.push_back(150000.0 * static_cast<double>(i % 20 + 1));
    return points;
}

static CurvePoints filip()
{
    return {
        {-6.860120914, -4.324130045, -4.358625055, -4.358426747, -6.955852379, -6.661145254,
         -6.355462942, -6.118102026, -7.115148017, -6.815308569, -6.519993057, -6.204119983,
         -5.853871964, -6.109523091, -5.79832982,  -5.482672118, -5.171791386, -4.851705903,
         -4.517126416, -4.143573228, -3.709075441, -3.499489089, -6.300769497, -5.953504836,
         -5.642065153, -5.031376979, -4.680685696, -4.329846955, -3.928486195, -8.56735134,
         -8.363211311, -8.107682739, -7.823908741, -7.522878745, -7.218819279, -6.920818754,
         -6.628932138, -6.323946875, -5.991399828, -8.781464495, -8.663140179, -8.473531488,
         -8.247337057, -7.971428747, -7.676129393, -7.352812702, -7.072065318, -6.774174009,
         -6.478861916, -6.159517513, -6.835647144, -6.53165267,  -6.224098421, -5.910094889,
         -5.598599459, -5.290645224, -4.974284616, -4.64454848,  -4.290560426, -3.885055584,
         -3.408378962, -3.13200249,  -8.726767166, -8.66695597,  -8.511026475, -8.165388579,
         -7.886056648, -7.588043762, -7.283412422, -6.995678626, -6.691862621, -6.392544977,
         -6.067374056, -6.684029655, -6.378719832, -6.065855188, -5.752272167, -5.132414673,
         -4.811352704, -4.098269308, -3.66174277,  -3.2644011},
        {0.8116, 0.9072, 0.9052, 0.9039, 0.8053, 0.8377, 0.8667, 0.8809, 0.7975, 0.8162, 0.8515,
         0.8766, 0.8885, 0.8859, 0.8959, 0.8913, 0.8959, 0.8971, 0.9021, 0.909,  0.9139, 0.9199,
         0.8692, 0.8872, 0.89,   0.891,  0.8977, 0.9035, 0.9078, 0.7675, 0.7705, 0.7713, 0.7736,
         0.7775, 0.7841, 0.7971, 0.8329, 0.8641, 0.8804, 0.7668, 0.7633, 0.7678, 0.7697, 0.77,
         0.7749, 0.7796, 0.7897, 0.8131, 0.8498, 0.8741, 0.8061, 0.846,  0.8751, 0.8856, 0.8919,
         0.8934, 0.894,  0.8957, 0.9047, 0.9129, 0.9209, 0.9219, 0.7739, 0.7681, 0.7665, 0.7703,
         0.7702, 0.7761, 0.7809, 0.7961, 0.8253, 0.8602, 0.8809, 0.8301, 0.8664, 0.8834, 0.8898,
         0.8964, 0.8963, 0.9074, 0.9119, 0.9228},
    };
}

/// Wampler's third to fifth sets are his first one with these residuals, 1, 100 and 10000 times.
static CurvePoints wampler(double factor)
{
    const Numbers residuals {759,   -2048, 2048,  -2048, 2523,  -2048, 2048,
                             -2048, 1838,  -2048, 2048,  -2048, 1838,  -2048,
                             2048,  -2048, 2523,  -2048, 2048,  -2048, 759};
    CurvePoints points;
    for (std::size_t i = 0; i < residuals.size(); ++i) {
        const double x = static_cast<double>(i);
        points.x.push_back(x);
        points.y.push_back(1 + x * (1 + x * (1 + x * (1 + x * (1 + x)))) + factor * residuals[i]);
    }
    return points;
}

static CurvePoints wampler2()
{
    CurvePoints points = wampler(0.0);
    points.y = {1.00000,  1.11111,  1.24992,  1.42753,  1.65984,  1.96875,  2.38336,
                2.94117,  3.68928,  4.68559,  6.00000,  7.71561,  9.92992,  12.75603,
                16.32384, 20.78125, 26.29536, 33.05367, 41.26528, 51.16209, 63.00000};
    return points;
}

static const Numbers kWamplerErrors {2152.32624678170, 2363.55173469681, 779.343524331583,
                                     101.475507550350, 5.64566512170752, 0.112324854679312};

static Numbers times(double factor, Numbers numbers)
{
    for (double& number : numbers)
        number *= factor;
    return numbers;
}

static CurvePoints pointsOf(const Function& function, double first, std::size_t count)
{
    return sampleCurve(function, first, first + static_cast<double>(count - 1), count);
}

static Fit polynomial(int order)
{
    return [order](const CurvePoints& points) { return fitPolynomial(points, order); };
}

static Fit smoothing(double detail)
{
    return [detail](const CurvePoints& points) { return fitSmoothingSpline(points, detail); };
}

static Fit gaussian(const GoesOn& goesOn = {})
{
    return [goesOn](const CurvePoints& points) { return fitGaussian(points, goesOn); };
}

static Fit exponential()
{
    return [](const CurvePoints& points) { return fitExponential(points); };
}

static Fit power()
{
    return [](const CurvePoints& points) { return fitPower(points); };
}

static Fit spline(const EndSlopes& ends = {})
{
    return [ends](const CurvePoints& points) { return splineThrough(points, ends); };
}

/// Digits that agree; of small numbers, those behind the point.
static double digits(double found, double certain)
{
    const double apart = std::fabs(found - certain) / std::max(std::fabs(certain), 1e-300);
    return -std::log10(std::min(certain == 0.0 ? std::fabs(found) : apart, 1.0) + 1e-17);
}

class TestCurveFits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void certified_values_data();
    void certified_values();
    void curves_data();
    void curves();
    void paths_data();
    void paths();
    void problems_data();
    void problems();
};

void TestCurveFits::certified_values_data()
{
    const Rows<Fit, CurvePoints, Numbers, Numbers, double, double> row;
    row("Norris", polynomial(1), norris(), {-0.262323073774029, 1.00211681802045},
        {0.232818234301152, 0.429796848199937E-03}, 0.999993745883712, 0.884796396144373);
    row("Pontius", polynomial(2), pontius(),
        {0.673565789473684E-03, 0.732059160401003E-06, -0.316081871345029E-14},
        {0.107938612033077E-03, 0.157817399981659E-09, 0.486652849992036E-16}, 0.999999900178537,
        0.205177424076185E-03);
    row("Filip", polynomial(10), filip(),
        {-1467.48961422980, -2772.17959193342, -2316.37108160893, -1127.97394098372,
         -354.478233703349, -75.1242017393757, -10.8753180355343, -1.06221498588947,
         -0.670191154593408E-01, -0.246781078275479E-02, -0.402962525080404E-04},
        {298.084530995537, 559.779865474950, 466.477572127796, 227.204274477751, 71.6478660875927,
         15.2897178747400, 2.23691159816033, 0.221624321934227, 0.142363763154724E-01,
         0.535617408889821E-03, 0.896632837373868E-05},
        0.996727416185620, 0.334801051324544E-02);
    const Numbers ones(6, 1.0);
    const Numbers zeros(6, 0.0);
    row("Wampler 1", polynomial(5), wampler(0.0), ones, zeros, 1.0, 0.0);
    row("Wampler 2", polynomial(5), wampler2(), {1.0, 0.1, 0.01, 0.001, 0.0001, 0.00001}, zeros,
        1.0, 0.0);
    row("Wampler 3", polynomial(5), wampler(1.0), ones, kWamplerErrors, 0.999995559025820,
        2360.14502379268);
    row("Wampler 4", polynomial(5), wampler(100.0), ones, times(100.0, kWamplerErrors),
        0.957478440825662, 236014.502379268);
    row("Wampler 5", polynomial(5), wampler(10000.0), ones, times(10000.0, kWamplerErrors),
        0.224668921574940E-02, 23601450.2379268);
    row("DanWood", power(),
        {{1.309, 1.471, 1.490, 1.565, 1.611, 1.680}, {2.138, 3.421, 3.597, 4.340, 4.882, 5.660}},
        {7.6886226176E-01, 3.8604055871E+00}, {1.8281973860E-02, 5.1726610913E-02},
        1 - 4.3173084083E-03 / 7.61357733333333, 3.2853114039E-02);
}

/// Coefficients, their standard errors, R squared and the residual deviation.
void TestCurveFits::certified_values()
{
    const auto [fitted, points, values, errors, rSquared, deviation] =
        currentRow<Fit, CurvePoints, Numbers, Numbers, double, double>();
    const CurveFit fit = fitted(points);
    QVERIFY(fit.isValid());
    QCOMPARE(fit.coefficients.size(), values.size());
    QCOMPARE(fit.pointCount, points.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const Coefficient& found = fit.coefficients[i];
        QVERIFY2(digits(found.value, values[i]) >= kCertain, found.name.c_str());
        QVERIFY2(digits(found.standardError, errors[i]) >= kCertain, found.name.c_str());
    }
    QVERIFY(digits(fit.rSquared, rSquared) >= kCertain);
    QVERIFY(digits(fit.residualDeviation, deviation) >= kCertain);
}

void TestCurveFits::curves_data()
{
    // What is fitted, its points, the curve, its coefficients, R squared.
    const Rows<Fit, CurvePoints, Function, Numbers, double> row;
    const Function dip = [](double x) { return 2 - 3 * std::exp(-std::pow(x - 30.2, 2) / 32); };
    row("Gaussian dip", gaussian(), pointsOf(dip, 0, 60), dip, {2, -3, 30.2, 4}, 1);
    const Function needle = [](double x) {
        return 5e-12 + 1e-12 * std::exp(-std::pow(x - 1e9 - 700.5, 2) / 4.5);
    };
    row("narrow Gaussian far out", gaussian(), pointsOf(needle, 1e9, 1000), needle,
        {5e-12, 1e-12, 1e9 + 700.5, 1.5}, 1);
    const Function decay = [](double x) { return 3 * std::exp(-0.25 * x); };
    row("exponential", exponential(), pointsOf(decay, -5, 12), decay, {3, -0.25}, 1);
    const Function debt = [](double x) { return -3 * std::exp(-0.25 * x); };
    row("negative exponential", exponential(), pointsOf(debt, -5, 12), debt, {-3, -0.25}, 1);
    const Function decades = [](double x) { return std::exp(20 * x); };
    row("over 170 decades", exponential(), pointsOf(decades, -10, 21), decades, {1, 20}, 1);
    const Function law = [](double x) { return 0.5 * std::pow(x, -1.5); };
    row("power", power(), pointsOf(law, 1, 9), law, {0.5, -1.5}, 1);
    const Function farLine = [](double x) { return 2e-12 + 1e-21 * (x - 1e9); };
    row("line far out", polynomial(1), pointsOf(farLine, 1e9, 100), farLine, {1e-12, 1e-21}, 1);
    const Function constant = [](double) { return 0.5; };
    row("constant", polynomial(4), pointsOf(constant, 0, 12), constant, {0.5, 0, 0, 0, 0}, 1);
    const Function line = [](double x) { return 1 + 2 * x; };
    row("not finite", polynomial(1), {{0, kNaN, 1, 2, kInfinity, 3}, {1, 0, kNaN, 5, 0, 7}}, line,
        {1, 2}, 1);
    row("bad weights", polynomial(1),
        {{0, 1, 2, 3, 4, 5, 6}, {1, 0, 0, 7, 9, 0, 0}, {1, 0, -1, 1, 1e-9, kNaN}}, line, {1, 2}, 1);
    row(
        "weights", polynomial(1), {{0, 1, 1}, {1, 2, 5}, {1, 1, 2}},
        [](double x) { return 1 + 3 * x; }, {1, 3}, 1 - 6 / 12.75);
    row("range", polynomial(1), {{-1, 0, 1, 2, 3}, {0, 1, 3, 5, 0}, {}, 2.5, 0}, line, {1, 2}, 1);

    const Function cube = [](double x) { return x * (x * x - 1); };
    row("clamped spline", spline({26, 26}), pointsOf(cube, -3, 7), cube, {}, 1);
    row(
        "mean of two", spline({0, 8}), {{4, 0, 2, 2}, {16, 0, 3, 5}},
        [](double x) { return x * x; }, {}, 1 - 2.0 / 146);
    const CurvePoints roof {{0, 1, 2}, {0, 1, 0}};
    const Function arch = [](double x) {
        const double inside = 1 - std::fabs(x - 1);
        return 1.5 * inside - 0.5 * std::pow(inside, 3);
    };
    row("natural spline", spline(), roof, arch, {}, 1);
    row("all detail", smoothing(1), roof, arch, {3}, 1);
    const double kept = 1 / (1 + 216 / std::pow(M_PI, 4)); // at one half wave
    row(
        "some detail", smoothing(1.0 / 11), roof,
        [=](double x) { return (1 - kept) / 3 + kept * arch(x); }, {2 + kept},
        1 - std::pow(1 - kept, 2));
    row(
        "no detail", smoothing(0), roof, [](double) { return 1.0 / 3; }, {2}, 0);
}

void TestCurveFits::curves()
{
    const auto [fitted, points, expected, coefficients, rSquared] =
        currentRow<Fit, CurvePoints, Function, Numbers, double>();
    const CurveFit fit = fitted(points);
    QVERIFY(fit.isValid());
    const CurvePoints used = usable(points);
    QCOMPARE(fit.pointCount, used.size());
    const auto [low, high] = std::minmax_element(used.x.begin(), used.x.end());
    const CurvePoints samples = sampleCurve(fit.value, *low, *high, 77);
    QCOMPARE(samples.x.back(), *high);
    double highest = 0.0;
    double furthest = 0.0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double y = expected(samples.x[i]);
        highest = std::max(highest, std::fabs(y));
        furthest = std::max(furthest, std::fabs(y - samples.y[i]));
    }
    QVERIFY2(furthest <= 1e-9 * highest, qPrintable(QString::number(furthest / highest)));
    QCOMPARE(fit.coefficients.size(), coefficients.size());
    for (std::size_t i = 0; i < coefficients.size(); ++i)
        QVERIFY2(digits(fit.coefficients[i].value, coefficients[i]) >= 8,
                 fit.coefficients[i].name.c_str());
    QVERIFY(digits(fit.rSquared, rSquared) >= 9);
}

/// Points of a circle of radius 1 from its top to the left and all the way round, each several
/// times.
static CurvePoints circle(std::size_t count, int times)
{
    CurvePoints points;
    for (std::size_t i = 0; i <= count; ++i) {
        const double angle = 2 * M_PI * static_cast<double>(i) / static_cast<double>(count);
        points.x.insert(points.x.end(), std::size_t(times), -std::sin(angle));
        points.y.insert(points.y.end(), std::size_t(times), std::cos(angle));
    }
    return points;
}

void TestCurveFits::paths_data()
{
    // Points, slopes at the ends, what vanishes on the curve, and how well.
    const Rows<CurvePoints, EndSlopes, std::function<double(double, double)>, double> row;
    const auto onCircle = [](double x, double y) { return x * x + y * y - 1; };
    row("clamped circle", circle(200, 1), {0, 0}, onCircle, 2e-8);
    row("natural circle", circle(200, 1), {}, onCircle, 1e-4);
    row("points twice", circle(200, 2), {0, 0}, onCircle, 2e-8);
    const auto onLine = [](double x, double y) { return x - 1e-6 * y; };
    row("line of unlike units", {{0, 1, 5, 3}, {0, 1e6, 5e6, 3e6}}, {}, onLine, 1e-14);
    const auto upright = [](double x, double) { return x - 2; };
    row("upright", {{2, 2, 2}, {0, 1, 5}}, {}, upright, 1e-14);
}

void TestCurveFits::paths()
{
    const auto [points, ends, off, tolerance] =
        currentRow<CurvePoints, EndSlopes, std::function<double(double, double)>, double>();
    const SplinePath path = parametricSplineThrough(points, ends);
    QCOMPARE(path.problem, CurveProblem::None);
    const CurvePoints samples = samplePath(path, 1001);
    for (std::size_t i = 0; i < samples.size(); ++i)
        QVERIFY(std::fabs(off(samples.x[i], samples.y[i])) <= tolerance);
    QCOMPARE(samples.x.front(), points.x.front());
    QCOMPARE(samples.y.back(), points.y.back());
}

void TestCurveFits::problems_data()
{
    const Rows<Fit, CurvePoints, CurveProblem> row;
    const CurvePoints same {{2, 2, 2, 2, 2}, {1, 2, 3, 4, 5}};
    const CurvePoints two {{0, 1e-300, kNaN}, {1, 2, 3}};
    const std::vector<std::tuple<QString, Fit, CurveProblem>> fits {
        {"polynomial", polynomial(2), CurveProblem::TooFewPoints},
        {"exponential", exponential(), CurveProblem::None},
        {"Gaussian", gaussian(), CurveProblem::TooFewPoints},
        {"spline", spline(), CurveProblem::None},
        {"smoothing", smoothing(0.5), CurveProblem::None},
    };
    for (const auto& [name, fit, ofTwo] : fits) {
        row(name + " of nothing", fit, {}, CurveProblem::TooFewPoints);
        row(name + " of one point", fit, {{1, 2}, {1}}, CurveProblem::TooFewPoints);
        row(name + " of two points", fit, two, ofTwo);
        row(name + " at one place", fit, same, CurveProblem::SameAbscissas);
    }
    row("places that merge", polynomial(3), {{0, 1e-60, 1, 2}, {0, 1, 2, 3}},
        CurveProblem::SameAbscissas);
    row("y of 0", exponential(), {{1, 2}, {0, 1}}, CurveProblem::NoCommonSign);
    row("x of 0", power(), {{0, 2}, {1, 1}}, CurveProblem::NonPositiveX);
    row("no peak", gaussian(), pointsOf([](double) { return 3; }, 0, 9), CurveProblem::NoPeak);
    row("given up", gaussian([] { return false; }),
        pointsOf([](double x) { return std::exp(-x * x); }, -4, 9), CurveProblem::NoConvergence);
    row("overflow", spline(), {{0, 1, 2}, {-1.7e308, 1.7e308, 0}}, CurveProblem::OutOfRange);
}

void TestCurveFits::problems()
{
    const auto [fitted, points, problem] = currentRow<Fit, CurvePoints, CurveProblem>();
    const CurveFit fit = fitted(points);
    QCOMPARE(fit.problem, problem);
    QCOMPARE(fit.pointCount, usable(points).size());
    QCOMPARE(std::isnan(fit.value(0.0)), problem != CurveProblem::None);
}

QTEST_APPLESS_MAIN(TestCurveFits)
#include "tst_curve_fits.moc"
