// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/data_file.h"
#include "host/io/reader/mapped_file.h"

#include <QString>
#include <QStringList>

#include <map>

namespace corvala::host::io::reader {

/// A surface, and what could not be read of its file.
struct SurfaceData
{
    vtkSmartPointer<vtkDataObject> data;
    ReadMessage leftOver; ///< lines that mean nothing
    std::map<QString, ReadMessage> withoutValues; ///< arrays that were left out
    QStringList numberedNames {}; ///< such as "GroupIds (0 wing, 1 body)"
};

/// An OBJ file: faces, lines and single points, with texture coordinates ("TCoords") and normals
/// ("Normals") at points, and with the numbers of groups ("GroupIds") and materials
/// ("MaterialIds") at cells, by their names in the order in which these first come. A point that
/// faces use with several texture coordinates or normals becomes several points. Throws
/// ReadFailure, which tells the line, when points or cells are damaged.
SurfaceData readObj(const MappedFile& file, const ProgressCall& progress);

} // namespace corvala::host::io::reader
