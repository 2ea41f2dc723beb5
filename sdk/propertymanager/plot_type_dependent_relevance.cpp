// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertymanager/plot_type_dependent_relevance.h"

#include <sdk/base/cvl.h>
#include <sdk/signals/state_change_event_observable.h>

namespace corvala::propertymanager {

/// Whether the event may have changed the active frame, its data set or its plot type; edits of
/// style, which are the bulk of events, do not.
static bool concernsPlotType(const toolbox::StateChangeEventInterface& event)
{
    switch (event.stateChange()) {
    case StateCode_Style: return event.styleParam(1) == "PlotType";
    case StateCode_DocumentCleared:
    case StateCode_DocumentLoaded:
    case StateCode_DataSetAttached:
    case StateCode_DataSetDetached:
    case StateCode_FrameListChanged:
    case StateCode_ActiveFrameChanged: return true;
    default: return false;
    }
}

static boost::signals2::connection connectPlotTypeChanged(boost::function<void()> slot)
{
    return signaling::StateChangeEventObservable::getInstance().connect(
        [slot = std::move(slot)](const toolbox::StateChangeEventInterface& event) {
            if (concernsPlotType(event))
                slot();
        });
}

static bool showsPlotType(CvlInt64 first, CvlInt64 second)
{
    const CvlInt64 plotType = CvlUtilFrameGetPlotType();
    return (plotType == first || plotType == second) && CvlUtilDataSetIsAvailable();
}

FieldPlotTypeDependentRelevance::FieldPlotTypeDependentRelevance(bool relevantForFieldPlots)
    : m_expected(relevantForFieldPlots)
{
}

bool FieldPlotTypeDependentRelevance::isRelevant() const
{
    return showsPlotType(PlotType_Field3D, PlotType_Field2D) == m_expected;
}

boost::signals2::connection
FieldPlotTypeDependentRelevance::connectChanged(boost::function<void()> slot) const
{
    return connectPlotTypeChanged(std::move(slot));
}

LinePlotTypeDependentRelevance::LinePlotTypeDependentRelevance(bool relevantForLinePlots)
    : m_expected(relevantForLinePlots)
{
}

bool LinePlotTypeDependentRelevance::isRelevant() const
{
    return showsPlotType(PlotType_LineXY, PlotType_LinePolar) == m_expected;
}

boost::signals2::connection
LinePlotTypeDependentRelevance::connectChanged(boost::function<void()> slot) const
{
    return connectPlotTypeChanged(std::move(slot));
}

} // namespace corvala::propertymanager
