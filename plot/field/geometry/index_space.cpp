// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/geometry/index_space.h"

#include <vtkDataSet.h>
#include <vtkDataSetAttributes.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>

namespace corvala::plot {

static std::size_t at(int axis)
{
    return static_cast<std::size_t>(axis);
}

IndexSpace::IndexSpace(vtkDataSet& data, const Index& dimensions)
    : m_dimensions(dimensions)
    , m_cellGhosts(data.GetCellGhostArray())
    , m_pointGhosts(data.GetPointGhostArray())
{
}

vtkIdType IndexSpace::point(const Index& index) const
{
    return index[0] + m_dimensions[0] * (index[1] + m_dimensions[1] * index[2]);
}

vtkIdType IndexSpace::visibleCell(const Index& index) const
{
    vtkIdType cell = 0;
    for (int axis = 2; axis >= 0; --axis) {
        const std::int64_t cells = std::max<std::int64_t>(dimension(axis) - 1, 1);
        if (index[at(axis)] < 0 || index[at(axis)] >= cells)
            return -1;
        cell = cell * cells + index[at(axis)];
    }
    return isBlanked(cell, index) ? -1 : cell;
}

bool IndexSpace::isBlanked(vtkIdType cell, const Index& index) const
{
    if (m_cellGhosts
        && (m_cellGhosts->GetValue(cell)
            & (vtkDataSetAttributes::HIDDENCELL | vtkDataSetAttributes::DUPLICATECELL)))
        return true;
    for (int corner = 0; m_pointGhosts && corner < 8; ++corner) {
        const Index offset = {corner & 1, (corner >> 1) & 1, (corner >> 2) & 1};
        Index moved = index;
        for (int axis = 0; axis < 3; ++axis)
            moved[at(axis)] += dimension(axis) > 1 ? offset[at(axis)] : 0;
        if (m_pointGhosts->GetValue(point(moved)) & vtkDataSetAttributes::HIDDENPOINT)
            return true;
    }
    return false;
}

bool IndexSpace::isVisibleEdge(const Index& index, int axis) const
{
    const int first = (axis + 1) % 3;
    const int second = (axis + 2) % 3;
    for (const int one : {0, -1})
        for (const int other : {0, -1})
            if (visibleCell(shifted(shifted(index, first, one), second, other)) >= 0)
                return true;
    return false;
}

} // namespace corvala::plot
