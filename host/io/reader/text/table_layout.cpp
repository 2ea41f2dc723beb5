// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/table_layout.h"

#include "host/io/reader/text/dialect_detection.h"
#include "host/io/reader/text/row_splitter.h"
#include "host/io/reader/text/table_header.h"

#include <algorithm>
#include <array>

namespace corvala::host::io::reader {

static constexpr std::size_t kMostRows = 500; ///< of each part, by which kinds are told
static constexpr std::size_t kMostHeaders = 3; ///< rows at the beginning that may be no data
static constexpr double kMost = 0.6; ///< share of a column's fields that decide on its kind

namespace {

/// The rows of a sample that have as many fields as there are columns.
struct SampleRow
{
    std::size_t line; ///< index in its part
    bool isInHead;
    std::vector<CellKind> kinds;
};

} // namespace

static std::vector<SampleRow> rowsOf(const TextSample& sample, const TextDialect& dialect,
                                     std::size_t columns)
{
    const RowSplitter splitter(*dialect.separator, *dialect.quote);
    const CellReader cells(dialect);
    std::vector<SampleRow> rows;
    Row row;
    for (const std::vector<std::string>& part : sample.parts) {
        const std::size_t most = rows.size() + kMostRows;
        for (std::size_t i = 0; i < part.size() && rows.size() < most; ++i) {
            if (commentIn(part[i], *dialect.comment))
                continue;
            splitter.split(part[i], row);
            while (row.fields.size() > columns && row.fields.back().empty())
                row.fields.pop_back();
            if (row.fields.size() != columns || !row.isClosed || trimmed(part[i]).empty())
                continue;
            rows.push_back({i, &part == &sample.parts.front(), {}});
            for (const std::string_view field : row.fields)
                rows.back().kinds.push_back(cells.read(field).kind);
        }
    }
    return rows;
}

/// By most of its fields that are not missing.
static CellKind kindOf(const std::vector<SampleRow>& rows, std::size_t firstRow, std::size_t column)
{
    std::array<int, 5> counts {};
    for (std::size_t i = firstRow; i < rows.size(); ++i)
        ++counts[static_cast<std::size_t>(rows[i].kinds[column])];
    int known = 0;
    for (std::size_t kind = 1; kind < counts.size(); ++kind)
        known += counts[kind];
    if (known == 0)
        return firstRow > 1 ? kindOf(rows, 1, column) : CellKind::Number;
    for (const CellKind kind : {CellKind::Number, CellKind::Instant, CellKind::TimeOfDay})
        if (counts[static_cast<std::size_t>(kind)] >= kMost * known)
            return kind;
    return CellKind::Words;
}

/// A row with words where most rows have none.
static bool looksLikeHeader(const SampleRow& row, const std::vector<CellKind>& kinds)
{
    int words = 0;
    int known = 0;
    for (std::size_t c = 0; c < kinds.size(); ++c) {
        if (kinds[c] == CellKind::Words || row.kinds[c] == CellKind::Missing)
            continue;
        ++known;
        words += row.kinds[c] == CellKind::Words ? 1 : 0;
    }
    return known > 0 && 2 * words >= known;
}

static bool areWords(const SampleRow& row)
{
    return std::all_of(row.kinds.begin(), row.kinds.end(), [](CellKind kind) {
        return kind == CellKind::Words || kind == CellKind::Missing;
    });
}

/// By the rows below those of words, which may be a header.
static std::vector<CellKind> kindsOf(const std::vector<SampleRow>& rows, std::size_t columns)
{
    std::size_t first = 0;
    while (first < std::min(kMostHeaders, rows.size() - 1) && areWords(rows[first]))
        ++first;
    std::vector<CellKind> kinds;
    for (std::size_t c = 0; c < columns; ++c)
        kinds.push_back(kindOf(rows, first, c));
    return kinds;
}

/// The first row that is no header. Where there are words only, the first row names them.
static const SampleRow& firstDataRow(const std::vector<SampleRow>& rows,
                                     const std::vector<CellKind>& kinds)
{
    const bool areWords = std::all_of(kinds.begin(), kinds.end(),
                                      [](CellKind kind) { return kind == CellKind::Words; });
    if (areWords)
        return rows[rows.size() > 1 && rows[1].isInHead ? 1 : 0];
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const SampleRow& row) {
        return !looksLikeHeader(row, kinds);
    });
    return found != rows.end() && found->isInHead ? *found : rows.front();
}

/// Whether blank lines stand between groups of rows, none of them a single row.
static bool hasGroups(const std::vector<std::string>& lines, std::size_t firstLine,
                      const TextDialect& dialect)
{
    std::vector<int> groups {0};
    for (std::size_t i = firstLine; i < lines.size(); ++i) {
        const bool isBlank = trimmed(lines[i]).empty();
        if (isBlank && groups.back() > 0)
            groups.push_back(0);
        else if (!isBlank && !commentIn(lines[i], *dialect.comment))
            ++groups.back();
    }
    if (groups.back() == 0)
        groups.pop_back();
    return groups.size() > 1
        && std::all_of(groups.begin(), groups.end(), [](int rows) { return rows > 1; });
}

