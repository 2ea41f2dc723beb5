// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/adf_size.h"
#include "host/io/reader/cgns_coordinates.h"
#include "host/io/reader/cgns_order.h"
#include "host/io/reader/cgns_patches.h"
#include "host/io/reader/cgns_solutions.h"
#include "host/io/reader/cgns_tree.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/hdf5_size.h"
#include "host/io/reader/read_failure.h"
#include "host/io/reader/selective_file.h"

#include <QFile>

#include <vtkCGNSReader.h>
#include <vtkMultiBlockDataSet.h>

#include <cstring>
#include <set>
#include <string>

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

/// The names of all arrays of all solutions, and of the vectors whose components they may be.
static std::set<std::string> namesOfArrays(const QString& path)
{
    std::set<std::string> names;
    const CgnsTree file(path);
    if (!file.isOpen())
        return names;
    for (const CgnsTree::Node& base : file.children(file.root(), "CGNSBase_t"))
        for (const CgnsTree::Node& zone : file.children(base.id, "Zone_t"))
            for (const CgnsTree::Node& solution : file.children(zone.id, "FlowSolution_t"))
                for (const CgnsTree::Node& array : file.children(solution.id, "DataArray_t"))
                    names.insert(array.name);
    for (const std::string& name : std::set<std::string>(names))
        if (name.size() > 1 && std::strchr("XYZ", name.back()))
            names.insert(name.substr(0, name.size() - 1));
    return names;
}

/// By itself VTK finds those of the first three solutions of the first zone.
static void enableAllArrays(vtkCGNSReader& reader, const QString& path)
{
    for (const std::string& name : namesOfArrays(path)) {
        reader.SetPointArrayStatus(name.c_str(), 1);
        reader.SetCellArrayStatus(name.c_str(), 1);
    }
}

/// With the patches at the boundary, if wanted.
class CgnsFile : public SelectiveFile
{
public:
    /// `ordered` is the file itself, or what stands for it.
    CgnsFile(const QString& path, const QString& ordered, vtkCGNSReader* reader,
             const std::vector<ReadMessage>& notes, bool withPatches)
        : SelectiveFile(
            path, reader, [reader] { return partsOf(reader); }, notes)
        , m_patches(ordered, withPatches)
    {
    }

    vtkSmartPointer<vtkDataObject> read(std::size_t timeIndex,
                                        const ProgressCall& progress) override
    {
        vtkSmartPointer<vtkDataObject> tree = SelectiveFile::read(timeIndex, progress);
        if (auto* const root = vtkMultiBlockDataSet::SafeDownCast(tree))
            m_patches.addTo(*root);
        return tree;
    }

    std::vector<ReadMessage> notes() const override
    {
        std::vector<ReadMessage> result = m_notes;
        result.insert(result.end(), m_patches.notes().begin(), m_patches.notes().end());
        return result;
    }

    std::int64_t unreadPatches() const override { return m_patches.unreadCount(); }

private:
    CgnsPatches m_patches;
};

static bool isOfVersion3_0(const CgnsTree& file)
{
    for (const CgnsTree::Node& node : file.children(file.root(), "CGNSLibraryVersion_t"))
        for (const float version : file.reals(node.id))
            return version > 2.99F && version < 3.05F;
    return false;
}

/// Throws ReadFailure for elements whose kind has another number in CGNS 3.0 than before and after,
/// which VTK takes for those of more points, and crashes.
static void requireKnownElements(const QString& path)
{
    constexpr int kLastSame = 12; // PYRA_5
    const CgnsTree file(path);
    if (!file.isOpen() || !isOfVersion3_0(file))
        return;
    for (const CgnsTree::Node& base : file.children(file.root(), "CGNSBase_t"))
        for (const CgnsTree::Node& zone : file.children(base.id, "Zone_t"))
            for (const CgnsTree::Node& section : file.children(zone.id, "Elements_t"))
                if (const auto kind = file.integers(section.id);
                    !kind.empty() && kind.front() > kLastSame)
                    throw ReadFailure(
                        path,
                        QT_TRANSLATE_NOOP("ReadMessage",
                                          "its elements \"%1\" are numbered as in CGNS 3.0 alone, "
                                          "which cannot be read"),
                        {QString::fromStdString(section.name)});
}

static std::unique_ptr<DataFile> openOrdered(const QString& path, const QString& ordered,
                                             bool withPatches, const QDir& helper)
{
    requireCgnsCoordinates(ordered);
    requireKnownElements(ordered);
    const CgnsSolutions sound = withSoundSolutions(ordered, helper);
    auto reader = vtkSmartPointer<vtkCGNSReader>::New();
    reader->SetFileName(QFile::encodeName(sound.path).constData());
    reader->UpdateInformation();
    reader->EnableAllBases();
    reader->EnableAllFamilies();
    reader->EnableAllPointArrays();
    reader->EnableAllCellArrays();
    enableAllArrays(*reader, ordered);
    return std::make_unique<CgnsFile>(path, ordered, reader, sound.notes, withPatches);
}

std::unique_ptr<DataFile> openCgns(const QString& path, bool withPatches, const QDir& helper)
{
    requireWholeHdf5(path);
    requireWholeAdf(path);
    const QString ordered = withOrderedNodes(path, helper);
    try {
        return openOrdered(path, ordered, withPatches, helper);
    } catch (const ReadFailure& failure) {
        throw ReadFailure(failure.file == ordered ? path : failure.file, failure.message);
    }
}

} // namespace corvala::host::io::reader
