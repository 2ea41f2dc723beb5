// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <map>
#include <vector>

namespace corvala::host::io::reader {

struct ExodusElements
{
    QString kind;
    int points = 0; ///< of an element
    int count = 0;
};

/// Of each block, in the order of the file; what cannot be read has no kind.
std::vector<ExodusElements> exodusElements(const QString& path);

/// The elements that VTK's reader does not know, by the numbers of their blocks in the order of the
/// file. It takes an unknown kind for that of the block before, and an unknown number of points for
/// the nearest one that it knows, so that all elements but the first get points of others.
std::map<int, ExodusElements> unknownExodusElements(const QString& path);

} // namespace corvala::host::io::reader
