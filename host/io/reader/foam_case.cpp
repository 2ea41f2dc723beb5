// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/foam_collated.h"
#include "host/io/reader/foam_folders.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/selective_file.h"
#include "host/io/reader/vtk_messages.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <vtkDummyController.h>
#include <vtkNew.h>
#include <vtkPOpenFOAMReader.h>

#include <algorithm>

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

/// VTK only says that there is no mesh. Throws ReadFailure with what of it is not there.
static void requireMesh(const QString& path)
{
    QDir folder = QFileInfo(path).dir();
    if (folder.dirName() == QLatin1String("system"))
        folder.cdUp();
    const QDir mesh(folder.filePath(QStringLiteral("constant/polyMesh")));
    QStringList missing;
    for (const char* const name : {"points", "faces", "owner", "boundary"}) {
        const QString file = QString::fromLatin1(name);
        if (mesh.exists() && !mesh.exists(file) && !mesh.exists(file + QStringLiteral(".gz")))
            missing << file;
    }
    if (!missing.isEmpty())
        throw ReadFailure(
            path,
            QT_TRANSLATE_NOOP("ReadMessage", "its mesh is not whole: constant/polyMesh lacks %1"),
            {missing.join(QStringLiteral(", "))});
}

/// Forgets the error of processors that were left out. Throws ReadFailure for any other.
static void requireKnownError(const QString& path, const QStringList& withoutMesh)
{
    const ReadMessage error = VtkMessages::takeError();
    const QString text = error.toString();
    const bool isKnown =
        std::any_of(withoutMesh.begin(), withoutMesh.end(), [&](const QString& folder) {
            return text.contains(VtkMessages::shown(folder) + QLatin1Char('/'))
                || text.contains(path);
        });
    if (error.isEmpty() || isKnown)
        return;
    requireMesh(path);
    throw ReadFailure(path, error);
}

std::unique_ptr<DataFile> openFoam(const QString& path, const QDir& helper)
{
    const QString split = withSplitFiles(path, helper);
    const FoamFolders folders = foamFoldersOf(split);
    const QString read = withOwnNames(split, folders.copies, helper);
    auto reader = vtkSmartPointer<vtkPOpenFOAMReader>::New();
    vtkNew<vtkDummyController> controller;
    reader->SetController(controller);
    reader->SetCaseType(folders.isDecomposed ? vtkPOpenFOAMReader::DECOMPOSED_CASE
                                             : vtkPOpenFOAMReader::RECONSTRUCTED_CASE);
    reader->SetFileName(QFile::encodeName(read).constData());
    reader->CreateCellToPointOff();
    reader->SkipZeroTimeOff();
    reader->UpdateInformation();
    requireKnownError(path, folders.withoutMesh);
    for (const QString& folder : folders.withoutMesh)
        VtkMessages::forgetWarnings(QStringLiteral("subdirectory ") + QFileInfo(folder).fileName());
    reader->EnableAllPatchArrays();
    reader->EnableAllCellArrays();
    reader->EnableAllPointArrays();
    reader->EnableAllLagrangianArrays();
    return std::make_unique<SelectiveFile>(
        path, reader, [reader] { return partsOf(reader); }, folders.notes);
}

} // namespace corvala::host::io::reader
