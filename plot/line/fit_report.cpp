// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/line/fit_report.h"

#include "host/document/frame.h"
#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace corvala::plot {

#define FIT_TEXT(text) QT_TRANSLATE_NOOP("FitReport", text)

static QString translated(const char* text)
{
    return QCoreApplication::translate("FitReport", text);
}

QString problemText(CurveProblem problem)
{
    switch (problem) {
    case CurveProblem::None: break;
    case CurveProblem::TooFewPoints: return translated(FIT_TEXT("too few points"));
    case CurveProblem::SameAbscissas:
        return translated(FIT_TEXT("too few different values of the independent variable"));
    case CurveProblem::NonPositiveX:
        return translated(FIT_TEXT("values of the independent variable are not positive"));
    case CurveProblem::NoCommonSign:
        return translated(FIT_TEXT("values of the dependent variable are 0 or have both signs"));
    case CurveProblem::NoPeak: return translated(FIT_TEXT("all points lie at the same height"));
    case CurveProblem::NoConvergence:
        return translated(FIT_TEXT("no such curve comes near the points"));
    case CurveProblem::OutOfRange: return translated(FIT_TEXT("the numbers are too large"));
    case CurveProblem::NoMemory: return translated(FIT_TEXT("not enough memory"));
    }
    return {};
}

static QString numberText(double number)
{
    constexpr int kDigits = 12;
    return std::isfinite(number) ? QString::number(number, 'g', kDigits) : QStringLiteral("-");
}

static QStringList reportLines(const CurveFit& fit)
{
    if (!fit.isValid())
        return {translated(FIT_TEXT("There is no curve: %1.")).arg(problemText(fit.problem))};
    constexpr int kNameWidth = 18;
    constexpr int kNumberWidth = 19;
    QStringList lines;
    const auto row = [&lines](const QString& name, const QString& value, const QString& error) {
        QString line = name.leftJustified(kNameWidth) + value.rightJustified(kNumberWidth)
            + error.rightJustified(kNumberWidth);
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        lines << line;
    };
    if (!fit.coefficients.empty())
        row({}, translated(FIT_TEXT("value")), translated(FIT_TEXT("standard error")));
    for (const Coefficient& some : fit.coefficients)
        row(QString::fromStdString(some.name), numberText(some.value),
            numberText(some.standardError));
    row(translated(FIT_TEXT("R squared")), numberText(fit.rSquared), {});
    row(translated(FIT_TEXT("residual deviation")), numberText(fit.residualDeviation), {});
    row(translated(FIT_TEXT("points")), QString::number(fit.pointCount), {});
    return lines;
}

/// What tells a line of a map from the others, such as "J = 2, K = 1".
static QString lineName(const LineRecipe& recipe, const LinePoints& points, std::size_t line)
{
    const std::size_t begin = line == 0 ? 0 : points.runEnds[line - 1];
    if (begin == points.runEnds[line])
        return {};
    const std::array<std::int64_t, 3> indices = indicesOf(points, points.sources[begin]);
    QStringList names;
    for (std::size_t axis = 0; axis < indices.size(); ++axis)
        if (indices[axis] > 0 && static_cast<int>(axis) != recipe.varying)
            names << QStringLiteral("%1 = %2").arg(QLatin1Char("IJK"[axis])).arg(indices[axis]);
    return names.join(QStringLiteral(", "));
}

static QString reportOn(const std::vector<RunCurve>& curves,
                        const std::function<QString(std::size_t)>& nameOf)
{
    constexpr std::size_t kMost = 50;
    if (curves.empty())
        return reportLines(withoutCurve(CurveProblem::TooFewPoints, 0)).first();
    QStringList lines;
    for (std::size_t i = 0; i < std::min(curves.size(), kMost); ++i) {
        if (curves.size() > 1)
            lines << nameOf(i);
        lines << reportLines(curves[i].fit);
        if (i + 1 < curves.size())
            lines << QString();
    }
    if (curves.size() > kMost)
        lines << translated(FIT_TEXT("These are the first %1 of %2 lines of the map."))
                     .arg(kMost)
                     .arg(curves.size());
    return lines.join(QLatin1Char('\n'));
}

std::optional<QString> FitReports::of(const host::Frame& frame, CvlInt64 map)
{
    const CurveRecipe recipe = curveRecipeOf(frame, map);
    if (!frame.hasData() || recipe.type == CurveType_LineSegments || isSplineType(recipe.type))
        return QString();
    const LineRecipe line = recipeOf(frame, map);
    const auto data = frame.sharedData();
    const auto nameOf = [&](std::size_t i) { return lineName(line, *m_points, i); };
    if (m_data.lock() != data || !(m_line == line) || !m_maker.makes(m_points, recipe)) {
        m_data = data;
        m_line = line;
        m_points = std::make_shared<const LinePoints>(linePoints(*data, line));
        CurveOrder order {m_points, weightsOf(*data, line, *m_points, recipe), recipe};
        if (!areManyToFit(*m_points))
            return reportOn(curvesThrough(*m_points, order.weights, recipe), nameOf);
        m_maker.begin(std::move(order));
    }
    if (!m_maker.wait(0))
        return std::nullopt;
    const QString report = reportOn(m_maker.take(), nameOf);
    m_points.reset();
    return report;
}

} // namespace corvala::plot
