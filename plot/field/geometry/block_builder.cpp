// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/block_builder.h"

#include "plot/field/geometry/mesh_lines.h"
#include "plot/field/geometry/surface_directions.h"
#include "plot/field/geometry/surface_values.h"
#include "plot/field/geometry/value_colors.h"

#include <vtkCellArray.h>
#include <vtkContourFilter.h>
#include <vtkDataSet.h>
#include <vtkFloatArray.h>
#include <vtkIdList.h>
#include <vtkPointData.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace corvala::plot {

using Shape = vtkSmartPointer<vtkPolyData>;

/// The shape with all points at a height; as it is when `height` is null.
static Shape laidDown(vtkPolyData* shape, const double* height)
{
    if (!height || !shape->GetPoints())
        return shape;
    vtkNew<vtkPoints> points;
    points->SetDataType(VTK_DOUBLE);
    points->SetNumberOfPoints(shape->GetNumberOfPoints());
    double point[3];
    for (vtkIdType i = 0; i < shape->GetNumberOfPoints(); ++i) {
        shape->GetPoint(i, point);
        points->SetPoint(i, point[0], point[1], *height);
    }
    auto result = Shape::New();
    result->ShallowCopy(shape);
    result->SetPoints(points);
    return result;
}

const PlacedSurface* BlockBuilder::surface(const BlockRecipe& recipe, const double* height,
                                           std::vector<PlacedSurface>& placed) const
{
    const SurfaceChoice choice = recipe.surfaces.normalized(m_data.zone(recipe.zone));
    for (const PlacedSurface& known : placed)
        if (known.surface && known.choice == choice)
            return &known;
    const auto surface = m_cache.surface(m_data, recipe.zone, choice);
    if (!surface)
        return nullptr;
    const Shape shape = laidDown(separateShape(*surface->shape), height);
    placed.push_back({recipe.zone, choice, surface, shape});
    return &placed.back();
}

static Shape copyOf(vtkPolyData* shape, bool withNormals)
{
    auto copy = Shape::New();
    copy->CopyStructure(shape);
    if (withNormals && shape->GetNumberOfPolys() > 0)
        copy->GetPointData()->SetNormals(pointNormals(*shape));
    return copy;
}

static Shape facesOf(vtkPolyData* shape, bool withNormals)
{
    Shape faces = copyOf(shape, withNormals);
    faces->SetVerts(nullptr);
    faces->SetLines(nullptr);
    return faces;
}

static ShapePieces drawable(vtkPolyData* shape, vtkIdType largest = kLargestPiece)
{
    return shape && shape->GetNumberOfCells() > 0 ? inPieces(*shape, largest) : ShapePieces();
}

ShapePieces BlockBuilder::build(const BlockRecipe& recipe, const double* height,
                                std::vector<PlacedSurface>& placed, StreamStart* start) const
{
    const auto isOld = [&](const PlacedSurface& known) { return known.zone != recipe.zone; };
    placed.erase(std::remove_if(placed.begin(), placed.end(), isOld), placed.end());
    if (recipe.kind == BlockKind::Streamtraces)
        return drawable(streams(recipe, start));
    if (recipe.kind == BlockKind::Arrows)
        return drawable(arrowShapes(recipe, carriers(recipe, height, placed), height != nullptr));
    if (recipe.kind == BlockKind::Symbols)
        return drawable(symbolShapes(recipe, carriers(recipe, height, placed)),
                        kLargestPiece / kPointsPerSymbol);
    const PlacedSurface* const found = surface(recipe, height, placed);
    if (!found || found->shape->GetNumberOfPoints() == 0)
        return {};
    Shape result;
    switch (recipe.kind) {
    case BlockKind::Faces: result = facesOf(found->shape, recipe.normals); break;
    case BlockKind::Flood: result = flood(recipe, *found); break;
    case BlockKind::CellFlood: result = cellFlood(recipe, *found); break;
    case BlockKind::ContourLines: result = contourLines(recipe, *found); break;
    case BlockKind::Edges: result = edges(recipe, *found, height); break;
    case BlockKind::MeshLines: result = mesh(recipe, *found); break;
    case BlockKind::Arrows:
    case BlockKind::Symbols:
    case BlockKind::Streamtraces: break;
    }
    return drawable(result);
}

vtkSmartPointer<vtkDoubleArray> BlockBuilder::values(int group, const BlockRecipe& recipe,
                                                     const PlacedSurface& placed) const
{
    const CvlInt64 variable = m_groups.variable(group);
    if (recipe.kind == BlockKind::CellFlood) {
        return cellValues(m_data, recipe.zone, variable, *placed.surface,
                          recipe.primaryValues ? CellValue::Primary : CellValue::Average);
    }
    return pointValues(m_data, recipe.zone, variable, *placed.surface);
}

