// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertybindings/curve_fit_collection.h"

#include <sdk/toolbox/style_value.h>

#include <vocabulary/style.h>

#include <QCoreApplication>

namespace corvala::propertybindings {

CurveFitCollection::CurveFitCollection()
{
    for (const style::Choice& type : style::entryOf(style::lineMap.curves.curveType).choices) {
        // A document says that a fit is extended, but not which one, so none can be offered.
        if (type.value != CurveType_Extended)
            m_fits.emplace_back(static_cast<CurveType_e>(type.value),
                                QCoreApplication::translate("StyleValues", type.name));
    }
}

CurveFitInfo CurveFitCollection::get(int index) const
{
    return index >= 0 && index < size() ? m_fits[static_cast<std::size_t>(index)] : CurveFitInfo();
}

CurveFitInfo CurveFitCollection::curveFitForLineMap(CvlUniqueId frame, CvlInt64 lineMap) const
{
    const toolbox::FrameStyleValue curveType(frame, style::lineMap.curves.curveType);
    const auto type = curveType.read<int>(lineMap);
    if (!type)
        return {};
    for (const CurveFitInfo& fit : m_fits) {
        if (fit.type() == *type)
            return fit;
    }
    return CurveFitInfo::unavailable(
        static_cast<CurveType_e>(*type),
        QCoreApplication::translate("CurveFitCollection", "Unavailable fit"));
}

} // namespace corvala::propertybindings
