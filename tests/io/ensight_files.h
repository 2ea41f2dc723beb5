// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "tests/io/damage.h"

namespace corvala::host::io {

/// How a made-up EnSight case is written.
struct EnSightForm
{
    enum Coding { Text, Binary, BinaryBigEndian, Fortran, FortranBigEndian };

    Coding coding = Text;
    bool isGold = true;
    bool isOneFile = false; ///< all time steps in one file each
};

/// A case "a.case" with the times 0.5 and 1.5 of several parts: "solid", "block" and, of Gold, one
/// of each other kind, an empty one, and particles. At point or cell n, from 0, of part k at a
/// time, "p" at the points is 100 k + n + 10 time, and so is component c of "v" in the cells, with
/// c / 10 more; "dust" of the particles is like "p" with k = 0. Of Gold, "p" has values at points 0
/// and 2 of "polygons" only, and none at point 2 of "stretched".
MadeData ensightCase(const EnSightForm& form);

} // namespace corvala::host::io
