// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/mesh_lines.h"

#include "plot/field/geometry/edge_order.h"

#include <vtkCellArray.h>
#include <vtkCellArrayIterator.h>
#include <vtkFloatArray.h>
#include <vtkMath.h>
#include <vtkNew.h>
#include <vtkPointData.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace corvala::plot {

using Edge = std::array<vtkIdType, 2>;

static Edge sorted(vtkIdType a, vtkIdType b)
{
    return {std::min(a, b), std::max(a, b)};
}

static void collectEdges(vtkCellArray* cells, bool closed, std::vector<Edge>& edges)
{
    auto cell = vtk::TakeSmartPointer(cells->NewIterator());
    for (cell->GoToFirstCell(); !cell->IsDoneWithTraversal(); cell->GoToNextCell()) {
        vtkIdType count = 0;
        const vtkIdType* corners = nullptr;
        cell->GetCurrentCell(count, corners);
        for (vtkIdType i = 1; i < count; ++i)
            edges.push_back(sorted(corners[i - 1], corners[i]));
        if (closed && count > 2)
            edges.push_back(sorted(corners[count - 1], corners[0]));
    }
}

static std::vector<Edge> uniqueEdges(vtkPolyData& shape)
{
    std::vector<Edge> edges;
    edges.reserve(static_cast<std::size_t>(shape.GetPolys()->GetNumberOfConnectivityIds()
                                           + shape.GetLines()->GetNumberOfConnectivityIds()));
    collectEdges(shape.GetPolys(), true, edges);
    collectEdges(shape.GetLines(), false, edges);
    sortByEnds(edges, shape.GetNumberOfPoints(), [](const Edge& edge) { return edge; });
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    return edges;
}

vtkSmartPointer<vtkPolyData> meshLines(vtkPolyData& shape)
{
    vtkNew<vtkCellArray> cells;
    for (const Edge& edge : uniqueEdges(shape))
        cells->InsertNextCell(2, edge.data());
    auto lines = vtkSmartPointer<vtkPolyData>::New();
    lines->SetPoints(shape.GetPoints());
    lines->SetVerts(shape.GetVerts());
    lines->SetLines(cells);
    lines->GetPointData()->ShallowCopy(shape.GetPointData());
    return lines;
}

/// Walks the edges of a mesh in chains that go as straight as they can.
class ChainWalker
{
public:
    ChainWalker(vtkPoints& points, const std::vector<Edge>& edges);

    /// The points of the next chain; empty when every edge was walked.
    std::vector<vtkIdType> next();

private:
    static std::size_t at(vtkIdType id) { return static_cast<std::size_t>(id); }
    vtkIdType otherEnd(std::size_t edge, vtkIdType point) const;
    /// The unused edge at `point` that goes on best in the direction from `previous`; none when all
    /// turn by more than 60 degrees.
    std::ptrdiff_t straightOn(vtkIdType previous, vtkIdType point) const;
    void extend(std::vector<vtkIdType>& chain);

    vtkPoints& m_points;
    const std::vector<Edge>& m_edges;
    std::vector<std::size_t> m_first; ///< by point: where its edges begin in m_edgesOfPoint
    std::vector<std::size_t> m_edgesOfPoint;
    std::vector<bool> m_used;
    std::size_t m_next = 0;
};

ChainWalker::ChainWalker(vtkPoints& points, const std::vector<Edge>& edges)
    : m_points(points)
    , m_edges(edges)
    , m_first(at(points.GetNumberOfPoints()) + 2, 0)
    , m_edgesOfPoint(2 * edges.size())
    , m_used(edges.size(), false)
{
    for (const Edge& edge : edges) {
        ++m_first[at(edge[0]) + 2];
        ++m_first[at(edge[1]) + 2];
    }
    for (std::size_t i = 1; i < m_first.size(); ++i)
        m_first[i] += m_first[i - 1];
    for (std::size_t i = 0; i < edges.size(); ++i) {
        m_edgesOfPoint[m_first[at(edges[i][0]) + 1]++] = i;
        m_edgesOfPoint[m_first[at(edges[i][1]) + 1]++] = i;
    }
}

vtkIdType ChainWalker::otherEnd(std::size_t edge, vtkIdType point) const
{
    return m_edges[edge][0] == point ? m_edges[edge][1] : m_edges[edge][0];
}

static double cosineOfTurn(const double* from, const double* by, const double* to)
{
    double in[3];
    double out[3];
    vtkMath::Subtract(by, from, in);
    vtkMath::Subtract(to, by, out);
    const double lengths = vtkMath::Norm(in) * vtkMath::Norm(out);
    return lengths > 0.0 ? vtkMath::Dot(in, out) / lengths : 1.0;
}

