// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/render.h"

#include "host/document/document.h"
#include "plot/field/view/offscreen.h"
#include "plot/line/line_canvas.h"
#include "plot/stored_view.h"

#include <QCoreApplication>

namespace corvala::plot {

QString paintFrame(CvlUniqueId frame, QPaintDevice& device, Paper paper,
                   std::vector<SceneNote>* notes)
{
    const host::Frame* const drawn = host::Document::instance().frame(frame);
    if (!drawn || !drawn->hasData() || !(drawn->isFieldPlot() || drawn->isLinePlot()))
        return QCoreApplication::translate("corvala::plot", "The frame shows no data");
    const std::any view = storedView(*drawn, drawn->plotType());
    if (!drawn->isFieldPlot())
        return paintLines(frame, std::any_cast<ChartRange>(&view), nullptr, device, paper, notes);
    const auto* const camera = std::any_cast<CameraState>(&view);
    return paintField(frame, camera ? *camera : CameraState(), std::make_shared<SurfaceCache>(),
                      device, paper, notes);
}

QImage renderToImage(CvlUniqueId frame, const QSize& size, QString* error)
{
    return pictureImage(
        size,
        [frame](QPaintDevice& device, Paper paper) { return paintFrame(frame, device, paper); },
        error);
}

} // namespace corvala::plot
