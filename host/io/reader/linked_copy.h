// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QDir>
#include <QString>

namespace corvala::host::io::reader {

/// Gives a copy of a folder links to all that it lacks.
void linkMissing(const QDir& folder, const QDir& copy);

/// Writes a file of such a copy, in place of the link to one; folders on the way that are links
/// become folders of links. Throws ReadFailure when the disk is full.
void writeOwn(const QDir& copy, const QString& relativePath, const QByteArray& content);

} // namespace corvala::host::io::reader
