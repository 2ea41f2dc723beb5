// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/data_file.h"
#include "host/io/reader/plot3d_files.h"

#include <QDir>

#include <memory>

namespace corvala::host::io::reader {

/// `helperFolder` takes plain copies of text files that VTK would misread. Throws ReadFailure.
std::unique_ptr<DataFile> openPlot3D(const Plot3DSeries& series, const QDir& helperFolder);

} // namespace corvala::host::io::reader
