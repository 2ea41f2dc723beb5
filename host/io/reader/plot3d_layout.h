// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/plot3d_source.h"

#include <array>

namespace corvala::host::io::reader {

/// Layout of a Plot3D grid file and the sizes of its grids.
struct Plot3DGrids
{
    Plot3DLayout layout; ///< every field filled in
    std::vector<std::array<std::int64_t, 3>> sizes;
    bool isAmbiguous = false; ///< another layout fits the file as well
};

/// Finds the layout that fits a grid file to the last byte or number, within what is `wanted`;
/// empty when there is none. `text` is the scan of a text file, or null for a binary one.
std::optional<Plot3DGrids> detectPlot3D(const QString& path, const Plot3DLayout& wanted,
                                        const Plot3DText* text);

/// How a solution or function file goes with a grid file. Unmarked is a solution of OVERFLOW, which
/// is like any other but for longer headers, without the record marks by which VTK knows it.
enum class Plot3DFit { Fits, OtherGrids, CutOff, Unmarked };

/// Compares layout and grids of a solution file (or, if `isFunction`, a function file). More may
/// follow the values: some files are filled up to whole blocks, some have further values.
Plot3DFit fitOfPlot3D(const QString& path, const Plot3DGrids& grids, const Plot3DText* text,
                      bool isFunction);

} // namespace corvala::host::io::reader