template<class ValuesOf>
vtkSmartPointer<vtkDataArray> BlockBuilder::colorsBy(int group, ValuesOf valuesOf) const
{
    if (group != ContourGroups::kRed) {
        const auto single = valuesOf(group);
        return single ? groupColors(*single, group, m_groups) : nullptr;
    }
    std::array<vtkSmartPointer<vtkDoubleArray>, 3> channels;
    for (int i = 0; i < 3; ++i) {
        auto& channel = channels[static_cast<std::size_t>(i)];
        channel = valuesOf(ContourGroups::kRed + i);
        if (!channel)
            return nullptr;
    }
    return channelColors(channels, m_groups);
}

vtkSmartPointer<vtkDataArray> BlockBuilder::colors(const BlockRecipe& recipe,
                                                   const PlacedSurface& placed) const
{
    return colorsBy(recipe.colorGroup, [&](int group) { return values(group, recipe, placed); });
}

vtkSmartPointer<vtkDataArray> BlockBuilder::lineColorsOf(const BlockRecipe& recipe,
                                                         const PlacedSurface& placed) const
{
    const auto found = colors(recipe, placed);
    return found ? found : noValueColors(placed.shape->GetNumberOfPoints());
}

vtkSmartPointer<vtkDataArray> BlockBuilder::floodArray(const BlockRecipe& recipe,
                                                       const PlacedSurface& placed) const
{
    if (recipe.colorGroup > 0)
        return colors(recipe, placed);
    const auto floodValues = values(recipe.group, recipe, placed);
    if (!floodValues)
        return nullptr;
    const auto places = floodCoordinates(*floodValues, recipe.group, m_groups);
    if (recipe.kind != BlockKind::CellFlood)
        placeAmongNeighbours(*places, *placed.shape);
    return places;
}

static void setFloodArray(const BlockRecipe& recipe, vtkPolyData& shape, vtkDataArray* array)
{
    if (recipe.colorGroup > 0)
        shape.GetPointData()->SetScalars(array);
    else
        shape.GetPointData()->SetTCoords(array);
}

Shape BlockBuilder::flood(const BlockRecipe& recipe, const PlacedSurface& placed) const
{
    const auto array = floodArray(recipe, placed);
    if (!array)
        return nullptr;
    Shape result = copyOf(placed.shape, recipe.normals);
    setFloodArray(recipe, *result, array);
    return result;
}

/// The shape with points of its own for every cell, which take the value of the cell.
static Shape withOwnPoints(vtkPolyData& shape, vtkDataArray& cellArray, vtkDataArray& pointArray)
{
    auto result = Shape::New();
    vtkNew<vtkPoints> points;
    points->SetDataType(VTK_DOUBLE);
    result->AllocateCopy(&shape);
    result->GetPointData()->CopyAllocate(shape.GetPointData());
    vtkNew<vtkIdList> corners;
    vtkNew<vtkIdList> copies;
    for (vtkIdType cell = 0; cell < shape.GetNumberOfCells(); ++cell) {
        shape.GetCellPoints(cell, corners);
        copies->Reset();
        for (const vtkIdType corner : *corners) {
            const vtkIdType copy = points->InsertNextPoint(shape.GetPoint(corner));
            result->GetPointData()->CopyData(shape.GetPointData(), corner, copy);
            pointArray.InsertNextTuple(cell, &cellArray);
            copies->InsertNextId(copy);
        }
        result->InsertNextCell(shape.GetCellType(cell), copies);
    }
    result->SetPoints(points);
    return result;
}

Shape BlockBuilder::cellFlood(const BlockRecipe& recipe, const PlacedSurface& placed) const
{
    const auto cellArray = floodArray(recipe, placed);
    if (!cellArray)
        return nullptr;
    auto pointArray = vtkSmartPointer<vtkDataArray>::Take(cellArray->NewInstance());
    pointArray->SetNumberOfComponents(cellArray->GetNumberOfComponents());
    pointArray->SetName(cellArray->GetName());
    const Shape shape = copyOf(placed.shape, recipe.normals);
    Shape result = withOwnPoints(*shape, *cellArray, *pointArray);
    setFloodArray(recipe, *result, pointArray);
    return result;
}

