// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/table_header.h"

#include "host/io/reader/block_tree.h"
#include "host/io/reader/text/row_splitter.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <set>
#include <utility>

namespace corvala::host::io::reader {

using Names = std::vector<std::string>;

static constexpr std::size_t kMostRows = 3;

namespace {

/// A line above the data.
struct HeaderLine
{
    std::string_view text; ///< without the mark of a comment
    bool isComment;
    Names names {}; ///< of the columns; empty for a line that does not fit them
    bool hasWords = false;
    bool isNumbered = false; ///< a word, and then numbers
};

/// Cuts header lines into the names of columns.
class HeaderReader
{
public:
    HeaderReader(const std::string& firstRow, std::size_t columns, const TextDialect& dialect)
        : m_columns(columns)
        , m_dialect(dialect)
        , m_cells(dialect)
    {
        if (dialect.separator == TextSeparator::Blanks)
            m_widths = RowSplitter::widthsOf(firstRow);
    }

    HeaderLine read(std::string_view line) const;
    std::size_t fieldCount(const HeaderLine& line) const
    {
        return fieldsOf(line.text, *m_dialect.separator).size();
    }

private:
    bool isWord(const std::string& field) const
    {
        return m_cells.read(field).kind == CellKind::Words;
    }
    Names fieldsOf(std::string_view text, TextSeparator separator) const;
    Names fitted(Names fields) const;

    std::size_t m_columns;
    const TextDialect& m_dialect;
    CellReader m_cells;
    std::vector<int> m_widths; ///< in columns, of what stands in one pair of brackets
};

} // namespace

/// Brackets belong to names.
static Names namesByBlanks(std::string_view text)
{
    Names names;
    std::string name;
    for (const char character : std::string(text) + ' ') {
        const bool isBlank = character == ' ' || character == '\t';
        if (!isBlank)
            name += character;
        else if (!name.empty())
            names.push_back(std::exchange(name, {}));
    }
    return names;
}

Names HeaderReader::fieldsOf(std::string_view text, TextSeparator separator) const
{
    if (separator == TextSeparator::Blanks && text.find('"') == std::string_view::npos)
        return namesByBlanks(text);
    Row row;
    RowSplitter(separator, *m_dialect.quote).split(text, row);
    return {row.fields.begin(), row.fields.end()};
}

/// One name per column, or none when they do not fit. What stands in brackets shares a name.
Names HeaderReader::fitted(Names fields) const
{
    while (fields.size() > m_columns && fields.back().empty())
        fields.pop_back();
    if (fields.size() == m_columns)
        return fields;
    if (fields.size() != m_widths.size())
        return {};
    Names names;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        const int width = m_widths[i];
        for (int part = 0; part < width; ++part)
            names.push_back(width == 1       ? fields[i]
                                : width <= 3 ? fields[i] + ' ' + "XYZ"[part]
                                             : fields[i] + ' ' + std::to_string(part + 1));
    }
    return names.size() == m_columns ? names : Names();
}

/// A word, and then numbers one after the other.
static bool countsUp(const Names& fields)
{
    for (std::size_t i = 2; i < fields.size(); ++i)
        if (std::atof(fields[i].c_str()) != std::atof(fields[i - 1].c_str()) + 1.0)
            return false;
    return fields.size() > 1;
}

