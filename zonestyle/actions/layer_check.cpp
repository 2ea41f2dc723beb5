// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/layer_check.h"

#include <sdk/base/cvl.h>
#include <sdk/common/app_lock.h>
#include <sdk/common/common.h>
#include <sdk/dialogs_prompt/vector_var_assign_strategy.h>

#include <QCursor>
#include <QGuiApplication>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

static bool assignContourVariables(PlotType_e)
{
    return autoAssignAllContourGroupVariables(ContourLevelsInitializationMode_ResetIfVariableIsNew);
}

static bool isLayer(const style::Layer* layer, const style::Layer& other)
{
    return layer && *layer == other;
}

static boost::function<bool(PlotType_e)> plotTypeChooser(const style::Layer* layer)
{
    if (isLayer(layer, style::kVectorLayer))
        return corvala::dialogs::prompt::VectorVarAssignStrategy();
    if (isLayer(layer, style::kContourLayer))
        return &assignContourVariables;
    return {};
}

LayerCheck::LayerCheck(style::Key key)
    : m_layer(style::fieldLayerShownBy(key))
    , m_plotTypeChooser(plotTypeChooser(m_layer))
    , m_pointsMatter(isLayer(m_layer, style::kVectorLayer)
                     || isLayer(m_layer, style::kScatterLayer))
{
}

void LayerCheck::run() const
{
    const AppLock lock(ImplicitMacroRecording_None);
    const ActiveZones zones = examineActiveZones();
    // Deliberate: with any zone that is no volume among the active ones nothing is asked.
    if (!zones.some || !zones.allVolume)
        return;
    if (queryToActivateSidebarLayer(m_layer->category, m_plotTypeChooser) && zones.noSurfaces
        && !isLayer(m_layer, style::kEdgeLayer))
        queryToEnableSurfacePlotLayer(m_layer->category);
}

LayerCheck::ActiveZones LayerCheck::examineActiveZones() const
{
    struct WaitCursor
    {
        WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
        ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    } const waitCursor;

    ActiveZones found;
    const toolbox::Set active = getActiveZones();
    for (const CvlInt64 zone : active) {
        if (!found.allVolume)
            break;
        found.some = true;
        found.allVolume = isVolumeZone(zone);
        // Once one map draws surfaces the walk goes on for the volume test alone.
        if (found.allVolume && found.noSurfaces)
            found.noSurfaces = !drawsSurfaces(CvlUtilZoneGetFieldMap(zone), m_pointsMatter);
    }
    return found;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
