// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/zone_writer.h"

#include "host/io/reader/read_failure.h"

#include <QDir>

#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkDataArray.h>
#include <vtkImageData.h>
#include <vtkMatrix3x3.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkRectilinearGrid.h>
#include <vtkSmartPointer.h>
#include <vtkStructuredGrid.h>
#include <vtkUnsignedCharArray.h>
#include <vtkUnstructuredGrid.h>

#include <algorithm>

namespace corvala::host::io::reader {

static constexpr std::int64_t kPiece = 1 << 18; ///< bytes that are written at once

ZoneWriter::ZoneWriter(const QString& folder)
    : m_folder(folder)
    , m_numbers(QDir(folder).filePath(QLatin1String(kNumbersFile)))
{
}

void ZoneWriter::failWithFullDisk() const
{
    throw ReadFailure::ofFullDisk(m_folder);
}

/// In pieces: the system takes eight times as long for one long write.
void ZoneWriter::append(const void* numbers, std::int64_t bytes)
{
    const auto* const first = static_cast<const char*>(numbers);
    for (std::int64_t done = 0; done < bytes; done += kPiece) {
        const std::int64_t count = std::min(kPiece, bytes - done);
        if (m_numbers.write(first + done, count) != count)
            failWithFullDisk();
    }
    m_size += bytes;
}

static ArrayLabel nameOf(vtkDataArray& array)
{
    ArrayLabel label {array.GetName() ? array.GetName() : "", {}};
    for (int c = 0; array.HasAComponentName() && c < array.GetNumberOfComponents(); ++c)
        label.components.emplace_back(array.GetComponentName(c) ? array.GetComponentName(c) : "");
    return label;
}

std::int32_t ZoneWriter::labelOf(vtkDataArray& array)
{
    const auto next = static_cast<std::int32_t>(m_table.labels.size());
    const auto [place, isNew] = m_labels.try_emplace(nameOf(array), next);
    if (isNew)
        m_table.labels.push_back(place->first);
    return place->second;
}

/// The same numbers as one plain list: some arrays keep each component apart, or bits.
static vtkSmartPointer<vtkDataArray> plain(vtkDataArray& array)
{
    if (array.HasStandardMemoryLayout() && array.GetDataType() != VTK_BIT)
        return &array;
    const int type = array.GetDataType() == VTK_BIT ? VTK_UNSIGNED_CHAR : array.GetDataType();
    auto copy = vtkSmartPointer<vtkDataArray>::Take(vtkDataArray::CreateDataArray(type));
    copy->DeepCopy(&array);
    return copy;
}

void ZoneWriter::writeArray(vtkDataArray* array)
{
    StoredArray& stored = m_table.arrays.emplace_back();
    if (!array)
        return;
    static constexpr char kPadding[kAlignment] = {};
    append(kPadding, (kAlignment - m_size % kAlignment) % kAlignment);
    const vtkSmartPointer<vtkDataArray> numbers = plain(*array);
    stored.label = labelOf(*array);
    stored.type = numbers->GetDataType();
    stored.components = numbers->GetNumberOfComponents();
    stored.tuples = numbers->GetNumberOfTuples();
    stored.offset = m_size;
    append(numbers->GetVoidPointer(0), stored.bytes());
}

void ZoneWriter::writeCells(vtkCellArray* cells)
{
    writeArray(cells ? cells->GetOffsetsArray() : nullptr);
    writeArray(cells ? cells->GetConnectivityArray() : nullptr);
}

std::int32_t ZoneWriter::writeAttributes(vtkDataSetAttributes& attributes)
{
    for (int i = 0; i < attributes.GetNumberOfArrays(); ++i)
        writeArray(attributes.GetArray(i));
    return attributes.GetNumberOfArrays();
}

static void describe(vtkImageData& image, StoredZone& stored)
{
    image.GetExtent(stored.extent.data());
    image.GetOrigin(stored.origin.data());
    image.GetSpacing(stored.spacing.data());
    std::copy_n(image.GetDirectionMatrix()->GetData(), stored.direction.size(),
                stored.direction.begin());
}

static vtkDataArray* numbersOf(vtkPoints* points)
{
    return points ? points->GetData() : nullptr;
}

void ZoneWriter::writeStructure(vtkDataSet& zone, StoredZone& stored)
{
    if (auto* image = vtkImageData::SafeDownCast(&zone))
        return describe(*image, stored);
    if (auto* grid = vtkRectilinearGrid::SafeDownCast(&zone)) {
        grid->GetExtent(stored.extent.data());
        for (vtkDataArray* axis :
             {grid->GetXCoordinates(), grid->GetYCoordinates(), grid->GetZCoordinates()})
            writeArray(axis);
    } else if (auto* curved = vtkStructuredGrid::SafeDownCast(&zone)) {
        curved->GetExtent(stored.extent.data());
        writeArray(numbersOf(curved->GetPoints()));
    } else if (auto* free = vtkUnstructuredGrid::SafeDownCast(&zone)) {
        writeArray(numbersOf(free->GetPoints()));
        writeArray(free->GetCellTypesArray());
        writeCells(free->GetCells());
        writeArray(free->GetFaceLocations());
        writeArray(free->GetFaces());
    } else if (auto* surface = vtkPolyData::SafeDownCast(&zone)) {
        writeArray(numbersOf(surface->GetPoints()));
        for (vtkCellArray* cells :
             {surface->GetVerts(), surface->GetLines(), surface->GetPolys(), surface->GetStrips()})
            writeCells(cells);
    }
}

std::int64_t ZoneWriter::write(vtkDataSet& zone)
{
    if (!m_numbers.isOpen() && !m_numbers.open(QIODevice::WriteOnly))
        failWithFullDisk();
    StoredZone stored;
    stored.kind = zone.GetDataObjectType();
    stored.firstArray = static_cast<std::int64_t>(m_table.arrays.size());
    writeStructure(zone, stored);
    stored.structureArrays = static_cast<std::int32_t>(
        static_cast<std::int64_t>(m_table.arrays.size()) - stored.firstArray);
    stored.pointArrays = writeAttributes(*zone.GetPointData());
    stored.cellArrays = writeAttributes(*zone.GetCellData());
    m_table.zones.push_back(stored);
    return static_cast<std::int64_t>(m_table.zones.size()) - 1;
}

void ZoneWriter::finish()
{
    QFile table(QDir(m_folder).filePath(QLatin1String(kZoneTableFile)));
    const QByteArray bytes = toBytes(m_table);
    if (!m_numbers.flush() || !table.open(QIODevice::WriteOnly)
        || table.write(bytes) != bytes.size() || !table.flush())
        failWithFullDisk();
}

} // namespace corvala::host::io::reader
