// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/data_file.h"

#include <QDir>

#include <memory>
#include <vector>

namespace corvala::host::io::reader {

class Channel;

/// Opens the files of the request by their endings and first bytes. Helper files go into a folder
/// of their own in `folder`. Throws ReadFailure.
std::vector<std::unique_ptr<DataFile>> openFiles(const ReadRequest& request, const QDir& folder,
                                                 Channel& channel);

} // namespace corvala::host::io::reader