Shape BlockBuilder::contourLines(const BlockRecipe& recipe, const PlacedSurface& placed) const
{
    const auto scalars = values(recipe.group, recipe, placed);
    if (!scalars)
        return nullptr;
    scalars->SetName("value");
    for (vtkIdType i = 0; i < scalars->GetNumberOfTuples(); ++i) // lines end at NaN alone
        if (!std::isfinite(scalars->GetValue(i)))
            scalars->SetValue(i, std::numeric_limits<double>::quiet_NaN());
    Shape shape = facesOf(placed.shape, false);
    const auto lineColors = recipe.colorGroup > 0 ? lineColorsOf(recipe, placed) : nullptr;
    shape->GetPointData()->SetScalars(scalars);
    if (lineColors)
        shape->GetPointData()->AddArray(lineColors);
    vtkNew<vtkContourFilter> contours;
    contours->SetInputData(shape);
    contours->ComputeNormalsOff();
    const std::vector<double> levels = m_groups.lineLevels(recipe.group);
    for (std::size_t i = 0; i < levels.size(); ++i)
        contours->SetValue(static_cast<int>(i), levels[i] - m_groups.rounding(recipe.group));
    contours->Update();
    Shape lines = contours->GetOutput();
    if (lineColors)
        lines->GetPointData()->SetActiveScalars(lineColors->GetName());
    return recipe.arcLength && lines->GetNumberOfLines() > 0 ? withArcLength(*lines) : lines;
}

Shape BlockBuilder::mesh(const BlockRecipe& recipe, const PlacedSurface& placed) const
{
    Shape shape = copyOf(placed.shape, false);
    if (recipe.colorGroup > 0)
        shape->GetPointData()->SetScalars(lineColorsOf(recipe, placed));
    Shape lines = meshLines(*shape);
    return recipe.arcLength ? withArcLength(*lines) : lines;
}

Shape BlockBuilder::streams(const BlockRecipe& recipe, StreamStart* start) const
{
    std::vector<std::int64_t> variables;
    const int groupCount = recipe.colorGroup == ContourGroups::kRed ? 3 : 1;
    for (int i = 0; recipe.colorGroup > 0 && i < groupCount; ++i)
        variables.push_back(m_groups.variable(recipe.colorGroup + i));
    const Streamtraces traces = streamtraces(m_data, recipe.streams, variables);
    if (start)
        *start = traces.start;
    if (recipe.colorGroup > 0 && traces.lines->GetNumberOfLines() > 0)
        traces.lines->GetPointData()->SetScalars(colorsBy(recipe.colorGroup, [&](int group) {
            return traces.values[static_cast<std::size_t>(group - recipe.colorGroup)];
        }));
    return traces.lines;
}

Shape BlockBuilder::edges(const BlockRecipe& recipe, const PlacedSurface& placed,
                          const double* height) const
{
    const vtkSmartPointer<vtkDataSet> data = m_data.geometry(recipe.zone);
    if (!data)
        return nullptr;
    const CutFields fields = blank(*data, m_data, recipe.zone, recipe.surfaces.blanking);
    return laidDown(
        zoneEdges(*data, m_data.zone(recipe.zone), *placed.surface, recipe.edges, fields), height);
}

/// Points as a shape that can be picked.
static Shape vertices(vtkPoints* points)
{
    auto shape = Shape::New();
    vtkNew<vtkCellArray> cells;
    cells->AllocateExact(points->GetNumberOfPoints(), points->GetNumberOfPoints());
    for (vtkIdType point = 0; point < points->GetNumberOfPoints(); ++point)
        cells->InsertNextCell(1, &point);
    shape->SetPoints(points);
    shape->SetVerts(cells);
    return shape;
}

BlockBuilder::Carriers BlockBuilder::carriers(const BlockRecipe& recipe, const double* height,
                                              std::vector<PlacedSurface>& placed) const
{
    Carriers result;
    const vtkSmartPointer<vtkDataSet> zone = m_data.geometry(recipe.zone);
    const bool isOfSurface = recipe.points.isOfSurface();
    if (isOfSurface) {
        if (const PlacedSurface* const found = surface(recipe, height, placed))
            result.surface = found->surface;
    }
    if (!zone || (isOfSurface && !result.surface))
        return result;
    CutFields fields;
    if (!isOfSurface)
        fields = blank(*zone, m_data, recipe.zone, recipe.surfaces.blanking);
    result.points =
        glyphPoints(*zone, m_data.zone(recipe.zone), result.surface.get(), recipe.points, fields);
    if (height) {
        double place[3];
        for (vtkIdType i = 0; i < result.points.places->GetNumberOfPoints(); ++i) {
            result.points.places->GetPoint(i, place);
            result.points.places->SetPoint(i, place[0], place[1], *height);
        }
    }
    const auto isOfPoints = [](const PlacedSurface& known) { return !known.surface; };
    if (!isOfSurface) {
        placed.erase(std::remove_if(placed.begin(), placed.end(), isOfPoints), placed.end());
        placed.push_back({recipe.zone, recipe.surfaces, nullptr, vertices(result.points.places)});
    }
    return result;
}

