// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/property/relevance_interface.h>

namespace corvala::propertymanager {

/// Relevant while the active frame has a data set and shows a field plot; made with false, while
/// it does not.
class FieldPlotTypeDependentRelevance : public property::RelevanceInterface
{
public:
    explicit FieldPlotTypeDependentRelevance(bool relevantForFieldPlots);
    bool isRelevant() const override;
    boost::signals2::connection connectChanged(boost::function<void()> slot) const override;

private:
    bool m_expected;
};

/// Relevant while the active frame has a data set and shows an XY or polar line plot; made with
/// false, while it does not.
class LinePlotTypeDependentRelevance : public property::RelevanceInterface
{
public:
    explicit LinePlotTypeDependentRelevance(bool relevantForLinePlots);
    bool isRelevant() const override;
    boost::signals2::connection connectChanged(boost::function<void()> slot) const override;

private:
    bool m_expected;
};

} // namespace corvala::propertymanager
