// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/view/offscreen.h"

#include "host/document/document.h"
#include "plot/common/picture_size.h"
#include "plot/field/view/opengl_check.h"

#include <QPainter>

#include <vtkRenderWindow.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>

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

/// What black and white shine through alike is not there: the darker picture is that of the colours
/// alone, weighed by how much they cover.
static QImage withoutPaper(QImage onBlack, const QImage& onWhite)
{
    onBlack = onBlack.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < onBlack.height(); ++y) {
        auto* const colors = reinterpret_cast<QRgb*>(onBlack.scanLine(y));
        const auto* const whites = reinterpret_cast<const QRgb*>(onWhite.constScanLine(y));
        for (int x = 0; x < onBlack.width(); ++x) {
            const QRgb color = colors[x];
            const int shining =
                std::max({qRed(whites[x]) - qRed(color), qGreen(whites[x]) - qGreen(color),
                          qBlue(whites[x]) - qBlue(color), 0});
            const int covered = 255 - shining;
            colors[x] = qRgba(std::min(qRed(color), covered), std::min(qGreen(color), covered),
                              std::min(qBlue(color), covered), covered);
        }
    }
    return onBlack;
}

/// In parts, in which the watch is asked; null when it ends the work.
static QImage drawn(FieldView& view, vtkRenderWindow& window, const QSize& size,
                    const WorkWatch& watch)
{
    view.parts().begin(kLargestPiece);
    window.Render();
    while (view.parts().hasMore()) {
        if (watch && !watch(view.parts().drawn(), view.scene().drawingCost()))
            return {};
        view.parts().goOn(kLargestPiece);
        window.Render();
    }
    return pixelsOf(window, size);
}

static QImage pictureOf(FieldView& view, vtkRenderWindow& window, const QSize& size, Paper paper,
                        const WorkWatch& watch)
{
    const QImage onWhite = drawn(view, window, size, watch);
    if (paper == Paper::White || onWhite.isNull())
        return onWhite;
    view.setPaperColor(0.0);
    const QImage onBlack = drawn(view, window, size, watch);
    return onBlack.isNull() ? onBlack : withoutPaper(onBlack, onWhite);
}

QString paintField(CvlUniqueId frame, const CameraState& camera,
                   std::shared_ptr<SurfaceCache> cache, QPaintDevice& device, Paper paper,
                   std::vector<SceneNote>* notes, const WorkWatch& watch)
{
    const QSize size(device.width(), device.height());
    QString problem = sizeProblem(size);
    if (problem.isEmpty())
        problem = openGlProblem();
    if (!problem.isEmpty())
        return problem;
    vtkNew<vtkRenderWindow> window;
    window->SetOffScreenRendering(1);
    window->SetMultiSamples(0);
    const QSize drawnSize = size * kMagnification;
    window->SetSize(drawnSize.width(), drawnSize.height());
    FieldView view(std::move(cache));
    view.attach(window);
    const host::Frame* const shown = host::Document::instance().frame(frame);
    view.setFlat(shown && shown->plotType() == PlotType_Field2D);
    view.setCamera(camera);
    view.setSize(size, kMagnification);
    view.scene().setFrame(frame);
    if (!view.scene().finish(watch))
        return pictureCancelled();
    view.prepare();
    const QImage picture = pictureOf(view, *window, drawnSize, paper, watch);
    if (picture.isNull())
        return pictureCancelled();
    QPainter painter(&device);
    painter.setRenderHint(QPainter::LosslessImageRendering);
    painter.drawImage(0, 0, picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    view.paintDecorations(painter);
    if (notes)
        *notes = view.scene().notes();
    return {};
}

} // namespace corvala::plot
