// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/cgns_elements.h"

#include <vtkCellType.h>
#include <vtk_cgns.h>

// clang-format off
#include VTK_CGNS(cgnslib.h)
// clang-format on

#include <algorithm>
#include <tuple>
#include <utility>

namespace corvala::host::io::reader {

using Node = CgnsTree::Node;

/// Zero for kinds that are not known, and those whose elements differ.
static std::int64_t pointsOf(std::int64_t kind)
{
    int count = 0;
    if (kind < CGNS_ENUMV(NODE) || kind >= NofValidElementTypes
        || cg_npe(static_cast<CGNS_ENUMT(ElementType_t)>(kind), &count) != CG_OK)
        return 0;
    return std::max(count, 0);
}

static int shownKind(std::int64_t kind)
{
    static constexpr std::pair<int, int> kKinds[] = {{CGNS_ENUMV(NODE), VTK_VERTEX},
                                                     {CGNS_ENUMV(BAR_2), VTK_LINE},
                                                     {CGNS_ENUMV(BAR_3), VTK_QUADRATIC_EDGE},
                                                     {CGNS_ENUMV(TRI_3), VTK_TRIANGLE},
                                                     {CGNS_ENUMV(TRI_6), VTK_QUADRATIC_TRIANGLE},
                                                     {CGNS_ENUMV(QUAD_4), VTK_QUAD},
                                                     {CGNS_ENUMV(QUAD_8), VTK_QUADRATIC_QUAD},
                                                     {CGNS_ENUMV(QUAD_9), VTK_BIQUADRATIC_QUAD},
                                                     {CGNS_ENUMV(NGON_n), VTK_POLYGON}};
    for (const auto& [stored, shown] : kKinds)
        if (stored == kind)
            return shown;
    return VTK_EMPTY_CELL;
}

void CgnsElements::enter(const Node& zone)
{
    m_sections.clear();
    for (const CgnsSection& section : sectionsOf(m_file, zone))
        m_sections.push_back({section, false, {}, {}});
}

std::int64_t CgnsElements::lastElement() const
{
    std::int64_t last = 0;
    for (const Section& section : m_sections)
        last = std::max(last, section.last);
    return last;
}

std::vector<CgnsElements::Section>::iterator CgnsElements::sectionOf(std::int64_t element)
{
    return std::find_if(m_sections.begin(), m_sections.end(), [&](const Section& section) {
        return section.first <= element && element <= section.last;
    });
}

bool CgnsElements::has(std::int64_t element)
{
    return sectionOf(element) != m_sections.end();
}

/// Where elements begin that have their kind or number of points in front, as older files have it.
static std::vector<std::int64_t> walked(const std::vector<std::int64_t>& points, bool isMixed)
{
    std::vector<std::int64_t> starts {0};
    const auto end = static_cast<std::int64_t>(points.size());
    while (starts.back() < end) {
        const std::int64_t head = points[static_cast<std::size_t>(starts.back())];
        const std::int64_t count = isMixed ? pointsOf(head) : head;
        if (count < 1 || count >= end - starts.back())
            break;
        starts.push_back(starts.back() + 1 + count);
    }
    return starts;
}

void CgnsElements::load(Section& section)
{
    section.isLoaded = true;
    for (const Node& array : m_file.children(section.node.id, "DataArray_t")) {
        if (array.name == "ElementConnectivity")
            section.points = m_file.numbers(array.id);
        else if (array.name == "ElementStartOffset")
            section.starts = m_file.numbers(array.id);
    }
    const bool isMixed = section.kind == CGNS_ENUMV(MIXED);
    if (!section.starts.empty() || (!isMixed && section.kind != CGNS_ENUMV(NGON_n)))
        return;
    section.starts = walked(section.points, isMixed);
    if (isMixed)
        return;
    Numbers points; // of polygons without their counts, as newer files have them
    Numbers starts {0};
    for (std::size_t i = 0; i + 1 < section.starts.size(); ++i) {
        points.insert(points.end(), section.points.begin() + section.starts[i] + 1,
                      section.points.begin() + section.starts[i + 1]);
        starts.push_back(static_cast<std::int64_t>(points.size()));
    }
    section.points = std::move(points);
    section.starts = std::move(starts);
}

BoundaryPatch::Face CgnsElements::face(std::int64_t element)
{
    const auto section = sectionOf(element);
    BoundaryPatch::Face face {VTK_EMPTY_CELL, {}};
    if (section == m_sections.end() || section->kind == CGNS_ENUMV(NFACE_n))
        return face;
    if (!section->isLoaded)
        load(*section);
    const auto number = static_cast<std::size_t>(element - section->first);
    const std::int64_t count = pointsOf(section->kind);
    std::int64_t kind = section->kind;
    std::int64_t start = static_cast<std::int64_t>(number) * count;
    std::int64_t end = start + count;
    if (count == 0) {
        if (number + 1 >= section->starts.size())
            return face;
        std::tie(start, end) = std::tie(section->starts[number], section->starts[number + 1]);
    }
    const auto size = static_cast<std::int64_t>(section->points.size());
    if (start < 0 || end > size || start >= end)
        return face;
    if (kind == CGNS_ENUMV(MIXED))
        kind = section->points[static_cast<std::size_t>(start++)];
    face.kind = shownKind(kind);
    if (face.kind != VTK_EMPTY_CELL
        && (kind == CGNS_ENUMV(NGON_n) || end - start == pointsOf(kind)))
        face.points.assign(section->points.begin() + start, section->points.begin() + end);
    return face;
}

} // namespace corvala::host::io::reader
