// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/refined_levels.h"

#include <vtkCellData.h>
#include <vtkDataSetAttributes.h>
#include <vtkImageData.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace corvala::host::io::reader {

static std::vector<vtkImageData*> imagesOf(vtkDataObject* level)
{
    std::vector<vtkImageData*> result;
    auto* const block = vtkMultiBlockDataSet::SafeDownCast(level);
    for (unsigned int i = 0; block && i < block->GetNumberOfBlocks(); ++i)
        if (auto* const image = vtkImageData::SafeDownCast(block->GetBlock(i)))
            result.push_back(image);
    return result;
}

/// Of the cells of an image along an axis, those that lie within bounds, as far as the last one.
struct CellRange
{
    CellRange(vtkImageData& image, const double bounds[6], int axis)
    {
        static constexpr double kRounding = 1e-3; ///< of a cell
        int size[3];
        image.GetDimensions(size);
        last = std::max(size[axis] - 2, 0);
        const double spacing = image.GetSpacing()[axis];
        if (size[axis] < 2 || !(spacing > 0))
            return;
        const double origin = image.GetBounds()[2 * axis];
        const auto cellAt = [&](double place) {
            return std::clamp((place - origin) / spacing, -1.0, size[axis] + 1.0);
        };
        first = std::max(static_cast<int>(std::ceil(cellAt(bounds[2 * axis]) - kRounding)), 0);
        last = std::min(static_cast<int>(std::floor(cellAt(bounds[2 * axis + 1]) + kRounding)) - 1,
                        last);
    }

    int first = 0;
    int last = 0;
};

static vtkUnsignedCharArray& ghostsOf(vtkImageData& image)
{
    if (!image.GetCellGhostArray())
        image.AllocateCellGhostArray();
    return *image.GetCellGhostArray();
}

static void hideWithin(vtkImageData& image, const double bounds[6])
{
    const CellRange x(image, bounds, 0);
    const CellRange y(image, bounds, 1);
    const CellRange z(image, bounds, 2);
    int size[3];
    image.GetDimensions(size);
    const vtkIdType row = std::max(size[0] - 1, 1);
    const vtkIdType plane = row * std::max(size[1] - 1, 1);
    for (vtkIdType k = z.first; k <= z.last; ++k)
        for (vtkIdType j = y.first; j <= y.last; ++j)
            for (vtkIdType i = x.first; i <= x.last; ++i) {
                const vtkIdType cell = i + j * row + k * plane;
                vtkUnsignedCharArray& ghosts = ghostsOf(image);
                ghosts.SetValue(cell, ghosts.GetValue(cell) | vtkDataSetAttributes::HIDDENCELL);
            }
}

void hideRefinedCells(vtkMultiBlockDataSet& levels)
{
    for (unsigned int i = 0; i + 1 < levels.GetNumberOfBlocks(); ++i)
        for (vtkImageData* const coarse : imagesOf(levels.GetBlock(i)))
            for (vtkImageData* const fine : imagesOf(levels.GetBlock(i + 1)))
                hideWithin(*coarse, fine->GetBounds());
}

} // namespace corvala::host::io::reader
