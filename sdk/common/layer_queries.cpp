// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common/common.h"

#include "host/document/document.h"
#include "host/document/layer_facts.h"
#include "sdk/private/frame_writes.h"
#include "sdk/uicommon/question.h"
#include "vocabulary/layers.h"

#include <QCoreApplication>

namespace corvala::sdk {

using host::Document;
using host::Frame;

static QString text(const char* source)
{
    return QCoreApplication::translate("LayerQueries", source);
}

static QString nameOf(const style::Layer& layer)
{
    return QCoreApplication::translate("StyleValues", layer.name);
}

bool queryToActivateSidebarLayer(const std::string& layer,
                                 const boost::function<bool(PlotType_e)>& chooser)
{
    const style::Layer* const asked = style::fieldLayerOf(layer);
    const Frame* const frame = Document::instance().activeFrame();
    if (!asked || !frame)
        return false;
    if (frame->isOn(asked->shown))
        return true;
    const PlotType_e plotType = frame->plotType(); // the frame may go while the question is open
    const bool wanted =
        ui::askYesNo(text(QT_TRANSLATE_NOOP("LayerQueries", "Show Layer")),
                     text(QT_TRANSLATE_NOOP("LayerQueries",
                                            "The %1 layer is off, so nothing of it is drawn.\n"
                                            "Do you want to switch it on?"))
                         .arg(nameOf(*asked)));
    if (!wanted || (chooser && !chooser(plotType)))
        return false;
    return writeFrameValue(asked->shown, 1.0) <= StyleWrite_Unchanged;
}

bool queryToEnableSurfacePlotLayer(const std::string& layer)
{
    const style::Layer* const asked = style::fieldLayerOf(layer);
    const Frame* const frame = Document::instance().activeFrame();
    if (!asked || !frame || frame->activeFieldMaps().isEmpty())
        return false;
    const host::NumberSet active = frame->activeFieldMaps(); // the frame may go meanwhile
    const bool wanted = ui::askYesNo(
        text(QT_TRANSLATE_NOOP("LayerQueries", "Show Surfaces")),
        text(QT_TRANSLATE_NOOP("LayerQueries",
                               "No active zone draws its surfaces, so the %1 layer shows "
                               "nothing.\nDo you want to draw the boundary cell faces of the "
                               "active zones?"))
            .arg(nameOf(*asked)));
    if (!wanted)
        return false;
    return Document::instance().execute(host::drawBoundaryFaces(active)).isDone();
}

} // namespace corvala::sdk
