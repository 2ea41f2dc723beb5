// SPDX-License-Identifier: BSD-3-Clause
#pragma once

class vtkMultiBlockDataSet;

namespace corvala::host::io::reader {

/// Marks the cells of each level of images that the next level shows in more detail as hidden.
/// `levels` has a block of images for each level, coarse ones first.
void hideRefinedCells(vtkMultiBlockDataSet& levels);

} // namespace corvala::host::io::reader
