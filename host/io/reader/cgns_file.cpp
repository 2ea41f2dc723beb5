// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/adf_size.h"
#include "host/io/reader/cgns_solutions.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/hdf5_size.h"
#include "host/io/reader/selective_file.h"

#include <QFile>

#include <vtkCGNSReader.h>

namespace corvala::host::io::reader {

static std::vector<FilePart> partsOf(vtkCGNSReader* reader)
{
    std::vector<FilePart> parts;
    for (int i = 0; i < reader->GetNumberOfPointArrays(); ++i)
        parts.push_back({QString::fromUtf8(reader->GetPointArrayName(i)), false,
                         [=, name = std::string(reader->GetPointArrayName(i))](bool isOn) {
                             reader->SetPointArrayStatus(name.c_str(), isOn ? 1 : 0);
                         }});
    for (int i = 0; i < reader->GetNumberOfCellArrays(); ++i)
        parts.push_back({QString::fromUtf8(reader->GetCellArrayName(i)), false,
                         [=, name = std::string(reader->GetCellArrayName(i))](bool isOn) {
                             reader->SetCellArrayStatus(name.c_str(), isOn ? 1 : 0);
                         }});
    return parts;
}

std::unique_ptr<DataFile> openCgns(const QString& path, const QDir& helper)
{
    requireWholeHdf5(path);
    requireWholeAdf(path);
    const CgnsSolutions sound = withSoundSolutions(path, helper);
    auto reader = vtkSmartPointer<vtkCGNSReader>::New();
    reader->SetFileName(QFile::encodeName(sound.path).constData());
    reader->UpdateInformation();
    reader->EnableAllBases();
    reader->EnableAllFamilies();
    reader->EnableAllPointArrays();
    reader->EnableAllCellArrays();
    return std::make_unique<SelectiveFile>(
        path, reader, [reader] { return partsOf(reader); }, sound.notes);
}

} // namespace corvala::host::io::reader
