// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <string>

namespace corvala::host::storage {

/// Reads a file. Empty on success, else a sentence that names the file and the reason.
QString readWhole(const QString& file, std::string& text);

/// Gives a file new content, so that it has the old one or all of the new one at any time, and has
/// the new one for good when this returns. A new file takes its place, with its permissions; a
/// symbolic link stays one. Empty on success, else a sentence that names the file and the reason,
/// and the file is as it was.
QString replaceWhole(const QString& file, const std::string& text);

} // namespace corvala::host::storage
