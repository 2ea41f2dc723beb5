// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QDir>
#include <QString>

namespace corvala::host::io::reader {

/// HDF5 files of CGNS libraries before 3.2 do not keep the order in which nodes were made, by which
/// later libraries find them. The path of a file in `helper` that has the same nodes in the order
/// of their names, with links to their data; the path itself of any other file.
QString withOrderedNodes(const QString& path, const QDir& helper);

} // namespace corvala::host::io::reader
