// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/stored_zone.h"

#include <QFile>
#include <QString>

#include <map>

class vtkCellArray;
class vtkDataArray;
class vtkDataSet;
class vtkDataSetAttributes;

namespace corvala::host::io::reader {

/// Writes zones into a folder as they are handed over.
class ZoneWriter
{
public:
    explicit ZoneWriter(const QString& folder);

    /// Appends a clean zone of a plain kind and returns its source index. Throws ReadFailure when
    /// the folder's disk is full.
    std::int64_t write(vtkDataSet& zone);

    /// Ends the files; once. Throws as above.
    void finish();

private:
    void writeStructure(vtkDataSet& zone, StoredZone& stored);
    std::int32_t writeAttributes(vtkDataSetAttributes& attributes);
    void writeCells(vtkCellArray* cells);
    void writeArray(vtkDataArray* array);
    void append(const void* numbers, std::int64_t bytes);
    std::int32_t labelOf(vtkDataArray& array);
    [[noreturn]] void failWithFullDisk() const;

    QString m_folder;
    QFile m_numbers;
    std::int64_t m_size = 0; ///< bytes that are written
    ZoneTable m_table;
    std::map<ArrayLabel, std::int32_t> m_labels;
};

} // namespace corvala::host::io::reader
