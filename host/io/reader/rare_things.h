// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"

namespace corvala::host::io::reader {

/// Why VTK may have crashed at a file: its reader for the format, and what the file has that few
/// files have, such as "NGON_n, NFACE_n", found without that reader. Empty for formats that are not
/// read by VTK.
ReadMessage reasonOfCrash(const QString& path);

} // namespace corvala::host::io::reader
