// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/cgns_sections.h"

#include <algorithm>
#include <tuple>

namespace corvala::host::io::reader {

/// Of the elements with this number in CGNS; -1 for those of several kinds, faces of polyhedra, and
/// polyhedra.
static int dimensionOf(int kind)
{
    constexpr int kDimensions[] = {-1, -1, 0, 1, 1, 2,  2, 2,  2,  2, 3, 3, 3, 3, 3,
                                   3,  3,  3, 3, 3, -1, 3, -1, -1, 1, 2, 2, 2, 2};
    constexpr int kCount = sizeof kDimensions / sizeof *kDimensions;
    return kind >= 0 && kind < kCount ? kDimensions[kind] : -1;
}

std::vector<CgnsSection> sectionsOf(const CgnsTree& file, const CgnsTree::Node& zone)
{
    std::vector<CgnsSection> result;
    for (const CgnsTree::Node& node : file.children(zone.id, "Elements_t")) {
        CgnsSection section {node};
        const std::vector<int> kind = file.integers(node.id);
        if (!kind.empty())
            section.kind = kind.front();
        for (const CgnsTree::Node& range : file.children(node.id, "IndexRange_t")) {
            const std::vector<std::int64_t> ends = file.numbers(range.id);
            if (range.name == "ElementRange" && ends.size() == 2)
                std::tie(section.first, section.last) = std::tie(ends[0], ends[1]);
        }
        result.push_back(section);
    }
    std::stable_sort(result.begin(), result.end(), [](const auto& one, const auto& other) {
        return std::tie(one.first, one.last) < std::tie(other.first, other.last);
    });
    return result;
}

std::map<std::string, std::int64_t> cellNumbers(const CgnsTree& file, const CgnsTree::Node& zone,
                                                int cellDimension)
{
    std::map<std::string, std::int64_t> result;
    const std::vector<CgnsSection> sections = sectionsOf(file, zone);
    const bool areKnown = std::all_of(sections.begin(), sections.end(), [&](const auto& section) {
        const int dimension = dimensionOf(section.kind);
        return section.first > 0 && section.first <= section.last && dimension >= 0
            && dimension <= cellDimension;
    });
    const auto isCell = [&](const auto& section) {
        return dimensionOf(section.kind) == cellDimension;
    };
    if (!areKnown || std::is_partitioned(sections.begin(), sections.end(), isCell))
        return result;
    std::int64_t next = 1;
    for (const CgnsSection& section : sections)
        if (isCell(section)) {
            result[section.node.name] = next;
            next += section.last - section.first + 1;
        }
    return result;
}

} // namespace corvala::host::io::reader
