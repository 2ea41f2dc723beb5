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
    /// Without their ends; those of the beginning first, which are the lines 1, 2 and so on of the
    /// file.
    std::vector<std::vector<std::string>> parts;
    double bytesOfLine = 1.0; ///< on average
    std::int64_t fileBytes = 0;
};

/// Throws ReadFailure for a file that is no text.
TextSample sampleOf(const QString& path, std::optional<TextEncoding> encoding);

} // namespace corvala::host::io::reader
