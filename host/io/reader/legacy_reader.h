// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/data_file.h"

#include <QString>

#include <vtkAlgorithm.h>

#include <string>

namespace corvala::host::io::reader {

/// VTK's reader for a legacy VTK file, all of which it will read. Throws ReadFailure when the file
/// is none, or has no geometry.
vtkSmartPointer<vtkAlgorithm> legacyReader(const QString& path);

/// What a text in this format holds, by withPlainNumbers(), with the numbers that were meant.
/// Throws ReadFailure, which names the file of the path.
vtkSmartPointer<vtkDataObject> readLegacyText(const QString& path, const std::string& text,
                                              const ProgressCall& progress);

} // namespace corvala::host::io::reader
