// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/propertybindings/curve_fit_info.h>

#include <vector>

namespace corvala::propertybindings {

/// The fits that this host offers, in the order of their types, the extended ones last.
class CurveFitCollection
{
public:
    using const_iterator = std::vector<CurveFitInfo>::const_iterator;

    CurveFitCollection();

    int size() const { return static_cast<int>(m_fits.size()); }
    CurveFitInfo get(int index) const; ///< from 0; not valid outside
    const_iterator begin() const { return m_fits.begin(); }
    const_iterator end() const { return m_fits.end(); }

    /// The fit that a line map has. Not valid for a line map or frame that does not exist.
    CurveFitInfo curveFitForLineMap(CvlUniqueId frame, CvlInt64 lineMap) const;

private:
    std::vector<CurveFitInfo> m_fits;
};

} // namespace corvala::propertybindings
