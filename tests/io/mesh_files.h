// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace corvala::host::io {

/// How a CGNS file says which solutions belong to which times.
struct CgnsForm
{
    QStringList solutions; ///< of both zones
    QStringList pointers; ///< of the last zone; empty for none
    bool isFirstNamed = true; ///< whether the first zone has pointers as well
    bool isSteady = false;
    bool isOld = false; ///< whether HDF5 does not keep the order of the nodes
};

/// Two zones of eight points with p, 100 times the number of the solution and the number of the
/// point, at the times 0.5, 1.5 and 2.5; the last zone has the same as q.
void writeCgns(const QString& path, const CgnsForm& form, bool isHdf5);

/// A cube whose number follows those of two edges, at three times with p at points and c at cells,
/// 100 times the number of the time; pointers name the solutions at points only.
void writeCgnsCells(const QString& path);
/// The zones Grid (structured) and Cells (unstructured) of the same two cubes in a row, with p at
/// points, their numbers from 0, and c, 10 and 20, in cells; with boundary conditions of each kind.
void writeCgnsPatches(const QString& path, bool isHdf5);

/// An Exodus file of format netCDF 3 or HDF5.
struct ExodusForm
{
    std::vector<double> times {0.5, 1.5, 2.5};
    double first = 0.0; ///< added to all values
    bool isHdf5 = false;
    int element = 1; ///< whose second side is a side set
    const char* kind = "HEX8"; ///< of the element in the second block
};

/// Two blocks of one element, the same cube, with T, 100 times the number of the time and the
/// number of the point; a side set.
void writeExodus(const QString& path, const ExodusForm& form);

} // namespace corvala::host::io
