// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/enums.h>
#include <sdk/base/types.h>
#include <sdk/toolbox/set.h>

#include <QIcon>
#include <QString>

#include <boost/function.hpp>

namespace corvala::propertybindings {

/// One way to join or fit the points of a line map.
class CurveFitInfo
{
public:
    CurveFitInfo() = default; ///< not valid
    CurveFitInfo(CurveType_e type, QString name); ///< `name` as shown, translated
    CurveFitInfo(ExtendedFit_e fit, QString name); ///< one of the extended fits

    bool isValid() const { return m_isValid; }
    QString name() const { return m_name; }
    CurveType_e type() const { return m_type; }
    /// Which of the extended fits; of no meaning for other types.
    ExtendedFit_e extendedFit() const { return m_extendedFit; }
    QIcon icon() const; ///< painted when first asked for; null for a fit that is not valid

    /// Gives the fit to line maps of the active frame, in one host call. Empty when not valid.
    boost::function<void(const toolbox::Set& lineMaps)> curveFitAssigner() const;

    /// The settings of a line map in one line, such as "Not clamped"; "N/A" for a fit without
    /// settings, empty for a line map or frame that does not exist.
    QString detailsForLineMap(CvlUniqueId frame, CvlInt64 lineMap) const;

    /// Opens the settings of the fit for line maps of a frame. Empty when the fit has none.
    boost::function<void()> settingsDialogAction(CvlUniqueId frame,
                                                 const toolbox::Set& lineMaps) const;

    /// Same type, and the same one of the extended fits.
    friend bool operator==(const CurveFitInfo& left, const CurveFitInfo& right);
    friend bool operator!=(const CurveFitInfo& left, const CurveFitInfo& right)
    {
        return !(left == right);
    }

private:
    bool m_isValid = false;
    CurveType_e m_type = CurveType_LineSegments;
    ExtendedFit_e m_extendedFit = ExtendedFit_SmoothingSpline;
    QString m_name;
};

} // namespace corvala::propertybindings
