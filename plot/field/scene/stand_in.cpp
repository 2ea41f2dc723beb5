// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/stand_in.h"

#include "plot/field/geometry/color_map.h"

#include <vtkCellArray.h>
#include <vtkPointData.h>
#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <random>

namespace corvala::plot {

static constexpr float kPointPixels = 4.0F;

StandIn::StandIn()
{
    vtkNew<vtkPolyDataMapper> mapper;
    mapper->SetInputData(m_cloud);
    m_actor->SetMapper(mapper);
    m_actor->GetProperty()->SetLighting(false);
    m_actor->GetProperty()->SetPointSize(kPointPixels);
}

/// The colour of a point of a block, as the block's mapper would show it.
static host::Rgb colorOf(vtkPolyData& block, const BlockLook& look, vtkIdType point,
                         const ContourGroups& groups)
{
    vtkPointData& values = *block.GetPointData();
    if (look.mapper.ownColors && values.GetScalars()) {
        double parts[3];
        values.GetScalars()->GetTuple(point, parts);
        return {static_cast<std::uint8_t>(parts[0]), static_cast<std::uint8_t>(parts[1]),
                static_cast<std::uint8_t>(parts[2])};
    }
    const int group = look.mapper.floodGroup;
    if (group == 0 || !values.GetTCoords())
        return look.color;
    double place[3] = {};
    values.GetTCoords()->GetTuple(point, place);
    if (place[1] > 0.5)
        return noValueColor();
    const double share = place[0] * groups.textureScale(group) + groups.textureShift(group);
    return bandColor(groups.colors(group), share, groups.levels(group).bands);
}

void StandIn::take(const std::vector<const CompositeLayer*>& layers, const host::NumberSet& maps,
                   const ContourGroups& groups)
{
    constexpr vtkIdType kFewest = 8;
    const auto drawnBy = [&](CvlInt64 map) {
        const auto found = std::find_if(layers.begin(), layers.end(),
                                        [map](const auto* layer) { return layer->draws(map); });
        return found == layers.end() ? nullptr : *found;
    };
    vtkIdType all = 0;
    for (const std::uint32_t map : maps)
        if (const CompositeLayer* layer = drawnBy(map))
            for (const auto& piece : layer->pieces(map))
                all += piece->GetNumberOfPoints();
    vtkNew<vtkPoints> points;
    vtkNew<vtkCellArray> vertices;
    vtkNew<vtkUnsignedCharArray> colors;
    colors->SetNumberOfComponents(3);
    for (const std::uint32_t map : maps) {
        const CompositeLayer* const layer = drawnBy(map);
        if (!layer)
            continue;
        for (const auto& piece : layer->pieces(map)) {
            const vtkIdType count = piece->GetNumberOfPoints();
            const double share = static_cast<double>(count) / static_cast<double>(all);
            const auto taken = std::min(
                count, kFewest + static_cast<vtkIdType>(share * static_cast<double>(kPoints)));
            // Random points, each time the same: regular steps would beat with the rows of the
            // points.
            std::mt19937 random;
            for (vtkIdType i = 0; i < taken; ++i) {
                const auto source =
                    static_cast<vtkIdType>(random() % static_cast<std::uint64_t>(count));
                const host::Rgb color = colorOf(*piece, layer->look(map), source, groups);
                const vtkIdType point = points->InsertNextPoint(piece->GetPoint(source));
                vertices->InsertNextCell(1, &point);
                colors->InsertNextTuple3(color.red, color.green, color.blue);
            }
        }
    }
    m_cloud->SetPoints(points);
    m_cloud->SetVerts(vertices);
    m_cloud->GetPointData()->SetScalars(colors);
}

} // namespace corvala::plot
