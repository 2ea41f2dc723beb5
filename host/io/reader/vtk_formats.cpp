// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/algorithm_file.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/read_failure.h"

#include <QFile>

#include <vtkGenericDataObjectReader.h>
#include <vtkNew.h>
#include <vtkXMLGenericDataObjectReader.h>

namespace corvala::host::io::reader {

std::unique_ptr<DataFile> openLegacyVtk(const QString& path)
{
    if (!firstBytes(path, 14).startsWith("# vtk DataFile"))
        throw ReadFailure(path,
                          QT_TRANSLATE_NOOP("ReadMessage",
                                            "it does not begin with \"# vtk DataFile\", as legacy "
                                            "VTK files do"));
    auto reader = vtkSmartPointer<vtkGenericDataObjectReader>::New();
    reader->SetFileName(QFile::encodeName(path).constData());
    if (reader->ReadOutputType() < 0)
        throw ReadFailure(path,
                          QT_TRANSLATE_NOOP("ReadMessage",
                                            "there is no geometry in it (no DATASET line, or an "
                                            "unknown kind of data set)"));
    reader->ReadAllScalarsOn();
    reader->ReadAllVectorsOn();
    reader->ReadAllNormalsOn();
    reader->ReadAllTensorsOn();
    reader->ReadAllColorScalarsOn();
    reader->ReadAllTCoordsOn();
    reader->ReadAllFieldsOn();
    return std::make_unique<AlgorithmFile>(path, reader);
}

void requireXmlVtk(const QString& path)
{
    bool isParallel = false;
    vtkNew<vtkXMLGenericDataObjectReader> reader;
    if (reader->ReadOutputType(QFile::encodeName(path).constData(), isParallel) < 0)
        throw ReadFailure(
            path,
            QT_TRANSLATE_NOOP("ReadMessage", "it is no VTK XML file of a kind that is known"));
}

std::unique_ptr<DataFile> openXmlVtk(const QString& path)
{
    requireXmlVtk(path);
    auto reader = vtkSmartPointer<vtkXMLGenericDataObjectReader>::New();
    reader->SetFileName(QFile::encodeName(path).constData());
    return std::make_unique<AlgorithmFile>(path, reader);
}

} // namespace corvala::host::io::reader