/// What was found to be in a column, or what is said of it.
static CellKind chosenKind(const TextDialect& dialect, std::size_t column, CellKind found)
{
    constexpr CellKind kKinds[] = {CellKind::Number, CellKind::Instant, CellKind::TimeOfDay,
                                   CellKind::Words, CellKind::Skipped};
    const auto chosen = dialect.columns.find(static_cast<int>(column) + 1);
    return chosen != dialect.columns.end() ? kKinds[static_cast<std::size_t>(chosen->second)]
                                           : found;
}

/// The lines above the data as if they were blank, so that they do not count.
static TextSample withoutLinesAbove(TextSample sample, int dataLine)
{
    std::int64_t number = sample.firstLine;
    for (std::string& line : sample.parts.front())
        if (number++ < dataLine)
            line.clear();
    return sample;
}

/// Without columns at the end that have neither name nor value.
static std::size_t columnCount(std::size_t columns, const std::vector<SampleRow>& rows,
                               const TableHeader& header)
{
    const auto isEmpty = [&](std::size_t column) {
        const bool hasName = column < header.names.size() && !header.names[column].empty();
        return !hasName && std::all_of(rows.begin(), rows.end(), [column](const SampleRow& row) {
            return row.kinds[column] == CellKind::Missing;
        });
    };
    while (columns > 1 && isEmpty(columns - 1))
        --columns;
    return columns;
}

/// Sorts the lines above the data: those of the header, and others that are neither blank nor
/// comments.
static void sortLinesAbove(const TextSample& sample, std::size_t dataRow, int headerRows,
                           TableLayout& layout)
{
    const std::vector<std::string>& head = sample.parts.front();
    for (std::size_t i = dataRow; i-- > 0;) {
        if (trimmed(head[i]).empty())
            continue;
        if (static_cast<int>(layout.headerLines.size()) < headerRows)
            layout.headerLines.push_back(static_cast<std::int64_t>(i) + sample.firstLine);
        else if (!commentIn(head[i], *layout.dialect.comment))
            ++layout.linesLeftOut;
    }
    layout.linesLeftOut += sample.firstLine - 1;
}

TableLayout layoutOf(const TextSample& sample, const TextDialect& wanted)
{
    const std::vector<std::string>& head = sample.parts.front();
    const int knownLine = std::max(1, wanted.dataLine.value_or(1));
    const TextSample data = withoutLinesAbove(sample, knownLine);
    const DetectedFields fields = detectFields(data, wanted);
    TableLayout layout;
    layout.dialect = completed(wanted, fields.dialect);
    layout.isSure = fields.isSure;
    layout.score = fields.score;
    TextDialect& dialect = layout.dialect;
    dialect.encoding = sample.encoding;
    dialect.badRows = wanted.badRows.value_or(TextBadRows::Refuse);
    const std::vector<SampleRow> rows = rowsOf(data, dialect, fields.columns);
    if (rows.empty() || !rows.front().isInHead)
        return layout;
    const std::vector<CellKind> kinds = kindsOf(rows, fields.columns);
    const std::size_t first = wanted.dataLine ? rows.front().line : firstDataRow(rows, kinds).line;
    const TableHeader header =
        headerOf({head.begin(), head.begin() + static_cast<std::ptrdiff_t>(first)}, head[first],
                 fields.columns, dialect);
    dialect.dataLine =
        wanted.dataLine.value_or(static_cast<int>(sample.firstLine) + static_cast<int>(first));
    dialect.headerRows = header.rows;
    dialect.units = header.hasUnits ? TextUnits::Yes : TextUnits::No;
    if (!wanted.zones && hasGroups(head, first, dialect))
        dialect.zones = TextZones::BlankLines;
    layout.header = header.lines;
    layout.isNamed = !header.names.empty();
    sortLinesAbove(sample, first, header.rows, layout);
    const std::size_t columns = columnCount(fields.columns, rows, header);
    const std::vector<std::string> names = columnNames(header.names, columns);
    for (std::size_t c = 0; c < columns; ++c)
        layout.columns.push_back({names[c], chosenKind(dialect, c, kinds[c])});
    if (std::none_of(layout.columns.begin(), layout.columns.end(),
                     [](const TableColumn& column) { return column.kind == CellKind::Instant; }))
        dialect.dates = wanted.dates;
    return layout;
}

TableLayout layoutOf(const QString& path, const TextSample& sample, const TextDialect& wanted)
{
    TableLayout layout = layoutOf(sample, wanted);
    if (!wanted.dataLine || wanted.headerRows || layout.isNamed)
        return layout;
    TextDialect fromTop = wanted;
    fromTop.dataLine.reset();
    const TableLayout top = layoutOf(sampleOf(path, fromTop), fromTop);
    if (!top.isNamed || top.columns.size() != layout.columns.size()
        || *top.dialect.dataLine > *wanted.dataLine)
        return layout;
    for (std::size_t c = 0; c < layout.columns.size(); ++c)
        layout.columns[c].name = top.columns[c].name;
    layout.isNamed = true;
    layout.header = top.header;
    layout.headerLines = top.headerLines;
    layout.dialect.headerRows = top.dialect.headerRows;
    layout.dialect.units = top.dialect.units;
    return layout;
}

} // namespace corvala::host::io::reader
