// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/table_data.h"

#include "host/io/reader/block_tree.h"
#include "host/io/reader/read_failure.h"
#include "host/io/reader/resource_limits.h"
#include "host/io/reader/text/table_rows.h"

#include <QDir>
#include <QStorageInfo>

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace corvala::host::io::reader {

static constexpr std::size_t kMostWords = 10'000; ///< of a column
static constexpr std::size_t kMostShown = 5; ///< bad rows
static constexpr std::size_t kFieldsPerReport = 20'000;
static constexpr std::size_t kMostGroups = 1'000;

namespace {

/// Numbers the words of a column.
class WordCounter
{
public:
    /// 0 when there are too many.
    double numberOf(std::string_view word, std::vector<std::string>& words)
    {
        auto place = m_numbers.find(word);
        if (place == m_numbers.end()) {
            if (words.size() == kMostWords)
                return 0;
            words.push_back(cleanName(std::string(word).c_str(), {}));
            place = m_numbers.emplace(word, words.size()).first;
        }
        return static_cast<double>(place->second);
    }

private:
    std::map<std::string, std::size_t, std::less<>> m_numbers;
};

/// Collects the rows of a table.
class TableCollector
{
public:
    TableCollector(const QString& path, const TableLayout& layout, double expectedRows);

    void take(const RowReader::Line& line, Row& row);
    TableData finish();

private:
    void takeRow(Row& row, std::int64_t line);
    void takeWords(const Row& row);
    void requireMemory(double rows) const;
    void requireDiskSpace(double rows) const;
    bool isSkipped(std::size_t column) const
    {
        return m_layout.columns[column].kind == CellKind::Skipped;
    }

    const QString& m_path;
    const TableLayout& m_layout;
    RowParser m_parser;
    TableData m_table;
    std::vector<WordCounter> m_words;
    std::vector<double> m_values; ///< of the row
    std::int64_t m_bytesOfRow;
    std::int64_t m_mostBytes;
    bool m_beginsZone = true;
};

} // namespace

TableCollector::TableCollector(const QString& path, const TableLayout& layout, double expectedRows)
    : m_path(path)
    , m_layout(layout)
    , m_parser(layout)
    , m_words(layout.columns.size())
    , m_values(layout.columns.size())
{
    const auto kept = static_cast<std::size_t>(
        std::count_if(layout.columns.begin(), layout.columns.end(),
                      [](const TableColumn& column) { return column.kind != CellKind::Skipped; }));
    m_bytesOfRow = static_cast<std::int64_t>(kept * sizeof(double));
    constexpr int kMostFifths = 4; // of the memory; the rest is for what the file is read with
    m_mostBytes = memoryLimit() / 5 * kMostFifths;
    constexpr double kUnequalLines = 0.8; // of the file, against those of the sample
    requireMemory(kUnequalLines * expectedRows);
    requireDiskSpace(kUnequalLines * expectedRows);
    m_table.columns.resize(layout.columns.size());
    for (std::size_t c = 0; c < layout.columns.size(); ++c)
        if (!isSkipped(c))
            m_table.columns[c].numbers.reserve(static_cast<std::size_t>(1.05 * expectedRows) + 100);
}

void TableCollector::requireMemory(double rows) const
{
    const auto gibibytes = [](double bytes) { return QString::number(bytes / (1 << 30), 'g', 3); };
    const double bytesOfRow = static_cast<double>(m_bytesOfRow);
    const double bytes = rows * bytesOfRow;
    const double mostBytes = static_cast<double>(m_mostBytes);
    if (bytes > mostBytes)
        throw ReadFailure(
            m_path,
            QT_TRANSLATE_NOOP("ReadMessage",
                              "the numbers of its %1 columns in %2 rows or more need %3 GiB of "
                              "memory, and %4 GiB is the limit; columns that are left out need "
                              "none"),
            {QString::number(m_bytesOfRow / static_cast<std::int64_t>(sizeof(double))),
             QString::number(rows, 'f', 0), gibibytes(bytes), gibibytes(mostBytes)});
    if (rows > std::numeric_limits<int>::max())
        throw ReadFailure(
            m_path,
            QT_TRANSLATE_NOOP("ReadMessage", "it has more than %1 rows, which is the limit"),
            {QString::number(std::numeric_limits<int>::max())});
}

/// Where the program takes the numbers from.
void TableCollector::requireDiskSpace(double rows) const
{
    const QStorageInfo disk(QDir::tempPath());
    const double bytes = rows * static_cast<double>(m_bytesOfRow);
    const auto gibibytes = [](double size) { return QString::number(size / (1 << 30), 'g', 3); };
    if (disk.isValid() && disk.isReady() && bytes > static_cast<double>(disk.bytesAvailable()))
        throw ReadFailure(
            m_path,
            QT_TRANSLATE_NOOP("ReadMessage",
                              "its numbers need %1 GiB in the folder for temporary files, %2, "
                              "where %3 GiB are free"),
            {gibibytes(bytes), QDir::toNativeSeparators(QDir::tempPath()),
             gibibytes(static_cast<double>(disk.bytesAvailable()))});
}

void TableCollector::take(const RowReader::Line& line, Row& row)
{
    const std::vector<std::string>& header = m_layout.header;
    const bool isHeader = std::find(header.begin(), header.end(), line.text) != header.end();
    if (isHeader
        || (line.kind == RowReader::Blank && m_layout.dialect.zones == TextZones::BlankLines))
        m_beginsZone = true;
    else if (line.kind == RowReader::Fields)
        takeRow(row, line.number);
}

void TableCollector::takeRow(Row& row, std::int64_t line)
{
    const RowFault fault = m_parser.parse(row, m_values);
    if (fault.kind != RowFault::None) {
        if (m_table.badRows.size() < kMostShown)
            m_table.badRows.push_back(describe(fault, m_layout, line));
        ++m_table.badRowCount;
        return;
    }
    requireMemory(static_cast<double>(m_table.rowCount + 1));
    if (m_beginsZone)
        m_table.zones.push_back({m_table.rowCount, {}});
    m_beginsZone = false;
    takeWords(row);
    for (std::size_t c = 0; c < m_values.size(); ++c)
        if (!isSkipped(c))
            m_table.columns[c].numbers.push_back(m_values[c]);
    ++m_table.rowCount;
}

void TableCollector::takeWords(const Row& row)
{
    for (std::size_t c = 0; c < m_values.size(); ++c) {
        ColumnValues& column = m_table.columns[c];
        if (m_layout.columns[c].kind != CellKind::Words || column.isDropped)
            continue;
        m_values[c] = row.fields[c].empty() ? std::numeric_limits<double>::quiet_NaN()
                                            : m_words[c].numberOf(row.fields[c], column.words);
        column.isDropped = m_values[c] == 0.0;
    }
}

TableData TableCollector::finish()
{
    for (ColumnValues& column : m_table.columns)
        if (column.isDropped)
            column = {{}, {}, true};
    return std::move(m_table);
}

TableData readTable(const QString& path, const TableLayout& layout, double expectedRows,
                    const ProgressCall& progress)
{
    LineReader lines(path, *layout.dialect.encoding);
    RowReader rows(lines, layout.dialect);
    TableCollector collector(path, layout, expectedRows);
    std::string_view above;
    while (lines.number() + 1 < *layout.dialect.dataLine && lines.next(above)) { }
    RowReader::Line line;
    Row row;
    std::size_t fields = 0; // since the last report
    while (rows.next(line, row)) {
        collector.take(line, row);
        fields += layout.columns.size();
        if (fields < kFieldsPerReport)
            continue;
        progress(lines.part());
        fields = 0;
    }
    return collector.finish();
}

/// Rows where the number of the word is another one than before; empty when a word comes twice.
static std::vector<std::size_t> changesOf(const std::vector<double>& words)
{
    std::vector<std::size_t> changes;
    for (std::size_t i = 1; i < words.size() && changes.size() <= kMostGroups; ++i) {
        if (words[i] == words[i - 1])
            continue;
        if (!(words[i] > words[i - 1])) // they are numbered as they come; also missing ones
            return {};
        changes.push_back(i);
    }
    return changes.size() <= kMostGroups ? changes : std::vector<std::size_t>();
}

/// Goes up, or stays, but for the changes, where it always goes down.
static bool startsAnewAt(const std::vector<std::size_t>& changes, const std::vector<double>& values)
{
    auto change = changes.begin();
    for (std::size_t i = 1; i < values.size(); ++i) {
        const bool isChange = change != changes.end() && *change == i;
        if (isChange ? !(values[i] < values[i - 1]) : !(values[i] >= values[i - 1]))
            return false;
        change += isChange ? 1 : 0;
    }
    return true;
}

std::optional<std::size_t> divideByWords(TableData& table, const TableLayout& layout)
{
    const std::vector<TableColumn>& columns = layout.columns;
    for (std::size_t c = 0; c < columns.size(); ++c) {
        const ColumnValues& words = table.columns[c];
        if (columns[c].kind != CellKind::Words || words.isDropped)
            continue;
        const std::vector<std::size_t> changes = changesOf(words.numbers);
        constexpr std::size_t kLeastRows = 2; // of a group, on average
        const bool areGroups =
            !changes.empty() && kLeastRows * (changes.size() + 1) <= table.rowCount;
        const bool isGroup = areGroups
            && (layout.dialect.zones == TextZones::Words
                || std::any_of(columns.begin(), columns.end(), [&](const TableColumn& column) {
                       const auto& values =
                           table.columns[static_cast<std::size_t>(&column - columns.data())];
                       return column.kind != CellKind::Words
                           && startsAnewAt(changes, values.numbers);
                   }));
        if (!isGroup)
            continue;
        table.zones = {{0, words.words.front()}};
        for (const std::size_t change : changes)
            table.zones.push_back(
                {change, words.words[static_cast<std::size_t>(words.numbers[change]) - 1]});
        return c;
    }
    return std::nullopt;
}

} // namespace corvala::host::io::reader
