// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <map>

namespace corvala::host::io::reader {

struct ExodusElements
{
    QString kind;
    int points = 0; ///< of an element
};

/// The elements that VTK's reader does not know, by the numbers of their blocks in the order of the
/// file. It takes an unknown kind for that of the block before, and an unknown number of points for
/// the nearest one that it knows, so that all elements but the first get points of others.
std::map<int, ExodusElements> unknownExodusElements(const QString& path);

} // namespace corvala::host::io::reader
