// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/actions/layer_check.h"

#include <sdk/base/cvl.h>
#include <sdk/common/app_lock.h>
#include <sdk/common/common.h>
#include <sdk/dialogs_prompt/vector_var_assign_strategy.h>

#include <QCursor>
#include <QGuiApplication>

#include <algorithm>
#include <array>
#include <string_view>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

static bool isNamed(const char* name, std::string_view text)
{
    return name && text == name;
}

static bool showsLayer(const StylePath& path)
{
    static constexpr std::array<std::string_view, 6> kLayers {"Mesh",    "Contour",   "Vector",
                                                              "Scatter", "EdgeLayer", "Shade"};
    return isNamed(path[0], "FieldMap") && isNamed(path[2], "Show")
        && std::any_of(kLayers.begin(), kLayers.end(),
                       [&](std::string_view layer) { return isNamed(path[1], layer); });
}

static bool assignContourVariables(PlotType_e)
{
    return autoAssignAllContourGroupVariables(ContourLevelsInitializationMode_ResetIfVariableIsNew);
}

static boost::function<bool(PlotType_e)> plotTypeChooser(const std::string& layer)
{
    if (layer == "Vector")
        return corvala::dialogs::prompt::VectorVarAssignStrategy();
    if (layer == "Contour")
        return &assignContourVariables;
    return {};
}

LayerCheck::LayerCheck(const StylePath& path)
    : m_layerQuery(showsLayer(path))
    , m_layer(m_layerQuery ? path[1] : "")
    , m_plotTypeChooser(plotTypeChooser(m_layer))
    , m_pointsMatter(isNamed(path[1], "Vector") || isNamed(path[1], "Scatter"))
{
}

void LayerCheck::run() const
{
    const AppLock lock(ImplicitMacroRecording_None);
    const ActiveZones zones = examineActiveZones();
    // Deliberate: with any zone that is no volume among the active ones nothing is asked.
    if (!zones.some || !zones.allVolume)
        return;
    if (queryToActivateSidebarLayer(m_layer, m_plotTypeChooser) && zones.noSurfaces
        && m_layer != "EdgeLayer")
        queryToEnableSurfacePlotLayer(m_layer);
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
    for (CvlInt64 zone = active.next(0); zone != 0 && found.allVolume; zone = active.next(zone)) {
        found.some = true;
        found.allVolume = isVolumeZone(zone);
        // Once one map draws surfaces the walk goes on for the volume test alone.
        if (found.allVolume && found.noSurfaces)
            found.noSurfaces = !drawsSurfaces(CvlUtilZoneGetFieldMap(zone), m_pointsMatter);
    }
    return found;
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
