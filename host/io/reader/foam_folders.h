// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"

namespace corvala::host::io::reader {

/// Where an OpenFOAM case has its results.
struct FoamFolders
{
    bool isDecomposed = false; ///< in the folders of its processors
    QStringList withoutMesh; ///< folders of processors that cannot be read
    std::vector<ReadMessage> notes; ///< what lies elsewhere, or is not in all of these folders
};

/// Of the case of a controlDict or marker file. The folders of processors count when they have
/// times or fields that the folder of the case lacks. Throws ReadFailure when only folders of
/// several processors each have a mesh, which cannot be read as they are.
FoamFolders foamFoldersOf(const QString& path);

/// Folders that have the files of several processors in one each (collated).
struct FoamCollated
{
    QString caseFolder;
    QStringList folders; ///< none when the case, or folders of processors, have all of it
};

FoamCollated collatedFoldersOf(const QString& path);

} // namespace corvala::host::io::reader
