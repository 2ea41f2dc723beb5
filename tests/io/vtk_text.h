// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "tests/io/io_support.h"

namespace corvala::host::io {

inline QByteArray xml(const QByteArray& type, const QByteArray& inner)
{
    return "<VTKFile type=\"" + type + "\" version=\"1.0\"><" + type + ' ' + inner + "</" + type
        + "></VTKFile>";
}

inline QByteArray array(const QByteArray& attributes, const QByteArray& numbers)
{
    return "<DataArray format=\"ascii\" " + attributes + ">" + numbers + "</DataArray>";
}

/// A surface of two triangles over four points.
inline QByteArray polyData(const QByteArray& pointArrays = {}, const QByteArray& cellArrays = {})
{
    return xml("PolyData",
               "><Piece NumberOfPoints=\"4\" NumberOfPolys=\"2\"><PointData>" + pointArrays
                   + "</PointData><CellData>" + cellArrays + "</CellData><Points>"
                   + array("type=\"Float32\" NumberOfComponents=\"3\"", "0 0 0 1 0 0 1 1 0 0 1 5")
                   + "</Points><Polys>"
                   + array("type=\"Int64\" Name=\"connectivity\"", "0 1 2 0 2 3")
                   + array("type=\"Int64\" Name=\"offsets\"", "3 6") + "</Polys></Piece>");
}

/// A tree of those blocks and files.
inline QByteArray tree(const QByteArray& blocks)
{
    return xml("vtkMultiBlockDataSet", ">" + blocks);
}

} // namespace corvala::host::io
