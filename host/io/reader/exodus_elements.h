// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <map>

namespace corvala::host::io::reader {

/// The kinds of elements that VTK's reader does not know, by the numbers of their blocks in the
/// order of the file: it takes them for those of the block before.
std::map<int, QString> unknownExodusElements(const QString& path);

} // namespace corvala::host::io::reader
