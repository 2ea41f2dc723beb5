// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/cgns_sections.h"

#include <algorithm>

namespace corvala::host::io::reader {

struct CgnsSection
{
    std::string name;
    int dimension = 0;
    std::vector<std::int64_t> range; ///< first and last element
};

/// Of the elements with this number in CGNS; -1 for those of several kinds, faces of polyhedra, and
/// polyhedra.
static int dimensionOf(int kind)
{
    constexpr int kDimensions[] = {-1, -1, 0, 1, 1, 2,  2, 2,  2,  2, 3, 3, 3, 3, 3,
                                   3,  3,  3, 3, 3, -1, 3, -1, -1, 1, 2, 2, 2, 2};
    constexpr int kCount = sizeof kDimensions / sizeof *kDimensions;
    return kind >= 0 && kind < kCount ? kDimensions[kind] : -1;
}

static std::vector<CgnsSection> sectionsOf(const CgnsTree& file, const CgnsTree::Node& zone)
{
    std::vector<CgnsSection> result;
    for (const CgnsTree::Node& node : file.children(zone.id, "Elements_t")) {
        const std::vector<int> kind = file.integers(node.id);
        CgnsSection section {node.name, kind.empty() ? -1 : dimensionOf(kind.front()), {}};
        for (const CgnsTree::Node& range : file.children(node.id, "IndexRange_t"))
            if (range.name == "ElementRange")
                section.range = file.numbers(range.id);
        result.push_back(section);
    }
    std::stable_sort(result.begin(), result.end(),
                     [](const auto& one, const auto& other) { return one.range < other.range; });
    return result;
}

std::map<std::string, std::int64_t> cellNumbers(const CgnsTree& file, const CgnsTree::Node& zone,
                                                int cellDimension)
{
    std::map<std::string, std::int64_t> result;
    const std::vector<CgnsSection> sections = sectionsOf(file, zone);
    const bool areKnown = std::all_of(sections.begin(), sections.end(), [&](const auto& section) {
        return section.range.size() == 2 && section.range[0] > 0
            && section.range[0] <= section.range[1] && section.dimension >= 0
            && section.dimension <= cellDimension;
    });
    const auto isCell = [&](const auto& section) { return section.dimension == cellDimension; };
    if (!areKnown || std::is_partitioned(sections.begin(), sections.end(), isCell))
        return result;
    std::int64_t next = 1;
    for (const CgnsSection& section : sections)
        if (isCell(section)) {
            result[section.name] = next;
            next += section.range[1] - section.range[0] + 1;
        }
    return result;
}

} // namespace corvala::host::io::reader
