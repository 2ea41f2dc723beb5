// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"
#include "host/io/reader/mapped_file.h"

#include <QStringList>

#include <vtkDataArray.h>
#include <vtkSmartPointer.h>

#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

namespace corvala::host::io::reader {

/// A type of numbers in PLY files.
struct PlyType
{
    int vtkType = 0;
    std::size_t size = 0; ///< in bytes
    double (*decode)(const char* bytes, bool isBigEndian) = nullptr;
    bool (*holds)(double number) = nullptr; ///< whether it is in its range
};

/// One number of each element, or a list of numbers.
struct PlyProperty
{
    std::string_view name;
    PlyType type;
    PlyType countType; ///< of the number of numbers; without a size for what is no list
    vtkSmartPointer<vtkDataArray> values; ///< null for lists, and elements of no interest
    ReadMessage fault; ///< why these are not to be used; empty when they are

    bool isList() const { return countType.size > 0; }
};

struct PlyElement
{
    std::string_view name;
    std::int64_t count = 0;
    std::vector<PlyProperty> properties;
};

/// Walks over all that the header of a PLY file announces.
class PlyWalk
{
public:
    explicit PlyWalk(const MappedFile& file);

    /// Gathers the numbers of points and faces. Throws ReadFailure unless all is there.
    void walk();

    bool isText() const { return m_isText; }
    const std::vector<PlyElement>& elements() const { return m_elements; }

private:
    void readHeader();
    void addProperty();
    void requirePoints() const;
    [[noreturn]] void failCut() const;
    std::string_view word();
    std::int64_t count(std::string_view text) const;
    const PlyType& type(std::string_view name) const;
    void passText(PlyProperty& property);
    void passBinary(PlyProperty& property);

    const MappedFile& m_file;
    std::string_view m_rest;
    std::vector<PlyElement> m_elements;
    bool m_isText = false;
    bool m_isBigEndian = false;
};

} // namespace corvala::host::io::reader
