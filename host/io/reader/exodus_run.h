// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/data_file.h"

#include <QStringList>

#include <map>
#include <memory>

namespace corvala::host::io::reader {

/// The stages of a run that went on in other files, each of them in pieces or whole. Pieces that
/// are missing or cannot be read are left out with a note.
std::unique_ptr<DataFile>
openExodusRun(const QString& path, const std::map<int, QStringList>& stages,
              const std::function<std::unique_ptr<DataFile>(const QString&)>& openPiece);

} // namespace corvala::host::io::reader
