// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/adf_size.h"
#include "host/io/reader/cgns_coordinates.h"
#include "host/io/reader/cgns_solutions.h"
#include "host/io/reader/cgns_tree.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/hdf5_size.h"
#include "host/io/reader/selective_file.h"

#include <QFile>

#include <vtkCGNSReader.h>

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

std::unique_ptr<DataFile> openCgns(const QString& path, const QDir& helper)
{
    requireWholeHdf5(path);
    requireWholeAdf(path);
    requireCgnsCoordinates(path);
    const CgnsSolutions sound = withSoundSolutions(path, helper);
    auto reader = vtkSmartPointer<vtkCGNSReader>::New();
    reader->SetFileName(QFile::encodeName(sound.path).constData());
    reader->UpdateInformation();
    reader->EnableAllBases();
    reader->EnableAllFamilies();
    reader->EnableAllPointArrays();
    reader->EnableAllCellArrays();
    enableAllArrays(*reader, path);
    return std::make_unique<SelectiveFile>(
        path, reader, [reader] { return partsOf(reader); }, sound.notes);
}

} // namespace corvala::host::io::reader
