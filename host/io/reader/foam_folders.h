// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"

#include <QDir>

namespace corvala::host::io::reader {

/// A file that says to be another field than its name tells, such as U.orig, and which that field
/// of the same folder is as well.
struct FoamCopy
{
    QString path; ///< from the folder of the case
    QString object; ///< as it says
};

/// Where an OpenFOAM case has its results.
struct FoamFolders
{
    bool isDecomposed = false; ///< in the folders of its processors
    QStringList withoutMesh; ///< folders of processors that cannot be read
    std::vector<FoamCopy> copies;
    std::vector<ReadMessage> notes; ///< what lies elsewhere, or is not in all of these folders
};

/// Of the case of a controlDict or marker file. The folders of processors count when they have
/// times or fields that the folder of the case lacks. Throws ReadFailure when only folders of
/// several processors each have a mesh, which cannot be read as they are.
FoamFolders foamFoldersOf(const QString& path);

/// The path of a copy of the case in `helper`, where such files say that they are what their names
/// tell, and all else is linked; messages name the case itself. VTK shows fields under what they
/// say to be, the last of several. The path itself when there are none. Throws ReadFailure when the
/// disk is full.
QString withOwnNames(const QString& path, const std::vector<FoamCopy>& copies, const QDir& helper);

/// Folders that have the files of several processors in one each (collated).
struct FoamCollated
{
    QString caseFolder;
    QStringList folders; ///< none when the case, or folders of processors, have all of it
};

FoamCollated collatedFoldersOf(const QString& path);

} // namespace corvala::host::io::reader
