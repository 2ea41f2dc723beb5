// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"
#include "host/io/reader/cgns_tree.h"

#include <vtkType.h>

#include <array>
#include <cstdint>
#include <vector>

namespace corvala::host::io::reader {

/// A boundary condition of a zone: where it is, by numbers of points from 0. Either a block of the
/// points of a structured zone, or faces (edges of a surface), or else points.
struct BoundaryPatch
{
    struct Face
    {
        int kind; ///< as VTK calls it
        std::vector<vtkIdType> points;
    };

    std::string base;
    std::string zone;
    std::string family; ///< empty when it has none
    std::string name;
    bool isBlock = false;
    std::array<std::int64_t, 6> block {{0, 0, 0, 0, 0, 0}}; ///< first and last I, J, K
    std::vector<Face> faces;
    std::vector<vtkIdType> points;
    ReadMessage fault; ///< why it cannot be shown, if so
};

/// Said of a boundary condition that does not fit its zone.
ReadMessage pointsMissing();

/// How many boundary conditions the zones of the file have.
std::int64_t boundaryCount(const CgnsTree& file);

/// The boundary conditions of all zones, in the order of the file.
std::vector<BoundaryPatch> boundariesOf(const CgnsTree& file);

} // namespace corvala::host::io::reader
