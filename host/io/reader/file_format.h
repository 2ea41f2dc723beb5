// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QString>

namespace corvala::host::io::reader {

enum class Format {
    Unknown,
    LegacyVtk,
    XmlVtk,
    Collection, ///< .pvd, or a series of files in JSON
    Surface,
    Cgns,
    EnSight,
    Exodus,
    Foam,
    Plot3D,
    Table
};

/// By the name of a file, and its first bytes where formats share an ending, or it is not known.
Format formatOf(const QString& path);

/// Of "a.vtu" and of "a.vtu.series", "a".
QString nameWithoutEnding(const QString& path);

/// The first bytes of a readable file.
QByteArray firstBytes(const QString& path, qint64 count);

/// The file by which the data in a folder are opened: a case in it, else a file that names others,
/// else a data file; in a folder without data files, that of the folders in it. Throws ReadFailure
/// when there is none, or several of the same kind.
QString mainFileIn(const QString& folder);

} // namespace corvala::host::io::reader
