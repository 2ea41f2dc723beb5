// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/row_splitter.h"

namespace corvala::host::io::reader {

static bool isBlank(char character)
{
    return character == ' ' || character == '\t' || character == '\v' || character == '\f';
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::optional<std::string_view> commentIn(std::string_view line, TextComment comment)
{
    static constexpr std::string_view kMarks[] = {"", "#", "%", "//", "!", ";"};
    const std::string_view mark = kMarks[static_cast<int>(comment)];
    line = trimmed(line);
    if (mark.empty() || line.substr(0, mark.size()) != mark)
        return std::nullopt;
    while (line.substr(0, mark.size()) == mark)
        line.remove_prefix(mark.size());
    return trimmed(line);
}

RowSplitter::RowSplitter(TextSeparator separator, TextQuote quote)
    : m_separator(",;\t |:\0"[static_cast<int>(separator)])
    , m_quote("\0\"'"[static_cast<int>(quote)])
{
}

void RowSplitter::split(std::string_view line, Row& row) const
{
    row.fields.clear();
    row.unescaped.clear();
    row.isClosed = true;
    if (m_separator == ' ')
        splitByBlanks(line, row);
    else
        splitBySign(line, row);
}

/// Whether a quoted field may end before this place.
bool RowSplitter::endsField(std::string_view line, std::size_t place) const
{
    while (place < line.size() && line[place] != m_separator && isBlank(line[place])) {
        if (m_separator == ' ')
            return true;
        ++place;
    }
    return place == line.size() || line[place] == m_separator;
}

/// Takes the field whose opening quote stands before `start`; returns the place behind its closing
/// one.
std::size_t RowSplitter::takeQuoted(std::string_view line, std::size_t start, Row& row) const
{
    std::string inside;
    std::size_t end = start;
    for (;; ++end) {
        end = line.find(m_quote, end);
        if (end == std::string_view::npos) {
            row.isClosed = false;
            row.fields.push_back(line.substr(start));
            return line.size();
        }
        if (endsField(line, end + 1))
            break;
        if (end + 1 < line.size() && line[end + 1] == m_quote) {
            inside.append(line.substr(start, end + 1 - start));
            start = ++end + 1;
        }
    }
    if (inside.empty()) {
        row.fields.push_back(line.substr(start, end - start));
    } else {
        inside.append(line.substr(start, end - start));
        row.unescaped.push_back(std::move(inside));
        row.fields.push_back(row.unescaped.back());
    }
    return end + 1;
}

void RowSplitter::splitBySign(std::string_view line, Row& row) const
{
    std::size_t place = 0;
    for (;;) {
        std::size_t first = place;
        while (first < line.size() && isBlank(line[first]) && line[first] != m_separator)
            ++first;
        if (m_quote && first < line.size() && line[first] == m_quote)
            place = takeQuoted(line, first + 1, row);
        const bool isQuoted = place > first;
        std::size_t end = m_separator ? line.find(m_separator, place) : std::string_view::npos;
        if (end == std::string_view::npos)
            end = line.size();
        if (!isQuoted)
            row.fields.push_back(trimmed(line.substr(place, end - place)));
        if (end == line.size())
            return;
        place = end + 1;
    }
}

void RowSplitter::splitByBlanks(std::string_view line, Row& row) const
{
    std::size_t place = 0;
    for (;;) {
        while (place < line.size() && (isBlank(line[place]) || line[place] == '('))
            ++place;
        if (place == line.size())
            return;
        if (m_quote && line[place] == m_quote) {
            place = takeQuoted(line, place + 1, row);
            continue;
        }
        std::size_t end = place;
        while (end < line.size() && !isBlank(line[end]))
            ++end;
        std::string_view field = line.substr(place, end - place);
        while (!field.empty() && field.back() == ')' && field.find('(') == std::string_view::npos)
            field.remove_suffix(1);
        if (!field.empty())
            row.fields.push_back(field);
        place = end;
    }
}

std::vector<int> RowSplitter::widthsOf(std::string_view line)
{
    std::vector<int> widths;
    bool isInside = false;
    for (std::size_t place = 0; place < line.size();) {
        const bool isWord = !isBlank(line[place]) && line[place] != '(' && line[place] != ')';
        if (line[place] == '(') {
            isInside = true;
            widths.push_back(0);
        }
        if (line[place] == ')')
            isInside = false;
        if (!isWord) {
            ++place;
            continue;
        }
        if (isInside)
            ++widths.back();
        else
            widths.push_back(1);
        while (place < line.size() && !isBlank(line[place]) && line[place] != ')')
            ++place;
    }
    return widths;
}

} // namespace corvala::host::io::reader
