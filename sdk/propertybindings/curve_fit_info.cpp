// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertybindings/curve_fit_info.h"

#include <sdk/base/cvl.h>
#include <sdk/dialogs_lineplot/curve_fit_settings_dialog.h>
#include <sdk/private/curve_fit_details.h>
#include <sdk/private/curve_fit_icon.h>
#include <sdk/uicommon/style_writing.h>

namespace corvala::propertybindings {

CurveFitInfo::CurveFitInfo(CurveType_e type, QString name)
    : m_isValid(true)
    , m_type(type)
    , m_name(std::move(name))
{
}

CurveFitInfo::CurveFitInfo(ExtendedFit_e fit, QString name)
    : m_isValid(true)
    , m_type(CurveType_Extended)
    , m_extendedFit(fit)
    , m_name(std::move(name))
{
}

QIcon CurveFitInfo::icon() const
{
    return m_isValid ? curveFitIcon(m_type, m_extendedFit) : QIcon();
}

boost::function<void(const toolbox::Set&)> CurveFitInfo::curveFitAssigner() const
{
    if (!m_isValid)
        return {};
    return [type = m_type, extended = m_extendedFit](const toolbox::Set& lineMaps) {
        // The type follows the choice among the extended fits.
        if (type == CurveType_Extended)
            sdk::ui::writeStyle(style::lineMap.curves.extendedFit, &lineMaps, extended);
        else
            sdk::ui::writeStyle(style::lineMap.curves.curveType, &lineMaps, type);
    };
}

QString CurveFitInfo::detailsForLineMap(CvlUniqueId frame, CvlInt64 lineMap) const
{
    const bool exists = lineMap >= 1 && lineMap <= CvlUtilLineMapGetCountForFrame(frame);
    return m_isValid && exists ? curveFitDetails(*this, frame, lineMap) : QString();
}

boost::function<void()> CurveFitInfo::settingsDialogAction(CvlUniqueId frame,
                                                           const toolbox::Set& lineMaps) const
{
    if (!m_isValid || m_type == CurveType_LineSegments)
        return {};
    return [frame, lineMaps] {
        dialogs::lineplot::CurveFitSettingsDialog::getInstance(nullptr).launch(frame, lineMaps);
    };
}

bool operator==(const CurveFitInfo& left, const CurveFitInfo& right)
{
    return left.m_isValid == right.m_isValid && left.m_type == right.m_type
        && (left.m_type != CurveType_Extended || left.m_extendedFit == right.m_extendedFit);
}

} // namespace corvala::propertybindings
