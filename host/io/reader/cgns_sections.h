// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/cgns_tree.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace corvala::host::io::reader {

/// A part of the elements of a zone.
struct CgnsSection
{
    CgnsTree::Node node;
    int kind = 0; ///< of its elements, as CGNS calls it; 0 when that cannot be read
    std::int64_t first = 0; ///< element; beyond `last` when that cannot be read
    std::int64_t last = -1;
};

/// In the order of their elements.
std::vector<CgnsSection> sectionsOf(const CgnsTree& file, const CgnsTree::Node& zone);

/// New numbers for the first elements of those sections of a zone that are its cells, by their
/// names. VTK takes the elements with the first numbers for the cells, which some programs give to
/// edges and faces. Empty where the cells come first already, and for sections of mixed elements
/// and of polyhedra.
std::map<std::string, std::int64_t> cellNumbers(const CgnsTree& file, const CgnsTree::Node& zone,
                                                int cellDimension);

} // namespace corvala::host::io::reader
