// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vtkType.h>

#include <array>
#include <vector>

namespace corvala::plot {

/// Brings edges with the same ends next to each other, in ascending order, in a time that is
/// proportional to their number. `endsOf(edge)` gives the two points of an edge, both from 0 and
/// below `pointCount`.
template<class Edge, class Ends>
void sortByEnds(std::vector<Edge>& edges, vtkIdType pointCount, Ends endsOf)
{
    std::vector<Edge> sorted(edges.size());
    for (const std::size_t end : {std::size_t {1}, std::size_t {0}}) {
        std::vector<std::size_t> places(static_cast<std::size_t>(pointCount) + 1, 0);
        for (const Edge& edge : edges)
            ++places[static_cast<std::size_t>(endsOf(edge)[end]) + 1];
        for (std::size_t i = 1; i < places.size(); ++i)
            places[i] += places[i - 1];
        for (const Edge& edge : edges)
            sorted[places[static_cast<std::size_t>(endsOf(edge)[end])]++] = edge;
        edges.swap(sorted);
    }
}

} // namespace corvala::plot
