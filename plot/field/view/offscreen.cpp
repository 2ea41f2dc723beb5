// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/offscreen.h"

#include "host/document/document.h"
#include "plot/common/picture_size.h"
#include "plot/field/view/opengl_check.h"

#include <QPainter>

#include <vtkRenderWindow.h>
#include <vtkUnsignedCharArray.h>

namespace corvala::plot {

/// Pictures are drawn larger and made smaller, which gives smooth lines with every OpenGL: software
/// renderers leave holes in lines when they smooth by samples.
static constexpr int kMagnification = 2;

static QImage pixelsOf(vtkRenderWindow& window, const QSize& size)
{
    vtkNew<vtkUnsignedCharArray> pixels;
    window.GetPixelData(0, 0, size.width() - 1, size.height() - 1, 0, pixels);
    if (pixels->GetNumberOfTuples() < static_cast<vtkIdType>(size.width()) * size.height())
        return {};
    const QImage upsideDown(pixels->GetPointer(0), size.width(), size.height(), 3 * size.width(),
                            QImage::Format_RGB888);
    return upsideDown.mirrored().convertToFormat(QImage::Format_RGB32);
}

QImage drawFieldImage(CvlUniqueId frame, const CameraState& camera,
                      std::shared_ptr<SurfaceCache> cache, const QSize& size, QString* error,
                      std::vector<SceneNote>* notes)
{
    QString problem = sizeProblem(size);
    if (problem.isEmpty())
        problem = openGlProblem();
    if (error)
        *error = problem;
    if (!problem.isEmpty())
        return {};
    vtkNew<vtkRenderWindow> window;
    window->SetOffScreenRendering(1);
    window->SetMultiSamples(0);
    const QSize drawnSize = size * kMagnification;
    window->SetSize(drawnSize.width(), drawnSize.height());
    FieldView view(std::move(cache));
    view.attach(window);
    const host::Frame* const drawn = host::Document::instance().frame(frame);
    view.setFlat(drawn && drawn->plotType() == PlotType_Field2D);
    view.setCamera(camera);
    view.setSize(size, kMagnification);
    view.scene().setFrame(frame);
    view.scene().advance(-1);
    view.prepare();
    window->Render();
    QImage image =
        pixelsOf(*window, drawnSize).scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QPainter painter(&image);
    view.paintDecorations(painter);
    if (notes)
        *notes = view.scene().notes();
    return image;
}

} // namespace corvala::plot
