// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/streamtraces.h"

#include "plot/field/geometry/zone_cuts.h"

#include <vtkBoundingBox.h>
#include <vtkCellArray.h>
#include <vtkDataSet.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkStaticCellLocator.h>
#include <vtkStreamTracer.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <string>

namespace corvala::plot {

static constexpr const char* kVector = "vector";

using Point = std::array<double, 3>;

static std::string valueName(std::size_t number)
{
    return "value " + std::to_string(number);
}

/// All zones of a stream, with their vectors and values.
class StreamZones
{
public:
    StreamZones(const host::DataSet& data, const StreamChoice& choice,
                const std::vector<std::int64_t>& variables)
    {
        for (const StreamZone& zone : choice.zones)
            if (const auto block = blockOf(data, zone, choice.vector, variables))
                add(*block);
    }

    vtkMultiBlockDataSet* blocks() const { return m_blocks; }
    const vtkBoundingBox& box() const { return m_box; }
    /// How many of the points lie in a cell.
    int countInside(std::vector<Point> points);
    /// The axis along which most of the flow goes.
    std::size_t mainAxis() const
    {
        return static_cast<std::size_t>(std::max_element(m_flow.begin(), m_flow.end())
                                        - m_flow.begin());
    }

private:
    static vtkSmartPointer<vtkDataSet> blockOf(const host::DataSet& data, const StreamZone& from,
                                               const VectorVariables& vector,
                                               const std::vector<std::int64_t>& variables);
    void add(vtkDataSet& block);

