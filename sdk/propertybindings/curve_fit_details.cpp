// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/private/curve_fit_details.h"

#include <sdk/common/common.h>
#include <vocabulary/style.h>

#include <QCoreApplication>

namespace corvala::propertybindings {

namespace {

constexpr const auto& kCurves = style::lineMap.curves;

/// Puts the settings of one line map into words.
class Details
{
    Q_DECLARE_TR_FUNCTIONS(CurveFitDetails)

public:
    Details(CvlUniqueId frame, CvlInt64 lineMap)
        : m_frame(frame)
        , m_lineMap(lineMap)
    {
    }

    QString order() const { return tr("Order=%1").arg(setting<int>(kCurves.polyOrder)); }

    QString range() const
    {
        return setting<bool>(kCurves.useIndVarRange)
            ? tr("Points range=%1,%2").arg(number(kCurves.indVarMin), number(kCurves.indVarMax))
            : tr("Using all points");
    }

    QString weighting() const
    {
        return setting<bool>(kCurves.useWeightVar)
            ? tr("Weighting variable=%1")
                  .arg(QString::fromStdString(sdk::variableNameFormattedForAliasesForFrame(
                      m_frame, setting<CvlInt64>(kCurves.weightVar))))
            : tr("Not using weighting variable");
    }

    QString clamping() const
    {
        return setting<bool>(kCurves.clampSpline)
            ? tr("Clamped: D1=%1, D2=%2")
                  .arg(number(kCurves.splineDerivativeAtStart),
                       number(kCurves.splineDerivativeAtEnd))
            : tr("Not clamped");
    }

    QString closeness() const { return tr("Closeness=%1").arg(number(kCurves.smoothing)); }

    static QString none() { return tr("N/A"); }

private:
    template<class T>
    T setting(style::Key key) const
    {
        const toolbox::FrameStyleValue value(m_frame, key);
        return value.read<T>(m_lineMap).value_or(T());
    }

    QString number(style::RealKey key) const { return QString::number(setting<double>(key)); }

    CvlUniqueId m_frame;
    CvlInt64 m_lineMap;
};

} // namespace

QString curveFitDetails(const CurveFitInfo& fit, CvlUniqueId frame, CvlInt64 lineMap)
{
    const Details details(frame, lineMap);
    const QString separator = QStringLiteral(", ");
    const QString points = details.range() + separator + details.weighting();
    switch (fit.type()) {
    case CurveType_LineSegments: return Details::none();
    case CurveType_PolynomialFit: return details.order() + separator + points;
    case CurveType_ExponentialFit:
    case CurveType_PowerFit: return points;
    case CurveType_Spline:
    case CurveType_ParametricSpline: return details.clamping();
    case CurveType_Extended: break;
    }
    return fit.extendedFit() == ExtendedFit_SmoothingSpline
        ? details.closeness() + separator + points
        : points;
}

} // namespace corvala::propertybindings
