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

CurveFitInfo CurveFitInfo::unavailable(CurveType_e type, QString name)
{
    CurveFitInfo info(type, std::move(name));
    info.m_isValid = false;
    return info;
}

QIcon CurveFitInfo::icon() const
{
    return m_isValid ? curveFitIcon(m_type) : QIcon();
}

boost::function<void(const toolbox::Set&)> CurveFitInfo::curveFitAssigner() const
{
    if (!m_isValid)
        return {};
    return [type = m_type](const toolbox::Set& lineMaps) {
        sdk::ui::writeStyle(style::lineMap.curves.curveType, &lineMaps, type);
    };
}

QString CurveFitInfo::detailsForLineMap(CvlUniqueId frame, CvlInt64 lineMap) const
{
    const bool exists = lineMap >= 1 && lineMap <= CvlUtilLineMapGetCountForFrame(frame);
    return m_isValid && exists ? curveFitDetails(m_type, frame, lineMap) : QString();
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
        && (left.m_type != CurveType_Extended || left.m_name == right.m_name);
}

} // namespace corvala::propertybindings
