// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/stored_zone.h"

#include <QDataStream>
#include <QIODevice>

#include <vtkType.h>

#include <algorithm>
#include <limits>
#include <type_traits>

namespace corvala::host::io {

static constexpr quint32 kMagic = 0x435A5431; ///< of the first version of the table

int StoredArray::bytesOfNumber() const
{
    switch (type) {
    case VTK_CHAR:
    case VTK_SIGNED_CHAR:
    case VTK_UNSIGNED_CHAR: return 1;
    case VTK_SHORT:
    case VTK_UNSIGNED_SHORT: return 2;
    case VTK_INT:
    case VTK_UNSIGNED_INT:
    case VTK_FLOAT: return 4;
    case VTK_LONG:
    case VTK_UNSIGNED_LONG:
    case VTK_LONG_LONG:
    case VTK_UNSIGNED_LONG_LONG:
    case VTK_ID_TYPE:
    case VTK_DOUBLE: return 8;
    default: return 0;
    }
}

std::int64_t StoredArray::bytes() const
{
    const std::int64_t size = bytesOfNumber();
    const bool isPossible = size > 0 && components > 0 && tuples >= 0
        && tuples <= std::numeric_limits<std::int64_t>::max() / size / components;
    return isPossible ? size * components * tuples : -1;
}

static int structureArrays(int kind)
{
    switch (kind) {
    case VTK_IMAGE_DATA: return 0;
    case VTK_RECTILINEAR_GRID: return 3;
    case VTK_STRUCTURED_GRID: return 1;
    case VTK_UNSTRUCTURED_GRID: return 6;
    case VTK_POLY_DATA: return 9;
    default: return -1;
    }
}

template<typename Record>
static void writeRecords(QDataStream& stream, const std::vector<Record>& records)
{
    static_assert(std::is_trivially_copyable_v<Record>);
    stream << static_cast<quint64>(records.size());
    stream.writeRawData(reinterpret_cast<const char*>(records.data()),
                        static_cast<int>(records.size() * sizeof(Record)));
}

template<typename Record>
static bool readRecords(QDataStream& stream, std::vector<Record>& records)
{
    quint64 count = 0;
    stream >> count;
    const auto available = static_cast<quint64>(stream.device()->bytesAvailable());
    if (stream.status() != QDataStream::Ok || count > available / sizeof(Record))
        return false;
    records.resize(count);
    const int bytes = static_cast<int>(count * sizeof(Record));
    return stream.readRawData(reinterpret_cast<char*>(records.data()), bytes) == bytes;
}

static QDataStream& operator<<(QDataStream& stream, const std::string& text)
{
    return stream << QByteArray::fromStdString(text);
}

static QDataStream& operator>>(QDataStream& stream, std::string& text)
{
    QByteArray bytes;
    stream >> bytes;
    text = bytes.toStdString();
    return stream;
}

template<typename Element, typename Put>
static void writeList(QDataStream& stream, const std::vector<Element>& list, Put put)
{
    stream << static_cast<quint32>(list.size());
    for (const Element& element : list)
        put(element);
}

template<typename Element, typename Take>
static void readList(QDataStream& stream, std::vector<Element>& list, Take take)
{
    quint32 count = 0;
    stream >> count;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i)
        take(list.emplace_back());
}

QByteArray toBytes(const ZoneTable& table)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << kMagic;
    writeList(stream, table.labels, [&](const ArrayLabel& label) {
        stream << label.name;
        writeList(stream, label.components, [&](const std::string& name) { stream << name; });
    });
    writeRecords(stream, table.arrays);
    writeRecords(stream, table.zones);
    return bytes;
}

static bool fits(const StoredArray& array, std::size_t labels, std::int64_t numberBytes)
{
    if (array.type == 0)
        return true;
    const std::int64_t bytes = array.bytes();
    return bytes >= 0 && array.label >= 0 && static_cast<std::size_t>(array.label) < labels
        && array.offset >= 0 && array.offset % kAlignment == 0 && array.offset <= numberBytes
        && bytes <= numberBytes - array.offset;
}

static bool fits(const StoredZone& zone, std::size_t arrays)
{
    const std::int64_t count =
        std::int64_t(zone.structureArrays) + zone.pointArrays + zone.cellArrays;
    return zone.structureArrays == structureArrays(zone.kind) && zone.pointArrays >= 0
        && zone.cellArrays >= 0 && zone.firstArray >= 0
        && zone.firstArray <= static_cast<std::int64_t>(arrays) - count;
}

std::optional<ZoneTable> zoneTableFromBytes(const QByteArray& bytes, std::int64_t numberBytes)
{
    ZoneTable table;
    QDataStream stream(bytes);
    quint32 magic = 0;
    stream >> magic;
    if (magic != kMagic)
        return std::nullopt;
    readList(stream, table.labels, [&](ArrayLabel& label) {
        stream >> label.name;
        readList(stream, label.components, [&](std::string& name) { stream >> name; });
    });
    const bool isSound = stream.status() == QDataStream::Ok && readRecords(stream, table.arrays)
        && readRecords(stream, table.zones)
        && std::all_of(table.arrays.begin(), table.arrays.end(),
                       [&](const StoredArray& array) {
                           return fits(array, table.labels.size(), numberBytes);
                       })
        && std::all_of(table.zones.begin(), table.zones.end(),
                       [&](const StoredZone& zone) { return fits(zone, table.arrays.size()); });
    return isSound ? std::optional(std::move(table)) : std::nullopt;
}

} // namespace corvala::host::io
