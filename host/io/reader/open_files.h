// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/numbered_files.h"

#include <QDir>

#include <cstdint>

namespace corvala::host::io::reader {

class Channel;

struct OpenedFiles
{
    DataFiles files;
    std::int64_t numbered = 0; ///< of them, whose numbers could be times
};

/// Opens the files of the request by their endings and first bytes. Helper files go into a folder
/// of their own in `folder`. Throws ReadFailure.
OpenedFiles openFiles(const ReadRequest& request, const QDir& folder, Channel& channel);

} // namespace corvala::host::io::reader
