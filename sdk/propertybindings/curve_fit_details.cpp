// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertybindings/curve_fit_details.h"

#include <sdk/common/common.h>

#include <QCoreApplication>

namespace corvala::propertybindings {

namespace {

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

    QString order() const { return tr("Order=%1").arg(setting<int>("PolyOrder")); }

    QString range() const
    {
        return setting<bool>("UseIndVarRange")
            ? tr("Points range=%1,%2").arg(number("IndVarMin"), number("IndVarMax"))
            : tr("Using all points");
    }

    QString weighting() const
    {
        return setting<bool>("UseWeightVar")
            ? tr("Weighting variable=%1")
                  .arg(QString::fromStdString(sdk::variableNameFormattedForAliasesForFrame(
                      m_frame, setting<CvlInt64>("WeightVar"))))
            : tr("Not using weighting variable");
    }

    QString clamping() const
    {
        return setting<bool>("ClampSpline")
            ? tr("Clamped: D1=%1, D2=%2")
                  .arg(number("SplineDerivativeAtStart"), number("SplineDerivativeAtEnd"))
            : tr("Not clamped");
    }

    static QString none() { return tr("N/A"); }

private:
    template<class T>
    T setting(const char* name) const
    {
        const toolbox::FrameStyleValue value(m_frame, "LineMap", "Curves", name);
        return value.read<T>(m_lineMap).value_or(T());
    }

    QString number(const char* name) const { return QString::number(setting<double>(name)); }

    CvlUniqueId m_frame;
    CvlInt64 m_lineMap;
};

} // namespace

QString curveFitDetails(CurveType_e type, CvlUniqueId frame, CvlInt64 lineMap)
{
    const Details details(frame, lineMap);
    const QString separator = QStringLiteral(", ");
    switch (type) {
    case CurveType_LineSegments: return Details::none();
    case CurveType_PolynomialFit:
        return details.order() + separator + details.range() + separator + details.weighting();
    case CurveType_ExponentialFit:
    case CurveType_PowerFit: return details.range() + separator + details.weighting();
    case CurveType_Spline:
    case CurveType_ParametricSpline: return details.clamping();
    case CurveType_Extended: break;
    }
    return {};
}

} // namespace corvala::propertybindings