    vtkNew<vtkMultiBlockDataSet> m_blocks;
    vtkBoundingBox m_box;
    std::vector<vtkSmartPointer<vtkStaticCellLocator>> m_locators; ///< none until they are needed
    Point m_flow {}; ///< sums of the components without their signs
};

/// `values` at the points of `block`, which has numbers in the zone; `missing` without a value.
static vtkSmartPointer<vtkDoubleArray> atPointsOf(vtkDataSet& block, vtkDataArray* values,
                                                  double missing, const char* name)
{
    const std::vector<vtkIdType> ids = pointNumbers(block);
    auto result = vtkSmartPointer<vtkDoubleArray>::New();
    result->SetName(name);
    result->SetNumberOfComponents(values ? values->GetNumberOfComponents() : 1);
    result->SetNumberOfTuples(block.GetNumberOfPoints());
    for (vtkIdType i = 0; i < result->GetNumberOfTuples(); ++i) {
        for (int part = 0; part < result->GetNumberOfComponents(); ++part) {
            const double value =
                values ? values->GetComponent(ids[static_cast<std::size_t>(i)], part) : missing;
            result->SetTypedComponent(i, part, std::isfinite(value) ? value : missing);
        }
    }
    return result;
}

vtkSmartPointer<vtkDataSet> StreamZones::blockOf(const host::DataSet& data, const StreamZone& from,
                                                 const VectorVariables& vector,
                                                 const std::vector<std::int64_t>& variables)
{
    const auto geometry = data.geometry(from.zone);
    const auto vectors = geometry && geometry->GetNumberOfCells() > 0
        ? pointVectors(data, from.zone, vector)
        : nullptr;
    if (!vectors)
        return nullptr;
    const CutFields fields = blank(*geometry, data, from.zone, from.blanking);
    auto block = visiblePart(*geometry);
    std::vector<vtkSmartPointer<vtkDoubleArray>> arrays {atPointsOf(*block, vectors, 0.0, kVector)};
    for (std::size_t i = 0; i < variables.size(); ++i)
        arrays.push_back(atPointsOf(
            *block, zoneValues(data, from.zone, variables[i], host::ValueLocation::Points),
            std::numeric_limits<double>::quiet_NaN(), valueName(i).c_str()));
    for (const auto& array : arrays)
        block->GetPointData()->AddArray(array);
    if (!fields.empty())
        block = cutVolume(*block, fields);
    vtkNew<vtkPointData> wanted; // the blocks have the same arrays
    for (const auto& array : arrays)
        wanted->AddArray(block->GetPointData()->GetArray(array->GetName()));
    block->GetPointData()->ShallowCopy(wanted);
    return block->GetNumberOfCells() > 0 ? block : nullptr;
}

void StreamZones::add(vtkDataSet& block)
{
    m_blocks->SetBlock(m_blocks->GetNumberOfBlocks(), &block);
    m_box.AddBounds(block.GetBounds());
    vtkDataArray* const vectors = block.GetPointData()->GetArray(kVector);
    for (vtkIdType i = 0; i < vectors->GetNumberOfTuples(); ++i)
        for (std::size_t axis = 0; axis < 3; ++axis)
            m_flow[axis] += std::abs(vectors->GetComponent(i, static_cast<int>(axis)));
}

int StreamZones::countInside(std::vector<Point> points)
{
    for (unsigned int i = 0; m_locators.size() < m_blocks->GetNumberOfBlocks(); ++i) {
        const auto locator = m_locators.emplace_back(vtkSmartPointer<vtkStaticCellLocator>::New());
        locator->SetDataSet(vtkDataSet::SafeDownCast(m_blocks->GetBlock(i)));
        locator->BuildLocator();
    }
    return static_cast<int>(std::count_if(points.begin(), points.end(), [this](Point& point) {
        return std::any_of(m_locators.begin(), m_locators.end(), [&](const auto& locator) {
            return locator->FindCell(point.data()) >= 0;
        });
    }));
}

/// Points on a line, half a step away from its ends.
static std::vector<Point> onLine(const Point& from, const Point& to, int count)
{
    std::vector<Point> points;
    for (int i = 0; i < count; ++i) {
        Point& point = points.emplace_back();
        for (std::size_t axis = 0; axis < 3; ++axis)
            point[axis] = from[axis] + (to[axis] - from[axis]) * (i + 0.5) / count;
    }
    return points;
}

/// Lines across the flow on which seeds may stand, the best first: along the longer of the other
/// two axes, and then along the shorter, in the middle of the box and nearer to its ends.
static std::vector<std::pair<Point, Point>> rakesAcross(const vtkBoundingBox& box,
                                                        std::size_t mainAxis)
{
    double lengths[3];
    box.GetLengths(lengths);
    std::size_t across[] = {(mainAxis + 1) % 3, (mainAxis + 2) % 3};
    if (lengths[across[0]] < lengths[across[1]])
        std::swap(across[0], across[1]);
    std::vector<std::pair<Point, Point>> rakes;
    for (const std::size_t axis : across) {
        const std::size_t third = 3 - axis - mainAxis;
        for (const double aside : {0.5, 0.25, 0.75}) {
            for (const double along : {0.5, 0.25, 0.05}) {
                Point from;
                box.GetMinPoint(from.data());
                from[mainAxis] += along * lengths[mainAxis];
                from[third] += aside * lengths[third];
                Point to = from;
                to[axis] += lengths[axis];
                rakes.emplace_back(from, to);
            }
        }
    }
    return rakes;
}

static int directionOf(StreamDirection_e direction)
{
    if (direction == StreamDirection_Both)
        return vtkStreamTracer::BOTH;
    return direction == StreamDirection_Forward ? vtkStreamTracer::FORWARD
                                                : vtkStreamTracer::BACKWARD;
}

static vtkSmartPointer<vtkPolyData>
traced(const StreamZones& zones, const std::vector<Point>& seeds, StreamDirection_e direction)
{
    constexpr double kLongest = 1.5; // diagonals of the box
    constexpr vtkIdType kMostSteps = 20'000;
    constexpr double kStep = 0.05; // of a cell: lines end up to a step before the cells do
    vtkNew<vtkPoints> points;
    points->SetDataType(VTK_DOUBLE);
    for (const Point& seed : seeds)
        points->InsertNextPoint(seed.data());
    vtkNew<vtkPolyData> source;
    source->SetPoints(points);
    vtkNew<vtkStreamTracer> tracer;
    tracer->SetInputData(zones.blocks());
    tracer->SetSourceData(source);
    tracer->SetInputArrayToProcess(0, 0, 0, vtkDataObject::FIELD_ASSOCIATION_POINTS, kVector);
    tracer->SetInterpolatorTypeToCellLocator();
    tracer->SetIntegratorTypeToRungeKutta45();
    tracer->SetIntegrationDirection(directionOf(direction));
    tracer->SetIntegrationStepUnit(vtkStreamTracer::CELL_LENGTH_UNIT);
    tracer->SetInitialIntegrationStep(kStep);
    tracer->SetMinimumIntegrationStep(0.01);
    tracer->SetMaximumIntegrationStep(kStep);
    tracer->SetMaximumPropagation(kLongest * zones.box().GetDiagonalLength());
    tracer->SetMaximumNumberOfSteps(kMostSteps);
    tracer->SetComputeVorticity(false);
    tracer->Update();
    auto lines = vtkSmartPointer<vtkPolyData>::New();
    lines->ShallowCopy(tracer->GetOutput());
    return lines;
}

/// The first rake of which at least half lies in the flow, or else the best.
static std::array<double, 6> automaticRake(StreamZones& zones, int count)
{
    std::array<double, 6> best {};
    int most = -1;
    for (const auto& [from, to] : rakesAcross(zones.box(), zones.mainAxis())) {
        const int inside = zones.countInside(onLine(from, to, count));
        if (inside > most) {
            most = inside;
            best = {from[0], from[1], from[2], to[0], to[1], to[2]};
        }
        if (2 * inside >= count)
            break;
    }
    return best;
}

static std::vector<Point> seedsOn(const std::array<double, 6>& rake, const StreamChoice& choice)
{
    std::vector<Point> seeds =
        onLine({rake[0], rake[1], rake[2]}, {rake[3], rake[4], rake[5]}, choice.seedCount);
    for (std::size_t i = 0; i + 2 < choice.points.size(); i += 3)
        seeds.push_back({choice.points[i], choice.points[i + 1], choice.points[i + 2]});
    return seeds;
}

Streamtraces streamtraces(const host::DataSet& data, const StreamChoice& choice,
                          const std::vector<std::int64_t>& variables)
{
    Streamtraces result;
    result.lines = vtkSmartPointer<vtkPolyData>::New();
    StreamZones zones(data, choice, variables);
    if (!zones.box().IsValid())
        return result;
    const bool findsRake = choice.automaticRake && choice.seedCount > 0;
    const auto rake = findsRake ? automaticRake(zones, choice.seedCount) : choice.rake;
    const std::vector<Point> seeds = seedsOn(rake, choice);
    if (choice.seedCount > 0)
        result.start.rake = rake;
    if (seeds.empty())
        return result;
    const auto lines = traced(zones, seeds, choice.direction);
    result.start.isOutside = lines->GetNumberOfLines() == 0 && zones.countInside(seeds) == 0;
    result.lines->SetPoints(lines->GetPoints());
    result.lines->SetLines(lines->GetLines());
    for (std::size_t i = 0; i < variables.size(); ++i)
        result.values.emplace_back(
            vtkDoubleArray::SafeDownCast(lines->GetPointData()->GetArray(valueName(i).c_str())));
    return result;
}

} // namespace corvala::plot
