// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/field/scene/pick_tree.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include <vtkGenericCell.h>
#include <vtkIdList.h>
#include <vtkNew.h>

namespace corvala::plot {

static constexpr std::uint32_t kLeaf = 8; ///< cells at most

void PickTree::Box::add(const Box& other)
{
    for (std::size_t axis = 0; axis < 3; ++axis) {
        low[axis] = std::min(low[axis], other.low[axis]);
        high[axis] = std::max(high[axis], other.high[axis]);
    }
}

PickTree::PickTree(vtkSmartPointer<vtkPolyData> shape)
    : m_shape(std::move(shape))
    , m_order(static_cast<std::size_t>(m_shape->GetNumberOfCells()))
{
    std::vector<Box> boxes;
    boxes.reserve(m_order.size());
    forEachCell(*m_shape, [&](vtkIdType, const Corners& corners) {
        Box box {{0, 0, 0}, {0, 0, 0}};
        for (vtkIdType i = 0; i < corners.count; ++i) {
            std::array<double, 3> place;
            m_shape->GetPoint(corners.points[i], place.data());
            if (i == 0)
                box = {place, place};
            else
                box.add({place, place});
        }
        boxes.push_back(box);
    });
    std::iota(m_order.begin(), m_order.end(), 0U);
    m_nodes.reserve(boxes.size() / 2 + 1);
    if (!boxes.empty())
        split(boxes, 0, static_cast<std::uint32_t>(boxes.size()));
}

/// Adds the node of some cells in the order, and what it consists of.
void PickTree::split(const std::vector<Box>& boxes, std::uint32_t first, std::uint32_t count)
{
    const auto begin = m_order.begin() + first;
    Node node {boxes[*begin], first, count};
    std::for_each(begin, begin + count, [&](std::uint32_t cell) { node.box.add(boxes[cell]); });
    const std::size_t number = m_nodes.size();
    m_nodes.push_back(node);
    if (count <= kLeaf)
        return;
    const auto width = [&box = node.box](std::size_t axis) {
        return box.high[axis] - box.low[axis];
    };
    std::size_t widest = 0;
    for (const std::size_t axis : {1, 2})
        widest = width(axis) > width(widest) ? axis : widest;
    const std::uint32_t half = count / 2;
    std::nth_element(begin, begin + half, begin + count,
                     [&boxes, widest](std::uint32_t one, std::uint32_t other) {
                         return boxes[one].middle(widest) < boxes[other].middle(widest);
                     });
    split(boxes, first, half);
    m_nodes[number].first = static_cast<std::uint32_t>(m_nodes.size());
    m_nodes[number].count = 0;
    split(boxes, first + half, count - half);
}

/// A cell by its number among all.
static Corners cornersOf(vtkPolyData& shape, vtkIdType number, vtkIdList& ids)
{
    Corners corners;
    for (vtkCellArray* const cells : {shape.GetVerts(), shape.GetLines(), shape.GetPolys()}) {
        if (number < cells->GetNumberOfCells()) {
            corners.isFace = cells == shape.GetPolys();
            corners.isLine = cells == shape.GetLines();
            cells->GetCellAtId(number, &ids);
            corners.count = ids.GetNumberOfIds();
            corners.points = ids.GetPointer(0);
            break;
        }
        number -= cells->GetNumberOfCells();
    }
    return corners;
}

void PickTree::getCell(vtkIdType number, vtkGenericCell& cell) const
{
    vtkNew<vtkIdList> ids;
    fillCell(*m_shape, cornersOf(*m_shape, number, *ids), cell);
}

PickRay::Hit PickTree::hit(const PickRay& ray) const
{
    PickRay::Hit nearest;
    std::vector<std::uint32_t> open;
    if (!m_nodes.empty())
        open.push_back(0);
    vtkNew<vtkGenericCell> cell;
    vtkNew<vtkIdList> ids;
    while (!open.empty()) {
        const std::uint32_t number = open.back();
        const Node& node = m_nodes[number];
        open.pop_back();
        if (ray.entry(node.box.low, node.box.high) > nearest.position)
            continue;
        if (node.count == 0) {
            open.push_back(node.first);
            open.push_back(number + 1);
        }
        for (std::uint32_t i = 0; i < node.count; ++i) {
            const auto candidate = static_cast<vtkIdType>(m_order[node.first + i]);
            const double position =
                ray.position(*m_shape, cornersOf(*m_shape, candidate, *ids), *cell);
            if (position < nearest.position)
                nearest = {candidate, position};
        }
    }
    return nearest;
}

} // namespace corvala::plot
