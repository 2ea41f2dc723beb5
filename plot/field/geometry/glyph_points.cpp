// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/glyph_points.h"

#include "plot/field/geometry/surface_cells.h"
#include "plot/field/geometry/surface_values.h"

#include <vtkCellCenters.h>
#include <vtkCellData.h>
#include <vtkDataSet.h>
#include <vtkIdList.h>
#include <vtkIdTypeArray.h>
#include <vtkPointData.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <numeric>

namespace corvala::plot {

using Index = std::array<std::int64_t, 3>;

static constexpr unsigned char kBlankedCell =
    vtkDataSetAttributes::HIDDENCELL | vtkDataSetAttributes::DUPLICATECELL;

PointChoice PointChoice::normalized(const host::ZoneInfo& zone) const
{
    PointChoice result = *this;
    if (!zone.ordered)
        result.skip = {{skip[0], 1, 1}};
    return result;
}

static std::size_t at(vtkIdType number)
{
    return static_cast<std::size_t>(number);
}

static GlyphPoints noPoints()
{
    GlyphPoints points {vtkSmartPointer<vtkPoints>::New(), {}};
    points.places->SetDataType(VTK_DOUBLE);
    return points;
}

/// Which points or cells of a zone the skip leaves.
class SkipRule
{
public:
    SkipRule(const host::ZoneInfo& zone, const PointChoice& choice, bool hasIndices = true)
        : m_isOrdered(zone.ordered && hasIndices)
        , m_size(zone.dimensions)
        , m_skip(choice.skip)
    {
        for (std::int64_t& size : m_size)
            size = std::max<std::int64_t>(size - (choice.isOfCells() ? 1 : 0), 1);
    }

