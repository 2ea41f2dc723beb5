// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/obj_lines.h"

#include "host/io/reader/legacy_number.h"

#include <algorithm>
#include <charconv>

namespace corvala::host::io::reader {

ObjLines::ObjLines(std::string_view text)
    : m_rest(text)
    , m_lineEnd(text.find('\n') == std::string_view::npos ? '\r' : '\n')
{
}

/// Passes over ends behind a backslash, by which a line goes on.
std::size_t ObjLines::endOfNext()
{
    std::size_t end = m_rest.find(m_lineEnd);
    for (; end != std::string_view::npos; end = m_rest.find(m_lineEnd, end + 1)) {
        const std::size_t last = end > 0 && m_rest[end - 1] == '\r' ? end - 1 : end;
        if (last == 0 || m_rest[last - 1] != '\\')
            break;
        ++m_nextNumber;
    }
    return end;
}

bool ObjLines::next()
{
    if (m_rest.empty())
        return false;
    m_number = m_nextNumber++;
    const std::size_t end = endOfNext();
    m_isOpen = end == std::string_view::npos;
    m_text = m_rest.substr(0, end);
    m_rest.remove_prefix(m_isOpen ? m_rest.size() : end + 1);
    m_text = m_text.substr(0, m_text.find('#'));
    return true;
}

QString ObjLines::shown() const
{
    constexpr std::size_t kLongest = 40;
    const std::string_view start = m_text.substr(0, kLongest);
    const QString line = QString::fromUtf8(start.data(), static_cast<int>(start.size()));
    return m_text.size() > kLongest ? line.simplified() + QStringLiteral("...") : line.simplified();
}

static bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\\';
}

std::string_view takeWord(std::string_view& line)
{
    std::size_t start = 0;
    while (start < line.size() && isBlank(line[start]))
        ++start;
    std::size_t end = start;
    while (end < line.size() && !isBlank(line[end]))
        ++end;
    const std::string_view word = line.substr(start, end - start);
    line.remove_prefix(end);
    return word;
}

int takeNumbers(std::string_view line, int count, double* numbers)
{
    for (int i = 0; i < count; ++i) {
        const std::string_view word = takeWord(line);
        if (word.empty())
            return i;
        const char* const end = word.data() + word.size();
        const auto [last, error] = std::from_chars(word.data(), end, numbers[i]);
        if (last == end && error == std::errc())
            continue;
        const std::optional<double> number = numberOf(word);
        if (!number)
            return -1;
        numbers[i] = *number;
    }
    return count;
}

bool parseCorner(std::string_view word, ObjCorner& corner)
{
    const char* place = word.data();
    const char* const end = place + word.size();
    for (std::int64_t* const number : {&corner.point, &corner.texture, &corner.normal}) {
        const auto [last, error] = std::from_chars(place, end, *number);
        if (error != std::errc() && (number == &corner.point || last != place))
            return false;
        place = last;
        if (place == end)
            return true;
        if (*place++ != '/')
            return false;
    }
    return false;
}

} // namespace corvala::host::io::reader
