// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/arrows.h"

#include <vtkCellArray.h>
#include <vtkFloatArray.h>
#include <vtkMath.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPoints.h>

#include <cmath>
#include <vector>

namespace corvala::plot {

namespace {

/// An arrow of length 1, drawn point by point.
struct Figure
{
    struct Point
    {
        double along;
        double aside;
        double across; ///< out of the plane of the first head
        double arcLength;
    };
    std::vector<Point> points;
    std::vector<std::vector<vtkIdType>> lines;
    std::vector<std::vector<vtkIdType>> faces;
};

/// Directions of one arrow, each as long as the arrow.
struct Axes
{
    double along[3];
    double aside[3];
    double across[3];
};

} // namespace

static double tipOf(VectorType_e type, double headSize)
{
    switch (type) {
    case VectorType_HeadAtPoint: return 0.0;
    case VectorType_AnchorAtMidpoint: return 0.5;
    case VectorType_HeadOnly: return headSize / 2;
    case VectorType_TailAtPoint: break;
    }
    return 1.0;
}

static void addHead(Figure& figure, const ArrowChoice& choice, double tip, bool isAcross)
{
    const double half = choice.headSize * std::tan(vtkMath::RadiansFromDegrees(choice.headAngle));
    const double neck = tip - choice.headSize;
    const auto first = static_cast<vtkIdType>(figure.points.size());
    for (const double side : {half, 0.0, -half}) {
        figure.points.push_back(
            {side == 0.0 ? tip : neck, isAcross ? 0.0 : side, isAcross ? side : 0.0, 0.0});
    }
    std::vector<vtkIdType> corners = {first, first + 1, first + 2};
    if (choice.head == ArrowheadStyle_Filled) {
        figure.faces.push_back(std::move(corners));
        return;
    }
    if (choice.head == ArrowheadStyle_Hollow)
        corners.push_back(first);
    figure.lines.push_back(std::move(corners));
}

static Figure figureOf(const ArrowChoice& choice, bool isFlat)
{
    Figure figure;
    const double tip = tipOf(choice.type, choice.headSize);
    const double end = choice.head == ArrowheadStyle_Plain ? tip : tip - choice.headSize;
    if (choice.type != VectorType_HeadOnly) {
        figure.points = {{tip - 1.0, 0.0, 0.0, 0.0}, {end, 0.0, 0.0, end - tip + 1.0}};
        figure.lines = {{0, 1}};
    }
    addHead(figure, choice, tip, false);
    if (!isFlat)
        addHead(figure, choice, tip, true);
    return figure;
}

/// `normal` may be of no length.
static Axes axesOf(const double* vector, const double* normal, double length)
{
    Axes axes;
    double side[3];
    vtkMath::Cross(normal, vector, side);
    const double size = vtkMath::Norm(vector);
    if (vtkMath::Norm(side) < 1e-6 * size) { // any direction does
        const double up[3] = {0.0, 0.0, 1.0};
        const double right[3] = {1.0, 0.0, 0.0};
        const bool isUpright = std::abs(vector[2]) > 0.9 * size;
        vtkMath::Cross(isUpright ? right : up, vector, side);
    }
    vtkMath::Normalize(side);
    for (int axis = 0; axis < 3; ++axis) {
        axes.along[axis] = vector[axis] / size * length;
        axes.aside[axis] = side[axis] * length;
    }
    vtkMath::Cross(axes.along, side, axes.across);
    return axes;
}

namespace {

/// Writes figures one after the other. VTK's own filters for that know no second direction, or no
/// more than single precision.
class ArrowWriter
{
public:
    ArrowWriter(const Figure& figure, vtkDataArray* colors);

    void add(const double* place, const Axes& axes, double length, vtkIdType source);
    vtkSmartPointer<vtkPolyData> finish();

private:
    void addCells(vtkCellArray& cells, const std::vector<std::vector<vtkIdType>>& figures,
                  vtkIdType first);

    const Figure& m_figure;
    vtkDataArray* m_sourceColors;
    vtkNew<vtkPoints> m_points;
    vtkNew<vtkCellArray> m_lines;
    vtkNew<vtkCellArray> m_faces;
    vtkNew<vtkFloatArray> m_arcLengths;
    vtkSmartPointer<vtkDataArray> m_colors;
};

ArrowWriter::ArrowWriter(const Figure& figure, vtkDataArray* colors)
    : m_figure(figure)
    , m_sourceColors(colors)
{
    m_points->SetDataType(VTK_DOUBLE);
    m_arcLengths->SetNumberOfComponents(2);
    m_arcLengths->SetName("arc length");
    if (colors) {
        m_colors = vtkSmartPointer<vtkDataArray>::Take(colors->NewInstance());
        m_colors->SetNumberOfComponents(colors->GetNumberOfComponents());
        m_colors->SetName(colors->GetName());
    }
}

void ArrowWriter::addCells(vtkCellArray& cells, const std::vector<std::vector<vtkIdType>>& figures,
                           vtkIdType first)
{
    for (const std::vector<vtkIdType>& corners : figures) {
        cells.InsertNextCell(static_cast<int>(corners.size()));
        for (const vtkIdType corner : corners)
            cells.InsertCellPoint(first + corner);
    }
}

void ArrowWriter::add(const double* place, const Axes& axes, double length, vtkIdType source)
{
    const vtkIdType first = m_points->GetNumberOfPoints();
    for (const Figure::Point& point : m_figure.points) {
        double at[3];
        for (int axis = 0; axis < 3; ++axis)
            at[axis] = place[axis] + point.along * axes.along[axis] + point.aside * axes.aside[axis]
                + point.across * axes.across[axis];
        m_points->InsertNextPoint(at);
        m_arcLengths->InsertNextTuple2(point.arcLength * length, 0.0);
        if (m_colors)
            m_colors->InsertNextTuple(source, m_sourceColors);
    }
    addCells(*m_lines, m_figure.lines, first);
    addCells(*m_faces, m_figure.faces, first);
}

vtkSmartPointer<vtkPolyData> ArrowWriter::finish()
{
    auto result = vtkSmartPointer<vtkPolyData>::New();
    result->SetPoints(m_points);
    result->SetLines(m_lines);
    result->SetPolys(m_faces);
    result->GetPointData()->SetTCoords(m_arcLengths);
    if (m_colors)
        result->GetPointData()->SetScalars(m_colors);
    return result;
}

} // namespace

vtkSmartPointer<vtkPolyData> arrows(const ArrowPlaces& places, const ArrowChoice& choice)
{
    const Figure figure = figureOf(choice, places.normals);
    ArrowWriter writer(figure, places.colors);
    for (vtkIdType i = 0; i < places.points.GetNumberOfPoints(); ++i) {
        double vector[3];
        double normal[3] = {};
        double place[3];
        places.vectors.GetTuple(i, vector);
        const double magnitude = vtkMath::Norm(vector);
        const double length = choice.isUniform ? choice.scale : choice.scale * magnitude;
        if (!(magnitude > 0.0) || !std::isfinite(magnitude) || !(length > 0.0)
            || !std::isfinite(length))
            continue;
        if (places.normals)
            places.normals->GetTuple(i, normal);
        places.points.GetPoint(i, place);
        writer.add(place, axesOf(vector, normal, length), length, i);
    }
    return writer.finish();
}

} // namespace corvala::plot
