// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/text_dialect.h"

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace corvala::host::io::reader {

/// Without blanks at both ends.
std::string_view trimmed(std::string_view text);

/// What is behind the mark of a comment line; empty for a line that is none.
std::optional<std::string_view> commentIn(std::string_view line, TextComment comment);

/// The fields of a row, without blanks around them and without their quotes. Can be moved, but not
/// copied, since fields may point into it.
struct Row
{
    Row() = default;
    Row(Row&&) = default;
    Row& operator=(Row&&) = default;

    std::vector<std::string_view> fields; ///< valid as long as row and text are
    bool isClosed = true; ///< else a quoted field goes on in the next line

private:
    friend class RowSplitter;
    std::deque<std::string> unescaped; ///< fields with quotes inside
};

/// Cuts lines into fields. Quotes count at the beginning of a field, and two of them inside are
/// one. Where blanks separate, brackets round several fields do, too: (1 2 3) are three.
class RowSplitter
{
public:
    RowSplitter(TextSeparator separator, TextQuote quote);

    void split(std::string_view line, Row& row) const;

    /// How many columns each field of a line has, with brackets taken together.
    static std::vector<int> widthsOf(std::string_view line);

private:
    void splitByBlanks(std::string_view line, Row& row) const;
    void splitBySign(std::string_view line, Row& row) const;
    std::size_t takeQuoted(std::string_view line, std::size_t start, Row& row) const;
    bool endsField(std::string_view line, std::size_t place) const;

    char m_separator; ///< 0 for none
    char m_quote; ///< 0 for none
};

} // namespace corvala::host::io::reader
