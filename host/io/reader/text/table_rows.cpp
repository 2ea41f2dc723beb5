// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/table_rows.h"

#include "host/io/reader/block_tree.h"

#include <QCoreApplication>

namespace corvala::host::io::reader {

static constexpr int kMostLines = 200; ///< of a quoted field
static constexpr std::size_t kMostShown = 30; ///< bytes of a field in a message

ReadMessage describe(const RowFault& fault, const TableLayout& layout, std::int64_t line)
{
    const QString place = QString::number(line);
    const QString column = QString::number(fault.column + 1);
    const QString text =
        QString::fromStdString(cleanName(fault.text.substr(0, kMostShown).c_str(), {})
                               + (fault.text.size() > kMostShown ? "..." : ""));
    if (fault.kind == RowFault::Quote)
        return ReadMessage(
            QT_TRANSLATE_NOOP("ReadMessage", "line %1, column %2: a quote is not closed"),
            {place, column});
    if (fault.kind == RowFault::Fields)
        return ReadMessage(
            QT_TRANSLATE_NOOP("ReadMessage", "line %1, column %2: the row has %3 fields, not %4"),
            {place, column, QString::number(fault.fields), QString::number(layout.columns.size())});
    const TableColumn& cells = layout.columns[fault.column];
    return ReadMessage(
        cells.kind == CellKind::Number
            ? QT_TRANSLATE_NOOP("ReadMessage", "line %1, column %2 (%3): \"%4\" is no number")
            : QT_TRANSLATE_NOOP("ReadMessage", "line %1, column %2 (%3): \"%4\" is no time"),
        {place, column, QString::fromStdString(cells.name), text});
}

RowParser::RowParser(const TableLayout& layout)
    : m_layout(layout)
    , m_cells(layout.dialect)
{
}

RowFault RowParser::parse(Row& row, std::vector<double>& values) const
{
    const std::vector<TableColumn>& columns = m_layout.columns;
    while (row.fields.size() > columns.size() && row.fields.back().empty())
        row.fields.pop_back();
    if (!row.isClosed)
        return {RowFault::Quote, row.fields.size() - 1, 0, {}};
    if (row.fields.size() != columns.size())
        return {
            RowFault::Fields, std::min(row.fields.size(), columns.size()), row.fields.size(), {}};
    for (std::size_t c = 0; c < columns.size(); ++c)
        if (columns[c].kind != CellKind::Words && columns[c].kind != CellKind::Skipped
            && !m_cells.read(row.fields[c], columns[c].kind, values[c]))
            return {RowFault::Cell, c, 0, std::string(row.fields[c])};
    return {};
}

RowReader::RowReader(LineReader& lines, const TextDialect& dialect)
    : m_lines(lines)
    , m_comment(*dialect.comment)
    , m_splitter(*dialect.separator, *dialect.quote)
{
}

bool RowReader::next(Line& line, Row& row)
{
    std::string_view whole;
    if (!m_lines.next(whole))
        return false;
    line = {Fields, trimmed(whole), m_lines.number()};
    if (line.text.empty()) {
        line.kind = Blank;
    } else if (commentIn(line.text, m_comment)) {
        line.kind = Comment;
    } else {
        m_splitter.split(whole, row);
        if (!row.isClosed) {
            m_first = whole;
            joinLines(row);
            line.text = trimmed(m_first);
        }
    }
    return true;
}

/// Looks for the end of a quoted field in the next lines; without one, the row is its first line.
void RowReader::joinLines(Row& row)
{
    m_lines.hold();
    m_joined = m_first;
    std::string_view more;
    for (int i = 0; i < kMostLines && !row.isClosed && m_lines.next(more); ++i) {
        m_joined += '\n';
        m_joined += more;
        m_splitter.split(m_joined, row);
    }
    if (row.isClosed) {
        m_lines.release();
    } else {
        m_lines.rewind();
        m_splitter.split(m_first, row);
    }
}

} // namespace corvala::host::io::reader
