// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/text_dialect.h"

#include <QString>

#include <cstdint>
#include <string>
#include <vector>

namespace corvala::host::io::reader {

/// Lines from the beginning, the middle and the end of a text file.
struct TextSample
{
    TextEncoding encoding = TextEncoding::Utf8;
    /// Without their ends; those of the beginning first.
    std::vector<std::vector<std::string>> parts;
    std::int64_t firstLine = 1; ///< of the file in the first part: its beginning, or a chosen one
    double bytesOfLine = 1.0; ///< on average
    std::int64_t fileBytes = 0;
};

/// Of a table whose data are said to begin far down, the first part begins above these. Throws
/// ReadFailure for a file that is no text, or has no such line.
TextSample sampleOf(const QString& path, const TextDialect& wanted);

} // namespace corvala::host::io::reader