HeaderLine HeaderReader::read(std::string_view line) const
{
    const std::optional<std::string_view> comment = commentIn(line, *m_dialect.comment);
    HeaderLine result {comment ? *comment : trimmed(line), comment.has_value()};
    const Names fields = fieldsOf(result.text, *m_dialect.separator);
    result.names = fitted(fields);
    // Some leave the column of the rows' names without one.
    if (result.names.empty() && !comment && m_columns > 2 && fields.size() + 1 == m_columns) {
        result.names = fields;
        result.names.insert(result.names.begin(), std::string());
    }
    // Comments list the columns by commas, whatever separates these.
    if (result.names.empty() && comment)
        result.names = fitted(fieldsOf(result.text, TextSeparator::Comma));
    const auto words = std::count_if(fields.begin(), fields.end(),
                                     [this](const std::string& name) { return isWord(name); });
    result.hasWords = words > 0;
    result.isNumbered = words == 1 && isWord(fields.front()) && countsUp(fields);
    const auto known = std::count_if(fields.begin(), fields.end(),
                                     [](const std::string& name) { return !name.empty(); });
    const bool looksLikeData = words == 0 || (2 * words < known && !result.isNumbered);
    if (looksLikeData && !m_dialect.headerRows)
        result.names.clear();
    return result;
}

/// Short, or in brackets, as units are.
static bool looksLikeUnit(const std::string& text)
{
    const bool isBracketed =
        text.size() > 1 && std::string_view("([{<").find(text.front()) != std::string_view::npos;
    return isBracketed
        || (text.size() <= 6 && text.find(' ') == std::string::npos
            && text.find('_') == std::string::npos);
}

static bool areUnits(const Names& row, const Names& above)
{
    std::size_t units = 0;
    std::size_t brackets = 0;
    std::size_t filled = 0;
    std::size_t named = 0;
    for (std::size_t i = 0; i < row.size(); ++i) {
        filled += row[i].empty() ? 0 : 1;
        named += above[i].empty() ? 0 : 1;
        const bool isUnit = !row[i].empty() && looksLikeUnit(row[i]) && row[i] != above[i];
        units += isUnit ? 1 : 0;
        brackets += isUnit && row[i].size() > 1 && !isalnum(row[i].front()) ? 1 : 0;
    }
    return filled > 0 && 2 * filled >= named && (2 * brackets >= filled || units == filled);
}

static std::string stripped(std::string unit)
{
    if (unit.size() > 1 && std::string_view("([{<").find(unit.front()) != std::string_view::npos)
        unit = unit.substr(1, unit.size() - 2);
    return unit;
}

/// Whether the unit stands in brackets in a name.
static bool namesUnit(const std::string& name, const std::string& unit)
{
    return name.find('[' + unit + ']') != std::string::npos
        || name.find('(' + unit + ')') != std::string::npos;
}

/// A row such as "Probe 0 1 2" over one that names the first column numbers the others.
static Names numbered(const Names& row)
{
    Names result {{}};
    for (std::size_t i = 1; i < row.size(); ++i)
        result.push_back(row.front() + ' ' + row[i]);
    return result;
}

/// Rows of a header from the top down become one name per column.
static Names joined(const std::vector<Names>& rows, bool hasUnits, bool isNumbered)
{
    const std::size_t named = rows.size() - (hasUnits ? 1 : 0);
    Names names = isNumbered && named > 1 ? numbered(rows.front()) : rows.front();
    for (std::size_t i = 1; i < named; ++i)
        for (std::size_t c = 0; c < names.size() && c < rows[i].size(); ++c)
            if (!rows[i][c].empty() && rows[i][c] != names[c])
                names[c] += (names[c].empty() ? "" : " ") + rows[i][c];
    if (hasUnits)
        for (std::size_t c = 0; c < names.size(); ++c)
            if (const std::string unit = stripped(rows.back()[c]);
                !unit.empty() && unit != "-" && !namesUnit(names[c], unit))
                names[c] += " [" + unit + ']';
    return names;
}

/// How many of the lines, the one next to the data first, make up the header: those that fit the
/// columns, perhaps above a shorter one. Of comments only the last counts, with its units.
static std::size_t countRows(const std::vector<HeaderLine>& lines, const HeaderReader& reader,
                             std::size_t columns)
{
    const auto fits = [&](std::size_t i) {
        return i < lines.size() && !lines[i].names.empty()
            && lines[i].isComment == lines.front().isComment;
    };
    const bool isShort = !lines.empty() && !fits(0) && reader.fieldCount(lines.front()) < columns;
    std::size_t count = isShort ? 1 : 0;
    if (!fits(count))
        return 0;
    const auto goesOn = [&](std::size_t i) {
        return fits(i)
            && (!lines[i].isComment
                || (!lines[i - 1].names.empty() && areUnits(lines[i - 1].names, lines[i].names)));
    };
    for (++count; count < kMostRows && goesOn(count);)
        ++count;
    return count;
}

