// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/text_sample.h"

#include "host/io/reader/file_format.h"
#include "host/io/reader/read_failure.h"
#include "host/io/reader/text/text_source.h"

#include <QFileInfo>

#include <algorithm>
#include <string_view>

namespace corvala::host::io::reader {

static constexpr std::int64_t kHeadBytes = 256 << 10;
static constexpr std::int64_t kPartBytes = 64 << 10;
static constexpr std::size_t kLeastLines = 12; ///< of the head, however long
static constexpr std::int64_t kMostBytes = 32 << 20; ///< of any part

/// Lines up to a number of bytes, but at least some.
static std::vector<std::string> linesFrom(LineReader& reader, std::int64_t bytes,
                                          std::size_t leastLines)
{
    std::vector<std::string> lines;
    std::string_view line;
    std::int64_t taken = 0;
    const auto wantsMore = [&] {
        return taken < bytes || (lines.size() < leastLines && taken < kMostBytes);
    };
    while (wantsMore() && reader.next(line)) {
        taken += static_cast<std::int64_t>(line.size()) + 1;
        lines.emplace_back(line);
    }
    return lines;
}

/// Whether the last quote of a line begins a field, so that the field may go on in the next line.
static bool opensQuote(const std::string& line)
{
    const auto quotes = std::count(line.begin(), line.end(), '"');
    const std::size_t last = line.rfind('"');
    return quotes % 2 == 1
        && (last == 0 || std::string_view(",;\t |:").find(line[last - 1]) != std::string::npos);
}

/// Puts rows of several lines into their first line, and leaves the others blank.
static void joinQuoted(std::vector<std::string>& lines)
{
    constexpr std::size_t kMostJoined = 20;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!opensQuote(lines[i]))
            continue;
        const auto first = lines.begin() + static_cast<std::ptrdiff_t>(i) + 1;
        const auto end =
            first + static_cast<std::ptrdiff_t>(std::min(kMostJoined, lines.size() - i - 1));
        const auto closing = std::find_if(first, end, [](const std::string& line) {
            return std::count(line.begin(), line.end(), '"') % 2 == 1;
        });
        if (closing == end)
            continue;
        for (auto line = first; line != closing + 1; ++line) {
            lines[i] += '\n' + *line;
            line->clear();
        }
    }
}

/// Lines from a place on; the first and the last may be cut and are left out.
static std::vector<std::string> linesAt(const QString& path, TextEncoding encoding,
                                        std::int64_t byte)
{
    LineReader reader(path, encoding, byte / 2 * 2);
    std::vector<std::string> lines = linesFrom(reader, kPartBytes, 0);
    if (!lines.empty())
        lines.erase(lines.begin());
    if (!lines.empty())
        lines.pop_back();
    return lines;
}

/// The beginning of the file, or the lines round the one where the data are said to begin. Returns
/// the byte near which they begin.
static std::int64_t takeHead(const QString& path, int dataLine, TextSample& sample)
{
    constexpr std::int64_t kLinesAbove = 50;
    LineReader reader(path, sample.encoding);
    sample.parts = {linesFrom(reader, kHeadBytes, kLeastLines)};
    if (dataLine <= reader.number())
        return 0;
    LineReader again(path, sample.encoding);
    sample.firstLine = std::max<std::int64_t>(1, dataLine - kLinesAbove);
    std::string_view above;
    while (again.number() + 1 < sample.firstLine && again.next(above)) { }
    const std::int64_t begin = again.bytesRead();
    sample.parts = {linesFrom(again, kHeadBytes, kLinesAbove + kLeastLines)};
    if (again.number() < dataLine)
        throw ReadFailure(path,
                          QT_TRANSLATE_NOOP("ReadMessage",
                                            "its data cannot begin in line %1, since it has %2 "
                                            "lines"),
                          {QString::number(dataLine), QString::number(again.number())});
    return begin;
}

TextSample sampleOf(const QString& path, const TextDialect& wanted)
{
    TextSample sample;
    sample.fileBytes = QFileInfo(path).size();
    const std::optional<TextEncoding> found = encodingOf(firstBytes(path, kHeadBytes));
    if (!found && !wanted.encoding)
        throw ReadFailure(path, QT_TRANSLATE_NOOP("ReadMessage", "it is no text"));
    sample.encoding = wanted.encoding ? *wanted.encoding : *found;
    const std::int64_t begin = takeHead(path, wanted.dataLine.value_or(0), sample);
    std::int64_t headBytes = 0;
    for (const std::string& line : sample.parts.front())
        headBytes += static_cast<std::int64_t>(line.size()) + 1;
    if (sample.fileBytes - begin > 2 * (headBytes + kPartBytes)) {
        sample.parts.push_back(linesAt(path, sample.encoding, (begin + sample.fileBytes) / 2));
        sample.parts.push_back(linesAt(path, sample.encoding, sample.fileBytes - kPartBytes));
    }
    for (std::vector<std::string>& part : sample.parts)
        joinQuoted(part);
    // Spreadsheets may say in the first line which separator they write.
    std::string* const first = sample.parts.front().empty() ? nullptr : &sample.parts.front()[0];
    if (first && sample.firstLine == 1 && first->size() == 5 && first->compare(0, 4, "sep=") == 0)
        first->clear();
    const bool isWide =
        sample.encoding == TextEncoding::Utf16Little || sample.encoding == TextEncoding::Utf16Big;
    sample.bytesOfLine = static_cast<double>(std::max<std::int64_t>(1, headBytes))
        * (isWide ? 2 : 1)
        / static_cast<double>(std::max<std::size_t>(1, sample.parts.front().size()));
    return sample;
}

} // namespace corvala::host::io::reader
