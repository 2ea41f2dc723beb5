// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/cgns_tree.h"

#include <map>
#include <string>

namespace corvala::host::io::reader {

/// New numbers for the first elements of those sections of a zone that are its cells, by their
/// names. VTK takes the elements with the first numbers for the cells, which some programs give to
/// edges and faces. Empty where the cells come first already, and for sections of mixed elements
/// and of polyhedra.
std::map<std::string, std::int64_t> cellNumbers(const CgnsTree& file, const CgnsTree::Node& zone,
                                                int cellDimension);

} // namespace corvala::host::io::reader
