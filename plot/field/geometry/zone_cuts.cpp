// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/zone_cuts.h"

#include "plot/field/geometry/zone_vectors.h"

#include <vtkCellData.h>
#include <vtkClipPolyData.h>
#include <vtkContourFilter.h>
#include <vtkDataSet.h>
#include <vtkIdTypeArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkTableBasedClipDataSet.h>
#include <vtkUnstructuredGrid.h>

#include <algorithm>

namespace corvala::plot {

static constexpr const char* kCarried = "carried";
static constexpr const char* kIso = "iso";

/// Values of a zone's points that go through the filters with the shape: the fields that cut, by
/// number, what iso-surfaces are made of, and what is wanted at its points.
struct PointArrays
{
    const CutFields& fields;
    vtkDataArray* iso; ///< may be null
    vtkDataArray* carried; ///< may be null
};

static std::string fieldName(std::size_t number)
{
    return "field " + std::to_string(number);
}

/// The values at the zone's points `ids`; at all of them in their order when there are none.
static vtkSmartPointer<vtkDoubleArray> gathered(vtkDataArray& array, vtkIdType count,
                                                const std::vector<vtkIdType>& ids,
                                                const std::string& name)
{
    auto values = vtkSmartPointer<vtkDoubleArray>::New();
    values->SetName(name.c_str());
    values->SetNumberOfValues(count);
    for (vtkIdType i = 0; i < count; ++i)
        values->SetValue(i,
                         array.GetComponent(ids.empty() ? i : ids[static_cast<std::size_t>(i)], 0));
    return values;
}

static void addArrays(vtkDataSet& shape, const std::vector<vtkIdType>& ids,
                      const PointArrays& arrays)
{
    const vtkIdType count = shape.GetNumberOfPoints();
    for (std::size_t i = 0; i < arrays.fields.size(); ++i)
        shape.GetPointData()->AddArray(gathered(*arrays.fields[i], count, ids, fieldName(i)));
    if (arrays.iso)
        shape.GetPointData()->AddArray(gathered(*arrays.iso, count, ids, kIso));
    if (arrays.carried)
        shape.GetPointData()->AddArray(gathered(*arrays.carried, count, ids, kCarried));
}

/// What is left of a shape where its fields are above 0.
template<class Clip, class Shape>
static vtkSmartPointer<Shape> clipped(vtkSmartPointer<Shape> shape, std::size_t fieldCount)
{
    for (std::size_t i = 0; i < fieldCount && shape->GetNumberOfCells() > 0; ++i) {
        shape->GetPointData()->SetActiveScalars(fieldName(i).c_str());
        vtkNew<Clip> clip;
        clip->SetInputData(shape);
        clip->SetValue(0.0);
        clip->Update();
        shape = clip->GetOutput();
    }
    return shape;
}

static vtkSmartPointer<vtkPolyData> cutShape(const ZoneSurface& surface, const PointArrays& arrays)
{
    auto shape = vtkSmartPointer<vtkPolyData>::New();
    shape->CopyStructure(surface.shape);
    addArrays(*shape, surface.pointIds, arrays);
    addCellNumbers(*shape, surface.cellIds);
    return clipped<vtkClipPolyData>(shape, arrays.fields.size());
}

static vtkSmartPointer<vtkDataSet> cutVolume(vtkDataSet& numbered, const PointArrays& arrays)
{
    addArrays(numbered, pointNumbers(numbered), arrays);
    return clipped<vtkTableBasedClipDataSet>(vtkSmartPointer<vtkDataSet>(&numbered),
                                             arrays.fields.size());
}

vtkSmartPointer<vtkDataSet> cutVolume(vtkDataSet& numbered, const CutFields& fields)
{
    return cutVolume(numbered, PointArrays {fields, nullptr, nullptr});
}

/// Where the values that iso-surfaces are made of are equal to one of `values`.
static vtkSmartPointer<vtkPolyData> isoFaces(vtkDataSet& volume, const std::vector<double>& values)
{
    auto shape = vtkSmartPointer<vtkPolyData>::New();
    vtkDataArray* const iso = volume.GetPointData()->GetArray(kIso);
    double range[2] = {0.0, 0.0};
    if (iso && !values.empty() && volume.GetNumberOfCells() > 0)
        iso->GetRange(range);
    if (!(range[0] < range[1]))
        return shape;
    volume.GetPointData()->SetActiveScalars(kIso);
    vtkNew<vtkContourFilter> contours;
    contours->SetInputData(&volume);
    contours->ComputeNormalsOff();
    // At the lowest value nothing lies below; the surface is wanted nevertheless.
    const double lowest = range[0] + 1e-9 * (range[1] - range[0]);
    for (std::size_t i = 0; i < values.size(); ++i)
        contours->SetValue(static_cast<int>(i), values[i] == range[0] ? lowest : values[i]);
    contours->Update();
    shape->ShallowCopy(contours->GetOutput());
    // A surface on the border between two colours has one of them, and not both by turns.
    if (vtkDataArray* const exact = shape->GetPointData()->GetArray(kIso))
        for (vtkIdType i = 0; i < exact->GetNumberOfTuples(); ++i)
            exact->SetTuple1(i, exact->GetTuple1(i) + 1e-5 * (range[1] - range[0]));
    return shape;
}

/// The numbers of a shape that is cut: its points have none.
static ZoneSurface cutSurface(vtkPolyData& shape)
{
    ZoneSurface surface = fromNumbered(shape);
    surface.pointIds.clear();
    surface.isCut = true;
    return surface;
}

ZoneSurface cutFaces(const ZoneSurface& surface, const CutFields& fields)
{
    return fields.empty() ? surface : cutSurface(*cutShape(surface, {fields, nullptr, nullptr}));
}

/// A zone that is being cut.
class CutZone
{
public:
    CutZone(const host::DataSet& data, std::int64_t zone, const SurfaceChoice& choice)
        : m_info(data.zone(zone))
        , m_choice(choice)
        , m_geometry(data.geometry(zone))
    {
        if (!hasPoints())
            return;
        m_fields = blank(*m_geometry, data, zone, choice.blanking);
        if (isIso())
            m_iso = zoneValues(data, zone, choice.iso.variable, host::ValueLocation::Points);
        if (m_iso)
            hideCellsWithoutValue(*m_geometry, *m_iso);
    }

