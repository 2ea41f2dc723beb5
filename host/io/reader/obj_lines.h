// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <cstdint>
#include <string_view>

namespace corvala::host::io::reader {

/// The lines of an OBJ file from front to back, each with the lines that it goes on in, and without
/// its comment.
class ObjLines
{
public:
    explicit ObjLines(std::string_view text);

    /// False at the end.
    bool next();
    std::string_view text() const { return m_text; }
    std::int64_t number() const { return m_number; } ///< counted from 1
    /// Whether the file ends in this line, which then may be cut off.
    bool isOpen() const { return m_isOpen; }
    std::size_t bytesLeft() const { return m_rest.size(); }
    /// The begin of the line, as messages show it.
    QString shown() const;

private:
    std::size_t endOfNext();

    std::string_view m_rest;
    std::string_view m_text;
    char m_lineEnd;
    std::int64_t m_number = 0;
    std::int64_t m_nextNumber = 1;
    bool m_isOpen = false;
};

/// What a corner of a cell names, counted from 1, or from -1 back from the last one; 0 where it
/// names nothing.
struct ObjCorner
{
    std::int64_t point = 0;
    std::int64_t texture = 0;
    std::int64_t normal = 0;
};

/// Empty at the end of the line.
std::string_view takeWord(std::string_view& line);

/// How many numbers there are, at most `count`; -1 where something else comes.
int takeNumbers(std::string_view line, int count, double* numbers);

/// "3", "3/1", "3//2" or "3/1/2"; false for anything else.
bool parseCorner(std::string_view word, ObjCorner& corner);

} // namespace corvala::host::io::reader
