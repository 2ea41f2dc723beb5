// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/foam_folders.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/selective_file.h"

#include <QFile>

#include <vtkDummyController.h>
#include <vtkNew.h>
#include <vtkPOpenFOAMReader.h>

namespace corvala::host::io::reader {

static std::vector<FilePart> partsOf(vtkPOpenFOAMReader* reader)
{
    std::vector<FilePart> parts;
    const auto add = [&](int count, auto name, auto select, bool isZone) {
        for (int i = 0; i < count; ++i) {
            const std::string part = (reader->*name)(i);
            parts.push_back({QString::fromStdString(part), isZone,
                             [=](bool isOn) { (reader->*select)(part.c_str(), isOn ? 1 : 0); }});
        }
    };
    using Reader = vtkPOpenFOAMReader;
    add(reader->GetNumberOfPatchArrays(), &Reader::GetPatchArrayName, &Reader::SetPatchArrayStatus,
        true);
    add(reader->GetNumberOfCellArrays(), &Reader::GetCellArrayName, &Reader::SetCellArrayStatus,
        false);
    add(reader->GetNumberOfPointArrays(), &Reader::GetPointArrayName, &Reader::SetPointArrayStatus,
        false);
    add(reader->GetNumberOfLagrangianArrays(), &Reader::GetLagrangianArrayName,
        &Reader::SetLagrangianArrayStatus, false);
    return parts;
}

std::unique_ptr<DataFile> openFoam(const QString& path)
{
    const FoamFolders folders = foamFoldersOf(path);
    auto reader = vtkSmartPointer<vtkPOpenFOAMReader>::New();
    vtkNew<vtkDummyController> controller;
    reader->SetController(controller);
    reader->SetCaseType(folders.isDecomposed ? vtkPOpenFOAMReader::DECOMPOSED_CASE
                                             : vtkPOpenFOAMReader::RECONSTRUCTED_CASE);
    reader->SetFileName(QFile::encodeName(path).constData());
    reader->CreateCellToPointOff();
    reader->SkipZeroTimeOff();
    reader->UpdateInformation();
    reader->EnableAllPatchArrays();
    reader->EnableAllCellArrays();
    reader->EnableAllPointArrays();
    reader->EnableAllLagrangianArrays();
    return std::make_unique<SelectiveFile>(
        path, reader, [reader] { return partsOf(reader); }, folders.notes);
}

} // namespace corvala::host::io::reader
