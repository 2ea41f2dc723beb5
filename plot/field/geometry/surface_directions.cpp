// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/surface_directions.h"

#include "plot/field/geometry/surface_cells.h"

#include <vtkMath.h>
#include <vtkPointData.h>
#include <vtkPolyDataNormals.h>
#include <vtkPolygon.h>

namespace corvala::plot {

using Array = vtkSmartPointer<vtkDoubleArray>;

static Array zeroVectors(vtkIdType count)
{
    auto vectors = Array::New();
    vectors->SetNumberOfComponents(3);
    vectors->SetNumberOfTuples(count);
    vectors->Fill(0.0);
    return vectors;
}

vtkSmartPointer<vtkDataArray> pointNormals(vtkPolyData& shape)
{
    vtkNew<vtkPolyData> faces;
    faces->SetPoints(shape.GetPoints());
    faces->SetPolys(shape.GetPolys());
    vtkNew<vtkPolyDataNormals> normals;
    normals->SetInputData(faces);
    normals->SplittingOff();
    normals->ConsistencyOn();
    normals->Update();
    return normals->GetOutput()->GetPointData()->GetNormals();
}

static Array cellNormals(vtkPolyData& shape)
{
    Array normals = zeroVectors(shape.GetNumberOfCells());
    forEachCell(shape, [&](vtkIdType cell, const Corners& corners) {
        double normal[3] = {};
        if (corners.isFace)
            vtkPolygon::ComputeNormal(shape.GetPoints(), static_cast<int>(corners.count),
                                      corners.points, normal);
        normals->SetTuple(cell, normal);
    });
    return normals;
}

/// Unit vectors along the lines of a shape, at its points or in its cells.
static Array lineDirections(vtkPolyData& shape, bool inCells)
{
    Array directions = zeroVectors(inCells ? shape.GetNumberOfCells() : shape.GetNumberOfPoints());
    const auto add = [&](vtkIdType number, const double* step) {
        double sum[3];
        directions->GetTuple(number, sum);
        vtkMath::Add(sum, step, sum);
        directions->SetTuple(number, sum);
    };
    forEachCell(shape, [&](vtkIdType cell, const Corners& corners) {
        for (vtkIdType i = 1; corners.isLine && i < corners.count; ++i) {
            double from[3];
            double step[3];
            shape.GetPoint(corners.points[i - 1], from);
            shape.GetPoint(corners.points[i], step);
            vtkMath::Subtract(step, from, step);
            vtkMath::Normalize(step);
            add(inCells ? cell : corners.points[i - 1], step);
            if (!inCells)
                add(corners.points[i], step);
        }
    });
    for (vtkIdType i = 0; i < directions->GetNumberOfTuples(); ++i) {
        double direction[3];
        directions->GetTuple(i, direction);
        vtkMath::Normalize(direction);
        directions->SetTuple(i, direction);
    }
    return directions;
}

static Array chosen(vtkDataArray& all, const GlyphPoints& points)
{
    Array result = zeroVectors(static_cast<vtkIdType>(points.ids.size()));
    for (std::size_t i = 0; i < points.ids.size(); ++i)
        result->SetTuple(static_cast<vtkIdType>(i), all.GetTuple(points.ids[i]));
    return result;
}

Array normalsAt(const GlyphPoints& points, const ZoneSurface& surface, const PointChoice& choice)
{
    vtkPolyData& shape = *surface.shape;
    if (shape.GetNumberOfPolys() == 0)
        return nullptr;
    if (choice.isOfCells())
        return chosen(*cellNormals(shape), points);
    return chosen(*pointNormals(shape), points);
}

void makeTangent(vtkDoubleArray& vectors, const GlyphPoints& points, const ZoneSurface& surface,
                 const PointChoice& choice)
{
    const Array normals = normalsAt(points, surface, choice);
    const Array lines =
        normals ? nullptr : chosen(*lineDirections(*surface.shape, choice.isOfCells()), points);
    for (vtkIdType i = 0; i < vectors.GetNumberOfTuples(); ++i) {
        double vector[3];
        double direction[3];
        vectors.GetTuple(i, vector);
        (normals ? normals : lines)->GetTuple(i, direction);
        const double along = vtkMath::Dot(vector, direction);
        for (int axis = 0; axis < 3; ++axis)
            vector[axis] =
                (normals ? vector[axis] : 0.0) + (normals ? -along : along) * direction[axis];
        vectors.SetTuple(i, vector);
    }
}

} // namespace corvala::plot
