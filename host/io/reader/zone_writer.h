// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/data_set.h"

#include <QSet>
#include <QString>

#include <string>
#include <vector>

#include <vtkSmartPointer.h>

class vtkDataSetAttributes;

namespace corvala::host::io::reader {

/// A zone as it goes into a file: only arrays of numbers that fit its points or cells, under clean
/// names. It shares points, cells and values with the original.
vtkSmartPointer<vtkDataSet> cleanZone(vtkDataSet& zone, QSet<QString>& droppedArrays);

/// Kind, dimensions and counts of a zone.
ZoneInfo zoneInfo(vtkDataSet& zone);

/// Writes zones as uncompressed VTK XML files into a folder.
class ZoneWriter
{
public:
    explicit ZoneWriter(const QString& folder);

    /// Writes a clean zone, whose arrays get other names thereby, and returns its source index.
    /// Throws ReadFailure when the folder's disk is full.
    std::int64_t write(vtkDataSet& zone);

    const std::vector<std::string>& files() const { return m_files; }

private:
    QString m_folder;
    std::vector<std::string> m_files;
};

} // namespace corvala::host::io::reader
