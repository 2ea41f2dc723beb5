// SPDX-License-Identifier: BSD-3-Clause
#include "samples/demo_zones.h"

#include <vtkCellArray.h>
#include <vtkCellType.h>
#include <vtkDoubleArray.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkStructuredGrid.h>
#include <vtkUnstructuredGrid.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <initializer_list>
#include <vector>

namespace corvala::samples {

static constexpr double kPi = 3.14159265358979323846;

namespace {

std::int64_t pointCount(const DemoZone& zone)
{
    return zone.cells == DemoCells::Empty
        ? 0
        : std::int64_t(zone.points[0]) * zone.points[1] * zone.points[2];
}

int dimensionOf(const DemoZone& zone)
{
    switch (zone.cells) {
    case DemoCells::Triangles:
    case DemoCells::Polygons: return 2;
    case DemoCells::Hexahedra:
    case DemoCells::Tetrahedra: return 3;
    case DemoCells::Vertices:
    case DemoCells::Empty: return 0;
    case DemoCells::Ordered: break;
    }
    return static_cast<int>(std::count_if(zone.points.begin(), zone.points.end(),
                                          [](int points) { return points > 1; }));
}

vtkSmartPointer<vtkPoints> pointsOf(const DemoZone& zone)
{
    auto points = vtkSmartPointer<vtkPoints>::New();
    points->SetDataTypeToDouble();
    const auto at = [&](std::size_t axis, int index) {
        const int last = zone.points[axis] - 1;
        return zone.origin[axis] + (last > 0 ? zone.size[axis] * index / last : 0.0);
    };
    for (int k = 0; k < zone.points[2]; ++k)
        for (int j = 0; j < zone.points[1]; ++j)
            for (int i = 0; i < zone.points[0]; ++i)
                points->InsertNextPoint(at(0, i), at(1, j), at(2, k));
    return points;
}

/// Splits the boxes between neighbouring points into cells and hands each to `add(type, points)`.
template<class Add>
void forEachCell(const DemoZone& zone, Add add)
{
    const auto id = [&](int i, int j, int k) {
        return vtkIdType(i) + vtkIdType(zone.points[0]) * (j + vtkIdType(zone.points[1]) * k);
    };
    const bool isSolid = dimensionOf(zone) == 3;
    for (int k = 0; k < std::max(1, zone.points[2] - 1); ++k) {
        for (int j = 0; j < zone.points[1] - 1; ++j) {
            for (int i = 0; i < zone.points[0] - 1; ++i) {
                const vtkIdType a = id(i, j, k), b = id(i + 1, j, k), c = id(i + 1, j + 1, k),
                                d = id(i, j + 1, k);
                if (zone.cells == DemoCells::Polygons) {
                    add(VTK_POLYGON, {a, b, c, d});
                } else if (!isSolid) {
                    add(VTK_TRIANGLE, {a, b, c});
                    add(VTK_TRIANGLE, {a, c, d});
                } else {
                    const vtkIdType e = id(i, j, k + 1), f = id(i + 1, j, k + 1),
                                    g = id(i + 1, j + 1, k + 1), h = id(i, j + 1, k + 1);
                    if (zone.cells == DemoCells::Hexahedra) {
                        add(VTK_HEXAHEDRON, {a, b, c, d, e, f, g, h});
                    } else {
                        for (const auto& t : {std::array<vtkIdType, 4> {{a, b, c, g}},
                                              {{a, c, d, g}},
                                              {{a, d, h, g}},
                                              {{a, h, e, g}},
                                              {{a, e, f, g}},
                                              {{a, f, b, g}}})
                            add(VTK_TETRA, {t[0], t[1], t[2], t[3]});
                    }
                }
            }
        }
    }
}

std::int64_t cellCount(const DemoZone& zone)
{
    if (zone.cells == DemoCells::Vertices)
        return pointCount(zone);
    std::int64_t count = 0;
    if (zone.cells == DemoCells::Ordered) {
        count = 1;
        for (const int points : zone.points)
            count *= std::max(1, points - 1);
    } else if (zone.cells != DemoCells::Empty) {
        forEachCell(zone, [&](int, std::initializer_list<vtkIdType>) { ++count; });
    }
    return count;
}

vtkSmartPointer<vtkPointSet> gridOf(const DemoZone& zone)
{
    const vtkSmartPointer<vtkPoints> points = pointsOf(zone);
    if (zone.cells == DemoCells::Ordered) {
        auto grid = vtkSmartPointer<vtkStructuredGrid>::New();
        grid->SetDimensions(zone.points.data());
        grid->SetPoints(points);
        return grid;
    }
    auto grid = vtkSmartPointer<vtkUnstructuredGrid>::New();
    grid->SetPoints(points);
    grid->Allocate(cellCount(zone));
    if (zone.cells == DemoCells::Vertices) {
        for (vtkIdType point = 0; point < points->GetNumberOfPoints(); ++point)
            grid->InsertNextCell(VTK_VERTEX, 1, &point);
    } else {
        forEachCell(zone, [&](int type, std::initializer_list<vtkIdType> ids) {
            grid->InsertNextCell(type, static_cast<vtkIdType>(ids.size()), ids.begin());
        });
    }
    return grid;
}

/// Potential flow round the cylinder, uniform inside it, plus a row of drifting vortices.
std::array<double, 5> flowAt(const double* p, double time)
{
    const double r2 = std::max(1.0, p[0] * p[0] + p[1] * p[1]);
    const double inverse4 = 1.0 / (r2 * r2);
    double u = 1.0 - (p[0] * p[0] - p[1] * p[1]) * inverse4;
    double v = -2.0 * p[0] * p[1] * inverse4;
    for (int n = 0; n < 4; ++n) {
        const double x = p[0] - (2.0 + 1.8 * n + 0.45 * time);
        const double y = p[1] - (n % 2 == 0 ? 0.6 : -0.6);
        const double strength = (n % 2 == 0 ? -0.7 : 0.7) * std::exp(-(x * x + y * y));
        u -= strength * y;
        v += strength * x;
    }
    const double w = 0.1 * std::sin(p[2]);
    const double pressure = 1.0 - 0.5 * (u * u + v * v);
    return {{u, v, w, pressure, 1.0 + 0.2 * pressure}};
}

void addArray(vtkDataSet& grid, const char* name, vtkIdType count,
              const std::function<double(vtkIdType)>& valueAt)
{
    auto array = vtkSmartPointer<vtkDoubleArray>::New();
    array->SetName(name);
    array->SetNumberOfTuples(count);
    for (vtkIdType i = 0; i < count; ++i)
        array->SetValue(i, valueAt(i));
    grid.GetPointData()->AddArray(array);
}

} // namespace

host::ZoneInfo infoOf(const DemoZone& zone)
{
    host::ZoneInfo info;
    info.ordered = zone.cells == DemoCells::Ordered;
    if (info.ordered)
        info.dimensions = {{zone.points[0], zone.points[1], zone.points[2]}};
    info.pointCount = pointCount(zone);
    info.cellCount = cellCount(zone);
    info.cellDimension = dimensionOf(zone);
    info.time = zone.time;
    return info;
}

vtkSmartPointer<vtkDataSet> flowZone(const DemoZone& zone)
{
    if (zone.cells == DemoCells::Empty)
        return nullptr;
    const vtkSmartPointer<vtkPointSet> grid = gridOf(zone);
    static constexpr const char* kNames[] = {"U", "V", "W", "Pressure", "Density"};
    std::vector<std::array<double, 5>> flow(static_cast<std::size_t>(grid->GetNumberOfPoints()));
    for (std::size_t i = 0; i < flow.size(); ++i)
        flow[i] = flowAt(grid->GetPoint(static_cast<vtkIdType>(i)), zone.time);
    for (std::size_t n = 0; n < 5; ++n)
        addArray(*grid, kNames[n], grid->GetNumberOfPoints(),
                 [&](vtkIdType i) { return flow[static_cast<std::size_t>(i)][n]; });
    return grid;
}

vtkSmartPointer<vtkDataSet> signalZone(const DemoZone& zone, int number)
{
    const vtkSmartPointer<vtkPointSet> grid = gridOf(zone);
    const vtkIdType count = grid->GetNumberOfPoints();
    const auto time = [count](vtkIdType i) {
        return 10.0 * static_cast<double>(i)
            / static_cast<double>(std::max<vtkIdType>(1, count - 1));
    };
    const auto force = [=](vtkIdType i) {
        return std::exp(-0.2 * time(i)) * std::cos(3.0 * time(i) + 0.5 * number);
    };
    const auto moment = [=](vtkIdType i) { return 0.6 * std::sin(2.0 * time(i)) - 0.1 * number; };
    addArray(*grid, "Time", count, time);
    addArray(*grid, "Force", count, force);
    addArray(*grid, "Moment", count, moment);
    addArray(*grid, "Power", count, [=](vtkIdType i) { return force(i) * moment(i); });
    addArray(*grid, "Error", count, [=](vtkIdType i) { return 0.02 + 0.01 * time(i); });
    addArray(*grid, "Angle", count, [=](vtkIdType i) { return 36.0 * time(i); });
    addArray(*grid, "Gain", count, [=](vtkIdType i) {
        return 1.0 + 0.5 * std::cos((1 + number) * 36.0 * time(i) * kPi / 180.0);
    });
    return grid;
}

} // namespace corvala::samples
