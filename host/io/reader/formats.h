// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/data_file.h"

#include <QDir>

#include <map>
#include <memory>

/// The formats, one function each. A path is absolute and names a file that can be opened; all
/// throw ReadFailure.
namespace corvala::host::io::reader {

std::unique_ptr<DataFile> openLegacyVtk(const QString& path);

/// STL, PLY and OBJ.
std::unique_ptr<DataFile> openSurface(const QString& path);

/// Serial and parallel VTK XML files of any kind, and trees of them.
std::unique_ptr<DataFile> openXmlVtk(const QString& path);

/// A .pvd collection of files of VTK's formats by time, group and part.
std::unique_ptr<DataFile> openCollection(const QString& path);

/// Files by their times, which belong together under a path without a number.
std::unique_ptr<DataFile> openSeries(const QString& path, const std::map<double, QString>& files);

/// If wanted, with the patches at the boundary as blocks. `helper` is an empty folder for files
/// that are needed until the data are read.
std::unique_ptr<DataFile> openCgns(const QString& path, bool withPatches, const QDir& helper);

/// Element blocks, side sets and node sets with all their variables.
std::unique_ptr<DataFile> openExodus(const QString& path);

/// A case of EnSight Gold or EnSight 6.
std::unique_ptr<DataFile> openEnSight(const QString& path);

/// A case by its controlDict or by a marker file beside its folders. `helper` as for CGNS.
std::unique_ptr<DataFile> openFoam(const QString& path, const QDir& helper);

/// Throws ReadFailure unless the path names a regular file that can be opened and, but where that
/// is allowed, is not empty.
void requireReadable(const QString& path, bool mayBeEmpty = false);

} // namespace corvala::host::io::reader
