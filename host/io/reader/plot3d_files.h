// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_request.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace corvala::host::io::reader {

/// A Plot3D grid file with what belongs to it at one time.
struct Plot3DStep
{
    double time = 0.0;
    QString grid;
    QString solution; ///< empty when there is none
    QString function; ///< empty when there is none
    bool areGuessed = false; ///< solution and function were found by their names
};

/// Plot3D files that are opened as one: one step, or as many as an index file lists.
struct Plot3DSeries
{
    QString path; ///< what was opened
    std::vector<Plot3DStep> steps;
    Plot3DLayout layout; ///< what is known of it
    QStringList functionNames; ///< given by an index file
};

/// Sorts Plot3D files into series: each grid file with the solution and function file that are
/// named after it, from the list or beside it. A solution file alone brings its grid file. Throws
/// ReadFailure when that is missing.
std::vector<Plot3DSeries> groupPlot3D(const QStringList& paths, const Plot3DLayout& wanted);

/// Reads a JSON index file of grids, solutions and times. Throws ReadFailure.
Plot3DSeries readPlot3DIndex(const QString& path, const Plot3DLayout& wanted);

} // namespace corvala::host::io::reader
