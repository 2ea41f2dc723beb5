// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <string>
#include <vector>

namespace corvala::host::io::reader {

/// What a VTK XML file needs to be read by VTK. Throws ReadFailure when its end is missing, when it
/// claims more points or cells than its size can hold, or when it is of no kind that is known.
struct XmlKind
{
    explicit XmlKind(const QString& path);

    int type = -1; ///< of the data object
    bool isParallel = false;
    bool isTree = false;
    bool isWhole = true; ///< the pieces of a parallel grid fill it
    std::vector<int> extent {}; ///< of the part of its grid that is in the file, if it is not all
    /// All of the XML of a small file, or if something follows that VTK would stumble over.
    std::string text;
};

} // namespace corvala::host::io::reader