/// The lines above the data, the one next to them first, up to a blank one.
static std::vector<std::string_view> nearestLines(const std::vector<std::string>& linesAbove,
                                                  std::size_t most)
{
    std::vector<std::string_view> lines;
    for (auto line = linesAbove.rbegin(); line != linesAbove.rend() && lines.size() < most;
         ++line) {
        const std::string_view text = trimmed(*line);
        if (!text.empty())
            lines.push_back(text);
        else if (!lines.empty())
            break;
    }
    return lines;
}

/// The names of header rows from the top down, one per column.
static std::vector<Names> rowsOf(const std::vector<HeaderLine>& lines, std::size_t columns)
{
    std::vector<Names> rows;
    for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
        Names names = line->names;
        if (names.empty())
            names.emplace_back(line->text);
        names.resize(columns);
        rows.push_back(std::move(names));
    }
    return rows;
}

TableHeader headerOf(const std::vector<std::string>& linesAbove, const std::string& firstRow,
                     std::size_t columns, const TextDialect& dialect)
{
    const HeaderReader reader(firstRow, columns, dialect);
    const auto wanted = static_cast<std::size_t>(dialect.headerRows.value_or(2 * kMostRows));
    std::vector<HeaderLine> lines;
    for (const std::string_view line : nearestLines(linesAbove, wanted))
        lines.push_back(reader.read(line));
    if (!dialect.headerRows)
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(countRows(lines, reader, columns)),
                    lines.end());
    TableHeader header;
    header.rows = static_cast<int>(lines.size());
    if (lines.empty())
        return header;
    const std::vector<std::string_view> texts = nearestLines(linesAbove, lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (lines[i].hasWords)
            header.lines.emplace_back(texts[i]);
    const std::vector<Names> rows = rowsOf(lines, columns);
    const std::size_t last = rows.size() - 1;
    if (last > 0)
        header.hasUnits =
            dialect.units ? *dialect.units == TextUnits::Yes : areUnits(rows[last], rows[last - 1]);
    header.names = joined(rows, header.hasUnits, lines.back().isNumbered);
    return header;
}

/// Without brackets that have no counterpart.
static std::string balanced(const std::string& name)
{
    std::string result = name;
    for (const char* const pair : {"()", "[]", "{}"}) {
        const auto opening = std::count(name.begin(), name.end(), pair[0]);
        const auto closing = std::count(name.begin(), name.end(), pair[1]);
        const bool isWhole =
            opening == 1 && closing == 1 && name.front() == pair[0] && name.back() == pair[1];
        if (opening == closing && !isWhole)
            continue;
        result.erase(std::remove_if(result.begin(), result.end(),
                                    [pair](char c) { return c == pair[0] || c == pair[1]; }),
                     result.end());
    }
    return result;
}

std::vector<std::string> columnNames(const std::vector<std::string>& given, std::size_t columns)
{
    std::set<std::string> used {"vtkGhostType"}; // which VTK takes for something else
    Names names;
    for (std::size_t i = 0; i < columns; ++i) {
        const std::string fallback = "Column " + std::to_string(i + 1);
        const std::string text = i < given.size() ? balanced(given[i]) : std::string();
        const std::string name = cleanName(text.c_str(), fallback);
        std::string unique = name;
        for (int number = 2; !used.insert(unique).second; ++number)
            unique = name + ' ' + std::to_string(number);
        names.push_back(unique);
    }
    return names;
}

} // namespace corvala::host::io::reader
