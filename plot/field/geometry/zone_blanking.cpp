// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/zone_blanking.h"

#include <vtkCellData.h>
#include <vtkDataSet.h>
#include <vtkDataSetAttributes.h>
#include <vtkIdList.h>
#include <vtkNew.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <cmath>

namespace corvala::plot {

/// One side of a comparison.
class Operand
{
public:
    Operand(const host::DataSet& data, std::int64_t zone, std::int64_t variable)
        : m_values(data.values(zone, variable))
    {
    }
    explicit Operand(double constant)
        : m_constant(constant)
        , m_isConstant(true)
    {
    }

    bool exists() const { return m_isConstant || m_values.array; }
    bool isOfCells() const
    {
        return !m_isConstant && m_values.location == host::ValueLocation::Cells;
    }
    double at(vtkIdType place) const
    {
        return m_isConstant ? m_constant : m_values.array->GetComponent(place, 0);
    }
    /// The value of a cell, or the average at its points.
    double ofCell(vtkIdType cell, vtkIdList& points) const
    {
        if (m_isConstant || isOfCells())
            return at(cell);
        double sum = 0.0;
        for (const vtkIdType point : points)
            sum += at(point);
        return sum / static_cast<double>(points.GetNumberOfIds());
    }

private:
    host::ZoneValues m_values;
    double m_constant = 0.0;
    bool m_isConstant = false;
};

static bool holds(double left, Relation_e relation, double right)
{
    if (std::isnan(left) || std::isnan(right))
        return false;
    switch (relation) {
    case Relation_LessOrEqual: return left <= right;
    case Relation_GreaterOrEqual: return left >= right;
    case Relation_Less: return left < right;
    case Relation_Greater: return left > right;
    case Relation_Equal: return left == right;
    case Relation_NotEqual: return left != right;
    }
    return false;
}

/// A test in the zone that it is made on.
struct ZoneTest
{
    Operand left;
    Relation_e relation;
    Operand right;

    bool applies() const { return left.exists() && right.exists(); }
    bool isOfCells() const { return left.isOfCells() || right.isOfCells(); }
    bool cuts() const
    {
        return !isOfCells() && relation != Relation_Equal && relation != Relation_NotEqual;
    }
    bool namesCell(vtkIdType cell, vtkIdList& points, BlankedCells_e rule) const;
    vtkSmartPointer<vtkDoubleArray> field(vtkIdType pointCount) const;
};

bool ZoneTest::namesCell(vtkIdType cell, vtkIdList& points, BlankedCells_e rule) const
{
    if (isOfCells())
        return holds(left.ofCell(cell, points), relation, right.ofCell(cell, points));
    const auto holdsAt = [this](vtkIdType point) {
        return holds(left.at(point), relation, right.at(point));
    };
    if (rule == BlankedCells_AnyPoint)
        return std::any_of(points.begin(), points.end(), holdsAt);
    if (rule == BlankedCells_FirstPoint)
        return holdsAt(points.GetId(0));
    return std::all_of(points.begin(), points.end(), holdsAt);
}

vtkSmartPointer<vtkDoubleArray> ZoneTest::field(vtkIdType pointCount) const
{
    constexpr double kFar = 1e300; // two such values have a difference
    const bool keepsGreater = relation == Relation_LessOrEqual || relation == Relation_Less;
    auto field = vtkSmartPointer<vtkDoubleArray>::New();
    field->SetNumberOfValues(pointCount);
    for (vtkIdType point = 0; point < pointCount; ++point) {
        const double above = left.at(point) - right.at(point);
        const double kept = keepsGreater ? above : -above;
        field->SetValue(point, std::isnan(kept) ? kFar : std::clamp(kept, -kFar, kFar));
    }
    return field;
}

/// Hides the cells of which `isNamed(cell, points)` holds.
template<class IsNamed>
static void hideCells(vtkDataSet& geometry, IsNamed isNamed)
{
    const vtkIdType count = geometry.GetNumberOfCells();
    auto ghosts = vtkSmartPointer<vtkUnsignedCharArray>::New();
    if (vtkUnsignedCharArray* const known = geometry.GetCellGhostArray()) {
        ghosts->DeepCopy(known);
    } else {
        ghosts->SetNumberOfValues(count);
        ghosts->FillValue(0);
    }
    ghosts->SetName(vtkDataSetAttributes::GhostArrayName());
    vtkNew<vtkIdList> points;
    for (vtkIdType cell = 0; cell < count; ++cell) {
        geometry.GetCellPoints(cell, points);
        if (points->GetNumberOfIds() > 0 && isNamed(cell, *points))
            ghosts->SetValue(cell, ghosts->GetValue(cell) | vtkDataSetAttributes::HIDDENCELL);
    }
    geometry.GetCellData()->AddArray(ghosts);
}

CutFields blank(vtkDataSet& geometry, const host::DataSet& data, std::int64_t zone,
                const BlankingChoice& choice)
{
    std::vector<ZoneTest> hiding;
    CutFields fields;
    for (const BlankingTest& test : choice.tests) {
        const ZoneTest here {Operand(data, zone, test.variable), test.relation,
                             test.comparedVariable == 0
                                 ? Operand(test.constant)
                                 : Operand(data, zone, test.comparedVariable)};
        if (!here.applies())
            continue;
        if (choice.cells == BlankedCells_PreciseCut && here.cuts())
            fields.push_back(here.field(geometry.GetNumberOfPoints()));
        else
            hiding.push_back(here);
    }
    if (!hiding.empty())
        hideCells(geometry, [&](vtkIdType cell, vtkIdList& points) {
            return std::any_of(hiding.begin(), hiding.end(), [&](const ZoneTest& test) {
                return test.namesCell(cell, points, choice.cells);
            });
        });
    return fields;
}

void hideCellsWithoutValue(vtkDataSet& geometry, vtkDataArray& pointValues)
{
    hideCells(geometry, [&](vtkIdType, vtkIdList& points) {
        return !std::all_of(points.begin(), points.end(), [&](vtkIdType point) {
            return std::isfinite(pointValues.GetComponent(point, 0));
        });
    });
}

} // namespace corvala::plot
