// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"

#include <vtkBoundingBox.h>

namespace corvala::host::io::reader {

/// Finds out whether the zones that are surfaces show what the faces of the volumes would show, as
/// the patches of a case do: they lie within the box of all volumes, and by their areas, seen along
/// each axis, they close it. Slices and bodies within the volumes do not.
class Enclosure
{
public:
    /// Of a zone that is there at several times one is enough.
    void add(vtkDataSet& zone, const ZoneInfo& info);
    bool isClosed() const;

private:
    struct Surface
    {
        vtkBoundingBox box;
        std::array<double, 3> areas; ///< seen along X, Y and Z
    };

    vtkBoundingBox m_volumes;
    std::vector<Surface> m_surfaces;
};

} // namespace corvala::host::io::reader
