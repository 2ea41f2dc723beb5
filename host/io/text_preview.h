// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"
#include "host/io/text_dialect.h"

#include <cstdint>
#include <string>
#include <vector>

namespace corvala::host::io {

/// The beginning of a table of text, as it would be read.
struct TextPreview
{
    enum class Role {
        Above, ///< not read
        Header,
        Data,
        Bad ///< a row that cannot be read
    };
    struct Row
    {
        std::int64_t line = 0; ///< of the file, from 1
        Role role = Role::Data;
        std::vector<std::string> fields; ///< UTF-8
    };

    std::string file;
    TextDialect dialect; ///< with what was detected
    bool isSure = false; ///< it can hardly be meant in another way
    std::vector<std::string> columns; ///< their names; empty where no table is seen
    std::vector<TextColumnKind> kinds; ///< of the columns
    std::vector<std::string> sentinels; ///< numbers that look like missing values, such as "-999"
    std::vector<Row> rows; ///< of the first lines; without blank ones and comments in the data
};

/// Rows of a table that cannot be read.
struct BadRows
{
    std::int64_t count = 0;
    std::vector<ReadMessage> first; ///< some, with line and column
};

} // namespace corvala::host::io
