// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertybindings/curve_fit_collection.h"

#include <sdk/toolbox/style_value.h>

#include <vocabulary/style.h>

#include <QCoreApplication>

namespace corvala::propertybindings {

static QString nameOf(const style::Choice& choice)
{
    return QCoreApplication::translate("StyleValues", choice.name);
}

CurveFitCollection::CurveFitCollection()
{
    for (const style::Choice& type : style::kCurveTypes)
        if (type.value != CurveType_Extended)
            m_fits.emplace_back(static_cast<CurveType_e>(type.value), nameOf(type));
    for (const style::Choice& fit : style::kExtendedFits)
        m_fits.emplace_back(static_cast<ExtendedFit_e>(fit.value), nameOf(fit));
}

CurveFitInfo CurveFitCollection::get(int index) const
{
    return index >= 0 && index < size() ? m_fits[static_cast<std::size_t>(index)] : CurveFitInfo();
}

CurveFitInfo CurveFitCollection::curveFitForLineMap(CvlUniqueId frame, CvlInt64 lineMap) const
{
    const auto read = [&](style::Key key) {
        return toolbox::FrameStyleValue(frame, key).read<int>(lineMap).value_or(-1);
    };
    const int type = read(style::lineMap.curves.curveType);
    const int extended = type == CurveType_Extended ? read(style::lineMap.curves.extendedFit) : -1;
    for (const CurveFitInfo& fit : m_fits)
        if (fit.type() == type && (extended < 0 || fit.extendedFit() == extended))
            return fit;
    return {};
}

} // namespace corvala::propertybindings
