// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QDir>
#include <QString>

namespace corvala::host::io::reader {

/// The path of a copy of an OpenFOAM case in `helper`, in which collated files, with the data of
/// several processors in one, are split into a folder for each processor, and all else is linked;
/// messages name the case itself. The path itself when there are no collated folders that hold
/// what the case lacks. Throws ReadFailure when the disk is full.
QString withSplitFiles(const QString& path, const QDir& helper);

} // namespace corvala::host::io::reader
