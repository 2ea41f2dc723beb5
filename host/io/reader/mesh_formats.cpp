// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/algorithm_file.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/netcdf_size.h"
#include "host/io/reader/read_failure.h"

#include <QFile>
#include <QFileInfo>

#include <vtkCGNSReader.h>
#include <vtkDummyController.h>
#include <vtkExodusIIReader.h>
#include <vtkNew.h>
#include <vtkPOpenFOAMReader.h>

namespace corvala::host::io::reader {

std::unique_ptr<DataFile> openCgns(const QString& path)
{
    auto reader = vtkSmartPointer<vtkCGNSReader>::New();
    reader->SetFileName(QFile::encodeName(path).constData());
    reader->UpdateInformation();
    reader->EnableAllBases();
    reader->EnableAllFamilies();
    reader->EnableAllPointArrays();
    reader->EnableAllCellArrays();
    return std::make_unique<AlgorithmFile>(path, reader);
}

/// The netCDF library reads what is missing at the end of a file as zeros, without an error.
static void requireWhole(const QString& path)
{
    const std::optional<std::int64_t> size = netcdfSize(path);
    const qint64 actual = QFileInfo(path).size();
    if (size == kUnknownNetcdfSize)
        throw ReadFailure(path,
                          QT_TRANSLATE_NOOP("ReadMessage", "its header is cut off or damaged"));
    if (size && actual < *size)
        throw ReadFailure(
            path, QT_TRANSLATE_NOOP("ReadMessage", "it is cut off: %1 of %2 bytes are there"),
            {QString::number(actual), QString::number(*size)});
}

std::unique_ptr<DataFile> openExodus(const QString& path)
{
    requireWhole(path);
    auto reader = vtkSmartPointer<vtkExodusIIReader>::New();
    reader->SetFileName(QFile::encodeName(path).constData());
    reader->ApplyDisplacementsOff();
    reader->UpdateInformation();
    constexpr vtkExodusIIReader::ObjectType kKinds[] = {
        vtkExodusIIReader::ELEM_BLOCK, vtkExodusIIReader::SIDE_SET, vtkExodusIIReader::NODE_SET};
    for (const auto kind : kKinds) {
        for (int i = 0; i < reader->GetNumberOfObjects(kind); ++i)
            reader->SetObjectStatus(kind, i, 1);
        reader->SetAllArrayStatus(kind, 1);
    }
    reader->SetAllArrayStatus(vtkExodusIIReader::NODAL, 1);
    return std::make_unique<AlgorithmFile>(path, reader);
}

/// The folder of a case, which holds the folders "constant" and "system".
static QDir caseFolder(const QString& path)
{
    QDir folder = QFileInfo(path).dir();
    if (QFileInfo(path).fileName() == QLatin1String("controlDict"))
        folder.cdUp();
    return folder;
}

std::unique_ptr<DataFile> openFoam(const QString& path)
{
    const QDir folder = caseFolder(path);
    auto reader = vtkSmartPointer<vtkPOpenFOAMReader>::New();
    vtkNew<vtkDummyController> controller;
    reader->SetController(controller);
    const bool isDecomposed = folder.exists(QStringLiteral("processor0"))
        && !folder.exists(QStringLiteral("constant/polyMesh"));
    reader->SetCaseType(isDecomposed ? vtkPOpenFOAMReader::DECOMPOSED_CASE
                                     : vtkPOpenFOAMReader::RECONSTRUCTED_CASE);
    reader->SetFileName(QFile::encodeName(path).constData());
    reader->CreateCellToPointOff();
    reader->SkipZeroTimeOff();
    reader->UpdateInformation();
    reader->EnableAllPatchArrays();
    reader->EnableAllCellArrays();
    reader->EnableAllPointArrays();
    reader->EnableAllLagrangianArrays();
    return std::make_unique<AlgorithmFile>(path, reader);
}

} // namespace corvala::host::io::reader
