// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/data_file.h"

#include <QString>

#include <vtkAlgorithm.h>

namespace corvala::host::io::reader {

/// What a reader of VTK gives, whose file name and options are set. Throws ReadFailure with its
/// error when it has one; warnings are left for the caller to take. Of a grid, only a part is read
/// when its `extent` is given.
vtkSmartPointer<vtkDataObject> updated(const QString& path, vtkAlgorithm& reader,
                                       const ProgressCall& progress,
                                       const std::vector<int>& extent = {});

/// A file that one of VTK's readers reads, whose file name and options are set already. The
/// information of the reader is fetched here.
class AlgorithmFile : public DataFile
{
public:
    AlgorithmFile(const QString& path, vtkSmartPointer<vtkAlgorithm> reader);

    QString path() const override { return m_path; }
    std::vector<double> times() const override;
    vtkSmartPointer<vtkDataObject> read(std::size_t timeIndex,
                                        const ProgressCall& progress) override;

private:
    QString m_path;
    vtkSmartPointer<vtkAlgorithm> m_reader;
    std::vector<double> m_times; ///< as the reader has them
};

} // namespace corvala::host::io::reader