std::ptrdiff_t ChainWalker::straightOn(vtkIdType previous, vtkIdType point) const
{
    double from[3];
    double by[3];
    double to[3];
    m_points.GetPoint(previous, from);
    m_points.GetPoint(point, by);
    std::ptrdiff_t best = -1;
    double bestCosine = 0.5;
    for (std::size_t i = m_first[at(point)]; i < m_first[at(point) + 1]; ++i) {
        const std::size_t edge = m_edgesOfPoint[i];
        if (m_used[edge])
            continue;
        m_points.GetPoint(otherEnd(edge, point), to);
        const double cosine = cosineOfTurn(from, by, to);
        if (cosine > bestCosine) {
            bestCosine = cosine;
            best = static_cast<std::ptrdiff_t>(edge);
        }
    }
    return best;
}

void ChainWalker::extend(std::vector<vtkIdType>& chain)
{
    while (true) {
        const std::ptrdiff_t found = straightOn(chain[chain.size() - 2], chain.back());
        if (found < 0)
            return;
        const auto edge = static_cast<std::size_t>(found);
        m_used[edge] = true;
        chain.push_back(otherEnd(edge, chain.back()));
    }
}

std::vector<vtkIdType> ChainWalker::next()
{
    while (m_next < m_edges.size() && m_used[m_next])
        ++m_next;
    if (m_next == m_edges.size())
        return {};
    m_used[m_next] = true;
    std::vector<vtkIdType> chain = {m_edges[m_next][1], m_edges[m_next][0]};
    extend(chain);
    std::reverse(chain.begin(), chain.end());
    extend(chain);
    return chain;
}

/// Copies points with their data, and gives each a place along its line.
class ArcLengthCopy
{
public:
    explicit ArcLengthCopy(vtkPolyData& source);
    void addChain(const std::vector<vtkIdType>& chain);
    void addVertices();
    vtkSmartPointer<vtkPolyData> finish();

private:
    vtkIdType addPoint(vtkIdType source, double arcLength);

    vtkPolyData& m_source;
    vtkSmartPointer<vtkPolyData> m_result = vtkSmartPointer<vtkPolyData>::New();
    vtkNew<vtkPoints> m_points;
    vtkNew<vtkCellArray> m_lines;
    vtkNew<vtkCellArray> m_vertices;
    vtkNew<vtkFloatArray> m_arcLengths;
};

ArcLengthCopy::ArcLengthCopy(vtkPolyData& source)
    : m_source(source)
{
    m_points->SetDataType(source.GetPoints()->GetDataType());
    m_arcLengths->SetName("arc length");
    m_arcLengths->SetNumberOfComponents(2);
    m_result->GetPointData()->CopyTCoordsOff();
    m_result->GetPointData()->CopyAllocate(source.GetPointData());
}

vtkIdType ArcLengthCopy::addPoint(vtkIdType source, double arcLength)
{
    const vtkIdType point = m_points->InsertNextPoint(m_source.GetPoint(source));
    m_result->GetPointData()->CopyData(m_source.GetPointData(), source, point);
    m_arcLengths->InsertNextTuple2(arcLength, 0.5);
    return point;
}

void ArcLengthCopy::addChain(const std::vector<vtkIdType>& chain)
{
    m_lines->InsertNextCell(static_cast<int>(chain.size()));
    double arcLength = 0.0;
    double previous[3];
    double point[3];
    m_source.GetPoint(chain.front(), previous);
    for (const vtkIdType id : chain) {
        m_source.GetPoint(id, point);
        arcLength += std::sqrt(vtkMath::Distance2BetweenPoints(previous, point));
        m_lines->InsertCellPoint(addPoint(id, arcLength));
        std::copy(point, point + 3, previous);
    }
}

void ArcLengthCopy::addVertices()
{
    auto cell = vtk::TakeSmartPointer(m_source.GetVerts()->NewIterator());
    for (cell->GoToFirstCell(); !cell->IsDoneWithTraversal(); cell->GoToNextCell()) {
        vtkIdType count = 0;
        const vtkIdType* ids = nullptr;
        cell->GetCurrentCell(count, ids);
        for (vtkIdType i = 0; i < count; ++i) {
            const vtkIdType point = addPoint(ids[i], 0.0);
            m_vertices->InsertNextCell(1, &point);
        }
    }
}

vtkSmartPointer<vtkPolyData> ArcLengthCopy::finish()
{
    m_result->SetPoints(m_points);
    m_result->SetVerts(m_vertices);
    m_result->SetLines(m_lines);
    m_result->GetPointData()->SetTCoords(m_arcLengths);
    return m_result;
}

vtkSmartPointer<vtkPolyData> withArcLength(vtkPolyData& lines)
{
    std::vector<Edge> edges;
    collectEdges(lines.GetLines(), false, edges);
    ChainWalker walker(*lines.GetPoints(), edges);
    ArcLengthCopy copy(lines);
    for (auto chain = walker.next(); !chain.empty(); chain = walker.next())
        copy.addChain(chain);
    copy.addVertices();
    return copy.finish();
}

} // namespace corvala::plot
