// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/algorithm_file.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/netcdf_size.h"
#include "host/io/reader/read_failure.h"

#include <QFile>
#include <QFileInfo>

#include <vtkCGNSReader.h>
#include <vtkCompositeDataSet.h>
#include <vtkDummyController.h>
#include <vtkExodusIIReader.h>
#include <vtkInformation.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkPOpenFOAMReader.h>

#include <cstring>

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

/// VTK puts blocks and sets into groups by kind. Element blocks, which are what the file is about,
/// come without their group.
class ExodusFile : public AlgorithmFile
{
public:
    using AlgorithmFile::AlgorithmFile;

    vtkSmartPointer<vtkDataObject> read(std::size_t timeIndex,
                                        const ProgressCall& progress) override
    {
        const vtkSmartPointer<vtkDataObject> tree = AlgorithmFile::read(timeIndex, progress);
        auto* const groups = vtkMultiBlockDataSet::SafeDownCast(tree);
        if (!groups)
            return tree;
        auto result = vtkSmartPointer<vtkMultiBlockDataSet>::New();
        for (unsigned int i = 0; i < groups->GetNumberOfBlocks(); ++i) {
            auto* const group = vtkMultiBlockDataSet::SafeDownCast(groups->GetBlock(i));
            const char* const name = groups->GetMetaData(i)->Get(vtkCompositeDataSet::NAME());
            if (group && name && std::strcmp(name, "Element Blocks") == 0)
                append(*group, 0, group->GetNumberOfBlocks(), *result);
            else
                append(*groups, i, i + 1, *result);
        }
        return result;
    }

private:
    static void append(vtkMultiBlockDataSet& from, unsigned int first, unsigned int end,
                       vtkMultiBlockDataSet& to)
    {
        for (unsigned int i = first; i < end; ++i) {
            const unsigned int place = to.GetNumberOfBlocks();
            to.SetBlock(place, from.GetBlock(i));
            to.GetMetaData(place)->Copy(from.GetMetaData(i));
        }
    }
};

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
    return std::make_unique<ExodusFile>(path, reader);
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
