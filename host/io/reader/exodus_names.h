// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>
#include <QStringList>

#include <map>

namespace corvala::host::io::reader {

/// The name of an Exodus file: "a.e", or of a later part of a run "a.e-s002", either of them
/// perhaps as one of several pieces, "a.e.4.0".
struct ExodusName
{
    QString first; ///< the path without what follows: "a.e"
    int stage = 1; ///< of the run
    int pieceCount = 0; ///< 0 for a whole file
    int piece = 0;
};

ExodusName exodusNameOf(const QString& path);

/// The ending that tells the format: "e" for all of the names above.
QString endingOf(const QString& path);

/// The files beside the named one that belong to the same run and are in as many pieces, by stage;
/// in each stage all pieces, whether they are there or not.
std::map<int, QStringList> exodusRun(const QString& path);

} // namespace corvala::host::io::reader
