// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/surface_probe.h"

#include "plot/field/geometry/surface_values.h"
#include "plot/field/geometry/zone_cuts.h"

#include <vtkGenericCell.h>

#include <algorithm>
#include <exception>
#include <functional>
#include <utility>

namespace corvala::plot {

static constexpr vtkIdType kMostWaited = 5'000; ///< cells: some milliseconds
static constexpr vtkIdType kMostKept = 4'000'000; ///< cells

void SurfaceProbe::clear()
{
    m_task.reset();
    m_handed = nullptr;
    m_known.clear();
    m_cells = 0;
    m_isPending = false;
}

SurfaceProbe::KnownPointer SurfaceProbe::keep(const Shape& shape, Known known)
{
    if (m_cells > kMostKept) {
        m_known.clear();
        m_cells = 0;
    }
    m_cells += shape->GetNumberOfCells();
    return m_known[shape] = std::make_shared<const Known>(std::move(known));
}

/// A surface that cannot be probed shows that once: it is known, with nothing in it.
void SurfaceProbe::takeBack()
{
    if (!m_task || !m_task->wait(0))
        return;
    Known made;
    try {
        made = m_task->take();
    } catch (const std::exception&) {
        made = {};
    }
    m_task.reset();
    keep(std::exchange(m_handed, nullptr), std::move(made));
}

SurfaceProbe::KnownPointer SurfaceProbe::known(const PlacedSurface& placed,
                                               const std::shared_ptr<const host::DataSet>& data,
                                               CvlInt64 variable)
{
    const auto found = m_known.find(placed.shape);
    if (found != m_known.end() && found->second->variable == variable)
        return found->second;
    std::shared_ptr<const PickTree> tree = found == m_known.end() ? nullptr : found->second->tree;
    Shape separate = tree ? nullptr : separateShape(*placed.shape);
    std::function<Known()> make = [tree, separate = std::move(separate), surface = placed.surface,
                                   zone = placed.zone, data, variable]() mutable {
        Known made;
        made.tree = tree ? tree : std::make_shared<const PickTree>(std::move(separate));
        made.variable = variable;
        if (!surface || !data->hasVariable(variable))
            return made;
        made.areOfCells =
            !surface->isCut && data->values(zone, variable).location == host::ValueLocation::Cells;
        made.values = made.areOfCells
            ? cellValues(*data, zone, variable, *surface, CellValue::Average)
            : pointValues(*data, zone, variable, *surface);
        return made;
    };
    const vtkIdType cells = placed.shape->GetNumberOfCells();
    if (!m_task && cells > m_patience) {
        m_handed = placed.shape;
        m_task = std::make_unique<BackgroundTask<Known>>(std::move(make));
    }
    if (cells > m_patience)
        return nullptr;
    m_patience -= cells;
    return keep(placed.shape, make());
}

/// The corners of a cell with what they count for at a place of it.
static std::vector<double> weightsAt(vtkGenericCell& cell, const std::array<double, 3>& place)
{
    std::vector<double> weights(static_cast<std::size_t>(cell.GetNumberOfPoints()), 0.0);
    double closest[3];
    double parametric[3];
    double distance = 0.0;
    int part = 0;
    cell.EvaluatePosition(place.data(), closest, part, parametric, distance, weights.data());
    return weights;
}

static std::int64_t numberOf(vtkIdType own, const std::vector<vtkIdType>& ofZone)
{
    return 1 + (ofZone.empty() ? own : ofZone[static_cast<std::size_t>(own)]);
}

SurfacePlace SurfaceProbe::describe(const PickRay& ray, const PickRay::Hit& hit,
                                    const PlacedSurface& placed, const Known& known,
                                    const host::DataSet& data)
{
    SurfacePlace found;
    found.zone = placed.zone;
    for (std::size_t axis = 0; axis < 3; ++axis)
        found.place[axis] = ray.from[axis] + hit.position * (ray.to[axis] - ray.from[axis]);
    vtkNew<vtkGenericCell> cell;
    known.tree->getCell(hit.cell, *cell);
    const std::vector<double> weights = weightsAt(*cell, found.place);
    const auto nearest = std::max_element(weights.begin(), weights.end()) - weights.begin();
    if (placed.surface && !placed.surface->isCut && !weights.empty()) {
        found.cell =
            data.zone(placed.zone).cellCount > 0 ? numberOf(hit.cell, placed.surface->cellIds) : 0;
        found.point =
            numberOf(cell->GetPointId(static_cast<int>(nearest)), placed.surface->pointIds);
    }
    if (!known.values)
        return found;
    double value = known.areOfCells ? known.values->GetValue(hit.cell) : 0.0;
    for (std::size_t i = 0; i < weights.size() && !known.areOfCells; ++i)
        value += weights[i] * known.values->GetValue(cell->GetPointId(static_cast<int>(i)));
    found.value = value;
    return found;
}

std::optional<SurfacePlace> SurfaceProbe::probe(const PickRay& ray,
                                                std::vector<Candidate> candidates,
                                                const std::shared_ptr<const host::DataSet>& data,
                                                CvlInt64 variable)
{
    takeBack();
    m_patience = kMostWaited;
    m_isPending = false;
    std::sort(candidates.begin(), candidates.end(),
              [](const auto& one, const auto& other) { return one.entry < other.entry; });
    PickRay::Hit nearest;
    const PlacedSurface* hit = nullptr;
    KnownPointer ofHit;
    for (const Candidate& candidate : candidates) {
        if (candidate.entry >= nearest.position)
            break;
        const KnownPointer surface = known(*candidate.surface, data, variable);
        m_isPending = m_isPending || !surface;
        const PickRay::Hit found =
            surface && surface->tree ? surface->tree->hit(ray) : PickRay::Hit();
        if (found.position < nearest.position) {
            nearest = found;
            hit = candidate.surface;
            ofHit = surface;
        }
    }
    if (m_isPending || !hit)
        return std::nullopt;
    return describe(ray, nearest, *hit, *ofHit, *data);
}

} // namespace corvala::plot