    bool hasPoints() const { return m_geometry && m_geometry->GetNumberOfPoints() > 0; }
    bool isIso() const { return m_info.isVolume() && m_choice.iso.variable != 0; }
    bool isCut() const { return isIso() || !m_fields.empty(); }
    ZoneSurface whole() const { return extractSurface(*m_geometry, m_info, m_choice); }
    vtkSmartPointer<vtkPolyData> cut(vtkDataArray* carried) const
    {
        const PointArrays arrays {m_fields, m_iso, carried};
        if (isIso())
            return isoFaces(*cutVolume(*visiblePart(*m_geometry), arrays), m_choice.iso.values);
        // Where a volume is cut, it has new outer faces.
        const bool opens =
            m_info.isVolume() && m_choice.surfaces == SurfacesToPlot_ExposedCellFaces;
        return opens ? outerFaces(*cutVolume(*visiblePart(*m_geometry), arrays))
                     : cutShape(whole(), arrays);
    }

private:
    const host::ZoneInfo& m_info;
    const SurfaceChoice& m_choice;
    vtkSmartPointer<vtkDataSet> m_geometry;
    CutFields m_fields;
    vtkSmartPointer<vtkDataArray> m_iso; ///< null without such values
};

std::shared_ptr<ZoneSurface> surfaceOf(const host::DataSet& data, std::int64_t zone,
                                       const SurfaceChoice& choice)
{
    const CutZone cut(data, zone, choice);
    if (!cut.hasPoints())
        return nullptr;
    auto surface =
        std::make_shared<ZoneSurface>(cut.isCut() ? cutSurface(*cut.cut(nullptr)) : cut.whole());
    surface->choice = choice;
    return surface;
}

vtkSmartPointer<vtkDoubleArray> cutValues(const host::DataSet& data, std::int64_t zone,
                                          std::int64_t variable, const ZoneSurface& surface)
{
    const CutZone cut(data, zone, surface.choice);
    const auto values =
        cut.hasPoints() ? zoneValues(data, zone, variable, host::ValueLocation::Points) : nullptr;
    if (!values)
        return nullptr;
    const auto shape = cut.cut(values);
    const bool isOfIso = surface.choice.iso.variable == variable;
    vtkDataArray* const carried = shape->GetPointData()->GetArray(isOfIso ? kIso : kCarried);
    return carried ? gathered(*carried, carried->GetNumberOfTuples(), {}, kCarried)
                   : vtkSmartPointer<vtkDoubleArray>::New();
}

} // namespace corvala::plot
