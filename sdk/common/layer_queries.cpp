// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common/common.h"

#include "host/document/document.h"
#include "host/document/layer_facts.h"
#include "sdk/common/frame_writes.h"
#include "sdk/uicommon/question.h"

#include <QCoreApplication>

namespace corvala::sdk {

using host::Document;
using host::Frame;

static QString text(const char* source)
{
    return QCoreApplication::translate("LayerQueries", source);
}

/// "FieldLayers" name and shown name of a layer, by the name of its category.
struct LayerName
{
    const char* category;
    const char* layer;
    const char* shown;
};

static constexpr LayerName kLayers[] = {
    {"Mesh", "ShowMesh", QT_TRANSLATE_NOOP("LayerQueries", "mesh")},
    {"Contour", "ShowContour", QT_TRANSLATE_NOOP("LayerQueries", "contour")},
    {"Vector", "ShowVector", QT_TRANSLATE_NOOP("LayerQueries", "vector")},
    {"Scatter", "ShowScatter", QT_TRANSLATE_NOOP("LayerQueries", "scatter")},
    {"EdgeLayer", "ShowEdge", QT_TRANSLATE_NOOP("LayerQueries", "edge")},
    {"Shade", "ShowShade", QT_TRANSLATE_NOOP("LayerQueries", "shade")},
};

static const LayerName* layerNamed(const std::string& category)
{
    for (const LayerName& layer : kLayers)
        if (category == layer.category)
            return &layer;
    return nullptr;
}

bool queryToActivateSidebarLayer(const std::string& layer,
                                 const boost::function<bool(PlotType_e)>& chooser)
{
    const LayerName* const name = layerNamed(layer);
    const Frame* const frame = Document::instance().activeFrame();
    if (!name || !frame)
        return false;
    if (frame->fieldLayer(name->layer))
        return true;
    const PlotType_e plotType = frame->plotType(); // the frame may go while the question is open
    const bool wanted =
        ui::askYesNo(text(QT_TRANSLATE_NOOP("LayerQueries", "Show Layer")),
                     text(QT_TRANSLATE_NOOP("LayerQueries",
                                            "The %1 layer is off, so nothing of it is drawn.\n"
                                            "Do you want to switch it on?"))
                         .arg(text(name->shown)));
    if (!wanted || (chooser && !chooser(plotType)))
        return false;
    return writeFrameValue({"FieldLayers", name->layer}, 1.0) <= StyleWrite_Unchanged;
}

bool queryToEnableSurfacePlotLayer(const std::string& layer)
{
    const LayerName* const name = layerNamed(layer);
    const Frame* const frame = Document::instance().activeFrame();
    if (!name || !frame || frame->activeFieldMaps().isEmpty())
        return false;
    const host::NumberSet active = frame->activeFieldMaps(); // the frame may go meanwhile
    const bool wanted = ui::askYesNo(
        text(QT_TRANSLATE_NOOP("LayerQueries", "Show Surfaces")),
        text(QT_TRANSLATE_NOOP("LayerQueries",
                               "No active zone draws its surfaces, so the %1 layer shows "
                               "nothing.\nDo you want to draw the boundary cell faces of the "
                               "active zones?"))
            .arg(text(name->shown)));
    if (!wanted)
        return false;
    return Document::instance().execute(host::drawBoundaryFaces(active)).isDone();
}

} // namespace corvala::sdk
