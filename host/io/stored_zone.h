// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

/// How the reading program leaves zones in its folder: the numbers of all arrays one after the
/// other in kNumbersFile, each from a multiple of kAlignment bytes, in the byte order of this
/// machine; and in kZoneTableFile what they mean. The program maps the numbers into its memory, so
/// that handing over costs one write, whatever the number of zones.
namespace corvala::host::io {

constexpr char kNumbersFile[] = "zones.numbers";
constexpr char kZoneTableFile[] = "zones.table";
constexpr std::int64_t kAlignment = 64;

/// What arrays are called; as one array comes in many zones, they share their labels.
struct ArrayLabel
{
    std::string name;
    std::vector<std::string> components; ///< names, as far as there are any

    bool operator<(const ArrayLabel& other) const
    {
        return std::tie(name, components) < std::tie(other.name, other.components);
    }
};

struct StoredArray
{
    std::int32_t label = 0;
    std::int32_t type = 0; ///< VTK_FLOAT and so on; 0 for an array that the zone does not have
    std::int32_t components = 1;
    std::int32_t unused = 0;
    std::int64_t tuples = 0;
    std::int64_t offset = 0; ///< in bytes from the start of the file

    int bytesOfNumber() const; ///< 0 for a type that is none
    std::int64_t bytes() const; ///< negative when it cannot be
};

/// A zone by its arrays, which follow each other in the table: those of its structure, of its
/// points and of its cells. The structure is, by kind,
/// - vtkImageData: none
/// - vtkRectilinearGrid: X, Y, Z
/// - vtkStructuredGrid: points
/// - vtkUnstructuredGrid: points, cell types, offsets, connectivity, face locations, faces
/// - vtkPolyData: points, then offsets and connectivity of vertices, lines, polygons and strips.
struct StoredZone
{
    std::int32_t kind = 0; ///< VTK_POLY_DATA and so on
    std::array<std::int32_t, 6> extent {}; ///< of an ordered grid
    std::int32_t structureArrays = 0;
    std::int32_t pointArrays = 0;
    std::int32_t cellArrays = 0;
    std::int64_t firstArray = 0;
    std::array<double, 3> origin {}; ///< of an image, as the following
    std::array<double, 3> spacing {};
    std::array<double, 9> direction {}; ///< by rows
};

/// All zones of a folder, by source index.
struct ZoneTable
{
    std::vector<ArrayLabel> labels;
    std::vector<StoredArray> arrays;
    std::vector<StoredZone> zones;
};

QByteArray toBytes(const ZoneTable& table);

/// Empty when the bytes are no table, or name what is not in a file of `numberBytes` bytes.
std::optional<ZoneTable> zoneTableFromBytes(const QByteArray& bytes, std::int64_t numberBytes);

} // namespace corvala::host::io