vtkSmartPointer<vtkDoubleArray> BlockBuilder::vectors(const BlockRecipe& recipe,
                                                      const Carriers& carriers) const
{
    std::array<vtkSmartPointer<vtkDataArray>, 3> parts;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (recipe.arrows.variables[axis] > 0)
            parts[axis] = glyphValues(m_data, recipe.zone, recipe.arrows.variables[axis],
                                      carriers.surface.get(), recipe.points, carriers.points);
    }
    const auto result = joinedVectors(parts, static_cast<vtkIdType>(carriers.points.ids.size()));
    if (result && recipe.arrows.isTangent && carriers.surface)
        makeTangent(*result, carriers.points, *carriers.surface, recipe.points);
    return result;
}

static vtkSmartPointer<vtkDoubleArray> upright(std::size_t count)
{
    auto normals = vtkSmartPointer<vtkDoubleArray>::New();
    normals->SetNumberOfComponents(3);
    normals->SetNumberOfTuples(static_cast<vtkIdType>(count));
    normals->Fill(0.0);
    normals->FillComponent(2, 1.0);
    return normals;
}

vtkSmartPointer<vtkDataArray> BlockBuilder::carrierColors(int group, const BlockRecipe& recipe,
                                                          const Carriers& carriers) const
{
    if (group == 0)
        return nullptr;
    const auto found = colorsBy(group, [&](int member) {
        return glyphValues(m_data, recipe.zone, m_groups.variable(member), carriers.surface.get(),
                           recipe.points, carriers.points);
    });
    return found ? found : noValueColors(static_cast<vtkIdType>(carriers.points.ids.size()));
}

Shape BlockBuilder::arrowShapes(const BlockRecipe& recipe, const Carriers& carriers,
                                bool isFlat) const
{
    const GlyphPoints& points = carriers.points;
    const auto directions = points.ids.empty() ? nullptr : vectors(recipe, carriers);
    if (!directions)
        return nullptr;
    vtkSmartPointer<vtkDoubleArray> normals;
    if (isFlat)
        normals = upright(points.ids.size());
    else if (carriers.surface)
        normals = normalsAt(points, *carriers.surface, recipe.points);
    const auto pointColors = carrierColors(recipe.colorGroup, recipe, carriers);
    Shape result = arrows({*points.places, *directions, normals, pointColors}, recipe.arrows);
    if (!recipe.arcLength)
        result->GetPointData()->SetTCoords(nullptr);
    return result;
}

/// The share of the way from the lowest to the highest value, in the middle where they are one.
static double shareOf(double value, const SymbolSizes& sizes)
{
    const double range = sizes.highest - sizes.lowest;
    return range == 0.0 ? 0.5 : std::clamp((value - sizes.lowest) / range, 0.0, 1.0);
}

/// What points have of their own: a size, negative for a point without, and a colour as a number.
static vtkSmartPointer<vtkFloatArray> symbolData(vtkDoubleArray* values, vtkDataArray* fills,
                                                 vtkIdType count, const SymbolSizes& sizes)
{
    auto data = vtkSmartPointer<vtkFloatArray>::New();
    data->SetName("symbol");
    data->SetNumberOfComponents(3);
    data->SetNumberOfTuples(count);
    for (vtkIdType i = 0; i < count; ++i) {
        const double value = values ? values->GetValue(i) : 0.0;
        const double size =
            sizes.smallest + shareOf(value, sizes) * (sizes.largest - sizes.smallest);
        double color = 0.0;
        for (int part = 0; fills && part < 3; ++part)
            color = 256.0 * color + fills->GetComponent(i, part);
        data->SetTuple3(i, std::isfinite(value) ? size : -1.0, color, 0.0);
    }
    return data;
}

Shape BlockBuilder::symbolShapes(const BlockRecipe& recipe, const Carriers& carriers) const
{
    const auto count = static_cast<vtkIdType>(carriers.points.ids.size());
    if (count == 0)
        return nullptr;
    vtkSmartPointer<vtkDoubleArray> values;
    if (recipe.sizes.areOwn) {
        values = glyphValues(m_data, recipe.zone, m_groups.variable(ContourGroups::kSize),
                             carriers.surface.get(), recipe.points, carriers.points);
        if (!values)
            return nullptr;
    }
    Shape result = vertices(carriers.points.places);
    if (const auto lines = carrierColors(recipe.colorGroup, recipe, carriers))
        result->GetPointData()->SetScalars(lines);
    const auto fills = carrierColors(recipe.fillGroup, recipe, carriers);
    if (values || fills)
        result->GetPointData()->SetNormals(symbolData(values, fills, count, recipe.sizes));
    return result;
}

} // namespace corvala::plot
