// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/render.h"

#include "host/document/document.h"
#include "plot/field/view/offscreen.h"
#include "plot/line/line_canvas.h"

#include <QCoreApplication>

namespace corvala::plot {

QImage renderToImage(CvlUniqueId frame, const QSize& size, QString* error,
                     std::vector<SceneNote>* notes)
{
    const host::Frame* const drawn = host::Document::instance().frame(frame);
    if (!drawn || !drawn->hasData() || !(drawn->isFieldPlot() || drawn->isLinePlot())) {
        if (error)
            *error = QCoreApplication::translate("corvala::plot", "The frame shows no data");
        return {};
    }
    return drawn->isFieldPlot()
        ? drawFieldImage(frame, CameraState(), std::make_shared<SurfaceCache>(), size, error, notes)
        : drawLineImage(frame, nullptr, size, error);
}

} // namespace corvala::plot
