// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vtkType.h>

#include <array>
#include <cstdint>

class vtkDataSet;
class vtkUnsignedCharArray;

namespace corvala::plot {

/// I, J and K, from 0.
using Index = std::array<std::int64_t, 3>;

inline Index shifted(Index index, int axis, int by)
{
    index[static_cast<std::size_t>(axis)] += by;
    return index;
}

/// Numbers of points and cells of an ordered zone, and which of its cells are blanked.
class IndexSpace
{
public:
    IndexSpace(vtkDataSet& data, const Index& dimensions);

    std::int64_t dimension(int axis) const { return m_dimensions[static_cast<std::size_t>(axis)]; }
    vtkIdType point(const Index& index) const;
    /// The cell whose lowest corner is `index`; -1 outside the zone and for a blanked cell.
    vtkIdType visibleCell(const Index& index) const;
    /// Whether the step along `axis` from the point at `index` is an edge of a cell that is not
    /// blanked.
    bool isVisibleEdge(const Index& index, int axis) const;
    bool hasBlanking() const { return m_cellGhosts || m_pointGhosts; }

private:
    bool isBlanked(vtkIdType cell, const Index& index) const;

    Index m_dimensions;
    const vtkUnsignedCharArray* m_cellGhosts = nullptr;
    const vtkUnsignedCharArray* m_pointGhosts = nullptr;
};

} // namespace corvala::plot
