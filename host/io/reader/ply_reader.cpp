// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/ply_reader.h"

#include "host/io/reader/algorithm_file.h"
#include "host/io/reader/ply_walk.h"

#include <QFile>

#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkIdList.h>
#include <vtkPLYReader.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>

#include <algorithm>
#include <string>

namespace corvala::host::io::reader {

/// Properties that are one array.
struct PlyVector
{
    const char* name;
    std::vector<std::string_view> parts;
    bool isOfBytes = false;
};

static const std::vector<PlyVector>& vectors()
{
    static const std::vector<PlyVector> all {
        {"Normals", {"nx", "ny", "nz"}},
        {"TCoords", {"u", "v"}},
        {"TCoords", {"s", "t"}},
        {"TCoords", {"texture_u", "texture_v"}},
        {"RGBA", {"red", "green", "blue", "alpha"}, true},
        {"RGB", {"red", "green", "blue"}, true},
    };
    return all;
}

/// VTK crashes at a last line of text without an end.
static vtkSmartPointer<vtkPLYReader> plyReader(const MappedFile& file, bool isText)
{
    auto reader = vtkSmartPointer<vtkPLYReader>::New();
    reader->SetFileName(QFile::encodeName(file.path()).constData());
    if (isText && file.bytes().back() != '\n') {
        reader->SetReadFromInputString(true);
        reader->SetInputString(std::string(file.bytes()) + '\n');
    }
    return reader;
}

using Arrays = std::vector<vtkSmartPointer<vtkDataArray>>;

/// Takes the parts out; null when they are not all there.
static vtkSmartPointer<vtkDataArray> takeVector(Arrays& arrays, const PlyVector& vector)
{
    Arrays parts;
    for (const std::string_view part : vector.parts)
        for (const auto& array : arrays)
            if (array->GetName() == part
                && (!vector.isOfBytes || array->GetDataType() == VTK_UNSIGNED_CHAR))
                parts.push_back(array);
    if (parts.size() != vector.parts.size())
        return nullptr;
    const auto result = vtkSmartPointer<vtkDataArray>::Take(parts.front()->NewInstance());
    result->SetName(vector.name);
    result->SetNumberOfComponents(static_cast<int>(parts.size()));
    result->SetNumberOfTuples(parts.front()->GetNumberOfTuples());
    for (std::size_t i = 0; i < parts.size(); ++i) {
        result->CopyComponent(static_cast<int>(i), parts[i], 0);
        arrays.erase(std::find(arrays.begin(), arrays.end(), parts[i]));
    }
    return result;
}

/// Of one kind of elements.
static Arrays arraysOf(const std::vector<PlyElement>& elements, std::string_view kind)
{
    Arrays scalars;
    for (const PlyElement& element : elements)
        for (const PlyProperty& property : element.properties)
            if (element.name == kind && property.values)
                scalars.push_back(property.values);
    Arrays result;
    for (const PlyVector& vector : vectors())
        if (const auto array = takeVector(scalars, vector))
            result.push_back(array);
    result.insert(result.end(), scalars.begin(), scalars.end());
    return result;
}

/// For the points of a surface, those of the file: VTK doubles some of them where faces that share
/// them have different texture coordinates.
static vtkSmartPointer<vtkIdList> pointsOfFile(vtkPLYReader& reader, vtkPolyData& surface)
{
    reader.SetDuplicatePointsForFaceTexture(false);
    reader.Update();
    vtkDataArray& named = *reader.GetOutput()->GetPolys()->GetConnectivityArray();
    vtkDataArray& used = *surface.GetPolys()->GetConnectivityArray();
    auto points = vtkSmartPointer<vtkIdList>::New();
    points->SetNumberOfIds(surface.GetNumberOfPoints());
    for (vtkIdType point = 0; point < points->GetNumberOfIds(); ++point)
        points->SetId(point, point);
    for (vtkIdType corner = 0; corner < used.GetNumberOfTuples(); ++corner)
        points->SetId(static_cast<vtkIdType>(used.GetComponent(corner, 0)),
                      static_cast<vtkIdType>(named.GetComponent(corner, 0)));
    return points;
}

/// Instead of those that VTK made, which are some of them, as bytes where they are none. Texture
/// coordinates of the corners of faces are left.
static void setArrays(vtkDataSetAttributes& attributes, const Arrays& arrays, vtkIdList* places)
{
    for (int i = attributes.GetNumberOfArrays(); i-- > 0;)
        if (std::string_view(attributes.GetArrayName(i)) != "TCoords")
            attributes.RemoveArray(i);
    for (vtkSmartPointer<vtkDataArray> array : arrays) {
        if (places) {
            const auto placed = vtkSmartPointer<vtkDataArray>::Take(array->NewInstance());
            placed->SetName(array->GetName());
            placed->SetNumberOfComponents(array->GetNumberOfComponents());
            placed->SetNumberOfTuples(places->GetNumberOfIds());
            array->GetTuples(places, placed);
            array = placed;
        }
        attributes.AddArray(array);
    }
}

static bool isOfSurface(const PlyElement& element)
{
    return element.name == "vertex" || element.name == "face";
}

static bool isKnownList(std::string_view name)
{
    return name == "vertex_indices" || name == "vertex_index" || name == "texcoord";
}

static QString shown(std::string_view name)
{
    return QString::fromUtf8(name.data(), static_cast<int>(name.size()));
}

static void tellOmissions(const std::vector<PlyElement>& elements, SurfaceData& result)
{
    QStringList others;
    for (const PlyElement& element : elements) {
        if (!isOfSurface(element)) {
            if (element.count > 0)
                others << shown(element.name);
            continue;
        }
        for (const PlyProperty& property : element.properties) {
            if (!property.fault.isEmpty())
                result.withoutValues[shown(property.name)] = property.fault;
            else if (property.isList() && !isKnownList(property.name))
                result.withoutValues[shown(property.name)] =
                    ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "they are lists"));
        }
    }
    if (!others.isEmpty())
        result.leftOver =
            ReadMessage(QT_TRANSLATE_NOOP("ReadMessage", "its elements of the kind %1"),
                        {others.join(QStringLiteral(", "))});
}

SurfaceData readPly(const MappedFile& file, const ProgressCall& progress)
{
    PlyWalk walk(file);
    walk.walk();
    SurfaceData result;
    tellOmissions(walk.elements(), result);
    const auto reader = plyReader(file, walk.isText());
    result.data = updated(file.path(), *reader, progress);
    auto surface = vtkSmartPointer<vtkPolyData>::New();
    surface->ShallowCopy(result.data);
    result.data = surface;
    const Arrays ofPoints = arraysOf(walk.elements(), "vertex");
    vtkSmartPointer<vtkIdList> places;
    if (!ofPoints.empty() && ofPoints[0]->GetNumberOfTuples() < surface->GetNumberOfPoints())
        places = pointsOfFile(*reader, *surface);
    setArrays(*surface->GetPointData(), ofPoints, places);
    setArrays(*surface->GetCellData(), arraysOf(walk.elements(), "face"), nullptr);
    return result;
}

} // namespace corvala::host::io::reader
