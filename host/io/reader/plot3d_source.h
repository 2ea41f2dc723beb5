// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_request.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace corvala::host::io::reader {

/// The numbers of a Plot3D file, one after the other, as some layout has them. After the first
/// thing that does not fit the layout every call returns false.
class Plot3DSource
{
public:
    virtual ~Plot3DSource() = default;

    /// A record of whole numbers.
    virtual bool readIntegers(std::size_t count, std::vector<std::int64_t>& values) = 0;
    /// Passes over a record of real numbers followed by whole numbers.
    virtual bool skip(std::int64_t reals, std::int64_t integers) = 0;
    virtual bool isAtEnd() const = 0;
};

/// A binary file; byteCount, bigEndian and doublePrecision of the layout must be filled in. Sizes
/// of records are checked against the record marks, or the end of the file.
std::unique_ptr<Plot3DSource> binaryPlot3D(const QString& path, const Plot3DLayout& layout);

/// What a pass over a text file finds.
struct Plot3DText
{
    std::vector<std::int64_t> leading; ///< whole numbers that it begins with, at most a few million
    std::int64_t count = 0; ///< of all numbers
    bool isPlain = true; ///< without Fortran's repeat counts, commas and D exponents
};

/// Empty when something in the file is no number.
std::optional<Plot3DText> scanPlot3DText(const QString& path);

/// A file that was scanned. It must outlive the source.
std::unique_ptr<Plot3DSource> textPlot3D(const Plot3DText& text);

/// Writes the numbers in the form that every program reads, with repeats written out.
bool writePlainText(const QString& path, const QString& plainPath);

} // namespace corvala::host::io::reader
