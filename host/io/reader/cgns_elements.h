// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/cgns_boundary.h"
#include "host/io/reader/cgns_sections.h"

namespace corvala::host::io::reader {

/// The elements of a zone of a CGNS file, by their numbers from 1.
class CgnsElements
{
public:
    /// The file must outlive this.
    explicit CgnsElements(const CgnsTree& file)
        : m_file(file)
    {
    }

    /// Forgets the zone before.
    void enter(const CgnsTree::Node& zone);
    std::int64_t lastElement() const;
    bool has(std::int64_t element);
    /// With points from 1; without points for what is no face, edge or point of a known kind.
    BoundaryPatch::Face face(std::int64_t element);

private:
    using Numbers = std::vector<std::int64_t>;

    struct Section : CgnsSection
    {
        bool isLoaded = false;
        Numbers points;
        Numbers starts; ///< of elements in `points`, and the end; empty when all are alike
    };

    std::vector<Section>::iterator sectionOf(std::int64_t element);
    void load(Section& section);

    const CgnsTree& m_file;
    std::vector<Section> m_sections;
};

} // namespace corvala::host::io::reader
