// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/legacy_reader.h"

#include "host/io/reader/algorithm_file.h"
#include "host/io/reader/file_format.h"
#include "host/io/reader/legacy_number.h"
#include "host/io/reader/read_failure.h"

#include <QFile>

#include <vtkCellData.h>
#include <vtkCharArray.h>
#include <vtkDataSet.h>
#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkGenericDataObjectReader.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPointSet.h>

#include <algorithm>

namespace corvala::host::io::reader {

static void readAll(vtkGenericDataObjectReader& reader)
{
    reader.ReadAllScalarsOn();
    reader.ReadAllVectorsOn();
    reader.ReadAllNormalsOn();
    reader.ReadAllTensorsOn();
    reader.ReadAllColorScalarsOn();
    reader.ReadAllTCoordsOn();
    reader.ReadAllFieldsOn();
}

vtkSmartPointer<vtkAlgorithm> legacyReader(const QString& path)
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
    readAll(*reader);
    return reader;
}

template<class Array>
static void setMeanings(Array* array)
{
    if (array)
        std::transform(array->Begin(), array->End(), array->Begin(), [](auto number) {
            return static_cast<decltype(number)>(meaningOf(static_cast<double>(number)));
        });
}

static void setMeanings(vtkFieldData& arrays)
{
    for (int i = 0; i < arrays.GetNumberOfArrays(); ++i) {
        setMeanings(vtkFloatArray::SafeDownCast(arrays.GetAbstractArray(i)));
        setMeanings(vtkDoubleArray::SafeDownCast(arrays.GetAbstractArray(i)));
    }
}

vtkSmartPointer<vtkDataObject> readLegacyText(const QString& path, const std::string& text,
                                              const ProgressCall& progress)
{
    vtkNew<vtkCharArray> characters;
    characters->SetArray(const_cast<char*>(text.data()), static_cast<vtkIdType>(text.size()), 1);
    vtkNew<vtkGenericDataObjectReader> reader;
    reader->ReadFromInputStringOn();
    reader->SetInputArray(characters);
    readAll(*reader);
    const auto data = updated(path, *reader, progress);
    if (auto* const zone = vtkDataSet::SafeDownCast(data)) {
        setMeanings(*zone->GetPointData());
        setMeanings(*zone->GetCellData());
    }
    auto* const points = vtkPointSet::SafeDownCast(data);
    if (points && points->GetPoints()) {
        setMeanings(vtkFloatArray::SafeDownCast(points->GetPoints()->GetData()));
        setMeanings(vtkDoubleArray::SafeDownCast(points->GetPoints()->GetData()));
    }
    return data;
}

} // namespace corvala::host::io::reader
