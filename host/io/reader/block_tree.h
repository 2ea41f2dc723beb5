// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <string>
#include <vector>

#include <vtkDataSet.h>
#include <vtkSmartPointer.h>

class vtkDataObject;

namespace corvala::host::io::reader {

/// A leaf of a tree of blocks.
struct LeafBlock
{
    std::vector<std::string> names; ///< from the root down; empty for data that is no tree
    vtkSmartPointer<vtkDataSet> data; ///< null when there is nothing in it that has points
};

/// Leaves of the tree in order, with those that are empty. A block without a name is "Block N" and
/// a piece "Piece N", counted from 1 among its neighbours; but the only leaf of a tree without any
/// names has none.
std::vector<LeafBlock> leafBlocks(vtkDataObject* root);

/// Valid UTF-8 without control characters for a name from a file; `fallback` for a blank one.
std::string cleanName(const char* name, const std::string& fallback);

} // namespace corvala::host::io::reader