    Index indexOf(vtkIdType number) const
    {
        return {number % m_size[0], number / m_size[0] % m_size[1], number / m_size[0] / m_size[1]};
    }
    /// `number` is that of the zone, `place` that among those which are asked for; the index
    /// `across` does not count.
    bool keeps(vtkIdType number, vtkIdType place, int across = -1) const
    {
        if (!m_isOrdered)
            return place % m_skip[0] == 0;
        const Index index = indexOf(number);
        for (int axis = 0; axis < 3; ++axis)
            if (axis != across && index[at(axis)] % m_skip[at(axis)] != 0)
                return false;
        return true;
    }

private:
    bool m_isOrdered;
    Index m_size;
    std::array<int, 3> m_skip;
};

static vtkIdType zoneNumber(const std::vector<vtkIdType>& ids, vtkIdType number)
{
    return ids.empty() ? number : ids[at(number)];
}

/// The index that a face of an ordered zone has in common; -1 without one.
static int axisAcross(const ZoneSurface& surface, const host::ZoneInfo& zone,
                      const Corners& corners)
{
    if (!zone.ordered || !corners.isFace || surface.isCut)
        return -1;
    const SkipRule points(zone, {});
    const Index first = points.indexOf(zoneNumber(surface.pointIds, corners.points[0]));
    std::array<bool, 3> isCommon {{true, true, true}};
    for (vtkIdType i = 1; i < corners.count; ++i) {
        const Index other = points.indexOf(zoneNumber(surface.pointIds, corners.points[i]));
        for (std::size_t axis = 0; axis < 3; ++axis)
            isCommon[axis] = isCommon[axis] && first[axis] == other[axis];
    }
    const auto found = std::find(isCommon.begin(), isCommon.end(), true);
    return found == isCommon.end() ? -1 : static_cast<int>(found - isCommon.begin());
}

static GlyphPoints surfaceNodes(const host::ZoneInfo& zone, const ZoneSurface& surface,
                                const PointChoice& choice)
{
    const SkipRule rule(zone, choice, !surface.isCut);
    std::vector<bool> isKept(at(surface.shape->GetNumberOfPoints()), false);
    forEachCell(*surface.shape, [&](vtkIdType, const Corners& corners) {
        const int across = axisAcross(surface, zone, corners);
        for (vtkIdType i = 0; i < corners.count; ++i) {
            const vtkIdType point = corners.points[i];
            if (rule.keeps(zoneNumber(surface.pointIds, point), point, across))
                isKept[at(point)] = true;
        }
    });
    GlyphPoints result = noPoints();
    for (vtkIdType point = 0; point < surface.shape->GetNumberOfPoints(); ++point) {
        if (isKept[at(point)]) {
            result.ids.push_back(point);
            result.places->InsertNextPoint(surface.shape->GetPoint(point));
        }
    }
    return result;
}

static std::array<double, 3> centreOf(vtkPolyData& shape, const Corners& corners)
{
    std::array<double, 3> centre {};
    double place[3];
    for (vtkIdType i = 0; i < corners.count; ++i) {
        shape.GetPoint(corners.points[i], place);
        for (std::size_t axis = 0; axis < 3; ++axis)
            centre[axis] += place[axis] / static_cast<double>(corners.count);
    }
    return centre;
}

static GlyphPoints surfaceCells(const host::ZoneInfo& zone, const ZoneSurface& surface,
                                const PointChoice& choice)
{
    const SkipRule rule(zone, choice, !surface.isCut);
    GlyphPoints result = noPoints();
    forEachCell(*surface.shape, [&](vtkIdType number, const Corners& corners) {
        if (rule.keeps(zoneNumber(surface.cellIds, number), number,
                       axisAcross(surface, zone, corners))) {
            result.ids.push_back(number);
            result.places->InsertNextPoint(centreOf(*surface.shape, corners).data());
        }
    });
    return result;
}

static bool isBlanked(vtkUnsignedCharArray* ghosts, vtkIdType number, unsigned char bits)
{
    return ghosts && (ghosts->GetValue(number) & bits) != 0;
}

static bool isKept(vtkIdType point, const CutFields& fields)
{
    return std::all_of(fields.begin(), fields.end(),
                       [point](const auto& field) { return field->GetValue(point) > 0.0; });
}

/// The centre of a cell is kept where most of its points are.
static bool isCellKept(vtkDataSet& zone, vtkIdType cell, const CutFields& fields)
{
    vtkNew<vtkIdList> points;
    if (!fields.empty())
        zone.GetCellPoints(cell, points);
    const auto kept = std::count_if(points->begin(), points->end(),
                                    [&](vtkIdType point) { return isKept(point, fields); });
    return 2 * kept >= points->GetNumberOfIds();
}

static GlyphPoints allCells(vtkDataSet& zone, const SkipRule& rule, const CutFields& fields)
{
    vtkNew<vtkIdTypeArray> numbers;
    numbers->SetName("cell");
    numbers->SetNumberOfValues(zone.GetNumberOfCells());
    std::iota(numbers->Begin(), numbers->End(), vtkIdType {0});
    const auto own = vtkSmartPointer<vtkDataSet>::Take(zone.NewInstance());
    own->CopyStructure(&zone);
    own->GetCellData()->AddArray(numbers);
    vtkNew<vtkCellCenters> centres;
    centres->SetInputData(own);
    centres->Update();
    auto* const kept =
        vtkIdTypeArray::SafeDownCast(centres->GetOutput()->GetPointData()->GetArray("cell"));
    GlyphPoints result = noPoints();
    vtkIdType place = 0;
    for (vtkIdType i = 0; kept && i < kept->GetNumberOfValues(); ++i) {
        const vtkIdType cell = kept->GetValue(i);
        if (!isBlanked(zone.GetCellGhostArray(), cell, kBlankedCell)
            && isCellKept(*own, cell, fields) && rule.keeps(cell, place++)) {
            result.ids.push_back(cell);
            result.places->InsertNextPoint(centres->GetOutput()->GetPoint(i));
        }
    }
    return result;
}

enum class PointUse : unsigned char { None, BlankedOnly, Visible };

/// What cells the points of a zone belong to.
static std::vector<PointUse> pointUses(vtkDataSet& shared)
{
    const auto zone = vtkSmartPointer<vtkDataSet>::Take(shared.NewInstance());
    zone->CopyStructure(&shared);
    std::vector<PointUse> uses(at(zone->GetNumberOfPoints()), PointUse::None);
    vtkNew<vtkIdList> points;
    for (vtkIdType cell = 0; cell < zone->GetNumberOfCells(); ++cell) {
        zone->GetCellPoints(cell, points);
        const bool isHidden = isBlanked(shared.GetCellGhostArray(), cell, kBlankedCell);
        for (const vtkIdType point : *points)
            uses[at(point)] =
                std::max(uses[at(point)], isHidden ? PointUse::BlankedOnly : PointUse::Visible);
    }
    return uses;
}

static GlyphPoints allNodes(vtkDataSet& zone, const SkipRule& rule, bool mustBeConnected,
                            const CutFields& fields)
{
    const bool needsUses = mustBeConnected || zone.GetCellGhostArray();
    const std::vector<PointUse> uses = needsUses ? pointUses(zone) : std::vector<PointUse>();
    GlyphPoints result = noPoints();
    vtkIdType place = 0;
    for (vtkIdType point = 0; point < zone.GetNumberOfPoints(); ++point) {
        const PointUse use = needsUses ? uses[at(point)] : PointUse::Visible;
        const bool isShown =
            use == PointUse::Visible || (use == PointUse::None && !mustBeConnected);
        if (isShown && isKept(point, fields)
            && !isBlanked(zone.GetPointGhostArray(), point, vtkDataSetAttributes::HIDDENPOINT)
            && rule.keeps(point, place++)) {
            result.ids.push_back(point);
            result.places->InsertNextPoint(zone.GetPoint(point));
        }
    }
    return result;
}

GlyphPoints glyphPoints(vtkDataSet& zone, const host::ZoneInfo& info, const ZoneSurface* surface,
                        const PointChoice& choice, const CutFields& fields)
{
    const SkipRule rule(info, choice);
    switch (choice.points) {
    case PointsToPlot_SurfaceNodes: return surfaceNodes(info, *surface, choice);
    case PointsToPlot_SurfaceCellCenters: return surfaceCells(info, *surface, choice);
    case PointsToPlot_AllCellCenters: return allCells(zone, rule, fields);
    case PointsToPlot_AllNodes: return allNodes(zone, rule, false, fields);
    case PointsToPlot_AllConnectedNodes: return allNodes(zone, rule, true, fields);
    }
    return noPoints();
}

vtkSmartPointer<vtkDoubleArray> glyphValues(const host::DataSet& data, std::int64_t zone,
                                            std::int64_t variable, const ZoneSurface* surface,
                                            const PointChoice& choice, const GlyphPoints& points)
{
    vtkSmartPointer<vtkDataArray> all;
    if (!choice.isOfSurface()) {
        all = zoneValues(data, zone, variable,
                         choice.isOfCells() ? host::ValueLocation::Cells
                                            : host::ValueLocation::Points);
    } else if (choice.isOfCells()) {
        all = cellValues(data, zone, variable, *surface, CellValue::Average);
    } else {
        all = pointValues(data, zone, variable, *surface);
    }
    if (!all)
        return nullptr;
    auto values = vtkSmartPointer<vtkDoubleArray>::New();
    values->SetNumberOfValues(static_cast<vtkIdType>(points.ids.size()));
    for (std::size_t i = 0; i < points.ids.size(); ++i)
        values->SetValue(static_cast<vtkIdType>(i), all->GetComponent(points.ids[i], 0));
    return values;
}

} // namespace corvala::plot
