// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

namespace corvala::host::io::reader {

/// What a file has that few files have, such as "NGON_n, NFACE_n", found without VTK, for the
/// message about a reader that crashed. Empty when there is nothing, or the format tells nothing.
QString rareThingsIn(const QString& path);

} // namespace corvala::host::io::reader
