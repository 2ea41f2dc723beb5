// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/character_shape.h"

#include "plot/common/character_path.h"

#include <QList>
#include <QPolygonF>

#include <vtkImageData.h>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

static constexpr int kTexels = 96; ///< each way
static constexpr double kReach = 1.7; ///< of the picture, from its middle
static constexpr double kFarthest = 0.5; ///< distance that the picture can tell

/// From a place to the outlines, negative inside.
static double distanceTo(const QList<QPolygonF>& outlines, const QPointF& place)
{
    double nearest = kFarthest * kFarthest;
    bool isInside = false;
    for (const QPolygonF& outline : outlines) {
        for (int i = 0; i < outline.size(); ++i) {
            const QPointF from = outline[i];
            const QPointF step = outline[(i + 1) % outline.size()] - from;
            const QPointF way = place - from;
            const double length = std::max(QPointF::dotProduct(step, step), 1e-12);
            const double share = std::clamp(QPointF::dotProduct(way, step) / length, 0.0, 1.0);
            const QPointF gap = way - share * step;
            nearest = std::min(nearest, QPointF::dotProduct(gap, gap));
            const bool crosses = (way.y() < 0.0) != (way.y() < step.y());
            if (crosses && way.x() < way.y() / step.y() * step.x())
                isInside = !isInside;
        }
    }
    return (isInside ? -1.0 : 1.0) * std::sqrt(nearest);
}

vtkSmartPointer<vtkImageData> characterImage(const std::string& character, int font)
{
    const QList<QPolygonF> outlines =
        characterPath(QString::fromStdString(character), font).toSubpathPolygons();
    auto image = vtkSmartPointer<vtkImageData>::New();
    image->SetDimensions(kTexels, kTexels, 1);
    image->AllocateScalars(VTK_UNSIGNED_CHAR, 1);
    const auto placeOf = [](int texel) { return kReach * ((2.0 * texel + 1.0) / kTexels - 1.0); };
    for (int y = 0; y < kTexels; ++y) {
        for (int x = 0; x < kTexels; ++x) {
            const double away = distanceTo(outlines, {placeOf(x), placeOf(y)});
            *static_cast<unsigned char*>(image->GetScalarPointer(x, y, 0)) =
                static_cast<unsigned char>(
                    std::lround(127.5 * (1.0 + std::clamp(away / kFarthest, -1.0, 1.0))));
        }
    }
    return image;
}

double characterReach()
{
    return kReach;
}

std::string characterDistance(const std::string& texture, const std::string& place)
{
    return "(2.0 * texture(" + texture + ", 0.5 + 0.5 * " + place + " / " + std::to_string(kReach)
        + ").r - 1.0) * " + std::to_string(kFarthest);
}

} // namespace corvala::plot
