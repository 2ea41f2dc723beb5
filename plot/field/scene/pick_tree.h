// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "plot/field/scene/pick_ray.h"

#include <vtkPolyData.h>
#include <vtkSmartPointer.h>

#include <cstdint>

namespace corvala::plot {

/// The cells of a shape in boxes within boxes, so that looking for the one that a ray meets takes
/// no longer for many cells. Made by any thread, from a shape that no other uses.
class PickTree
{
public:
    explicit PickTree(vtkSmartPointer<vtkPolyData> shape);

    /// The nearest cell along the ray.
    PickRay::Hit hit(const PickRay& ray) const;
    /// A cell with the numbers of its points.
    void getCell(vtkIdType number, vtkGenericCell& cell) const;

private:
    struct Box
    {
        std::array<double, 3> low;
        std::array<double, 3> high;
        void add(const Box& other);
        double middle(std::size_t axis) const { return low[axis] / 2 + high[axis] / 2; }
    };
    struct Node
    {
        Box box;
        std::uint32_t first = 0; ///< cell of a leaf in their order, or the second part
        std::uint32_t count = 0; ///< cells of a leaf; 0: the first part is the next node
    };

    void split(const std::vector<Box>& boxes, std::uint32_t first, std::uint32_t count);

    vtkSmartPointer<vtkPolyData> m_shape;
    std::vector<std::uint32_t> m_order; ///< cells
    std::vector<Node> m_nodes;
};

} // namespace corvala::plot
