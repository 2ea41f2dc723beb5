// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/table_preview.h"

#include "host/io/reader/block_tree.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/text/sentinel_search.h"
#include "host/io/reader/text/table_rows.h"

#include <algorithm>

namespace corvala::host::io::reader {

static constexpr std::size_t kMostRows = 200;
static constexpr std::size_t kMostFields = 20'000;
static constexpr int kFarDown = 100; ///< line of data, before which not all lines are shown
static constexpr int kLinesAbove = 10; ///< that are shown then
static constexpr std::size_t kMostBytes = 200; ///< of a field

static std::vector<std::string> shownFields(const Row& row)
{
    std::vector<std::string> fields;
    for (const std::string_view field : row.fields)
        fields.push_back(cleanName(std::string(field.substr(0, kMostBytes)).c_str(), {}));
    return fields;
}

template<class Values, class Value>
static bool contains(const Values& values, const Value& value)
{
    return std::find(values.begin(), values.end(), value) != values.end();
}

namespace {

/// Gathers the rows of a preview and what their numbers tell.
class PreviewRows
{
public:
    PreviewRows(const TableLayout& layout, TextPreview& preview)
        : m_layout(layout)
        , m_preview(preview)
        , m_parser(layout)
        , m_values(layout.columns.size())
        , m_searches(layout.columns.size())
    {
    }

    bool isFull() const { return m_preview.rows.size() >= kMostRows || m_fields >= kMostFields; }
    void add(const RowReader::Line& line, Row& row);
    void addSentinels() const;

private:
    using Role = TextPreview::Role;

    int dataLine() const { return m_layout.dialect.dataLine.value_or(1); }
    Role roleOf(const RowReader::Line& line, Row& row);
    Role parse(Row& row);

    const TableLayout& m_layout;
    TextPreview& m_preview;
    RowParser m_parser;
    std::vector<double> m_values; ///< of one row
    std::vector<SentinelSearch> m_searches; ///< by column
    std::size_t m_fields = 0;
};

/// Of a row of data, whose numbers are searched for ones that stand for missing values.
PreviewRows::Role PreviewRows::parse(Row& row)
{
    if (m_layout.columns.empty())
        return Role::Data;
    if (m_parser.parse(row, m_values).kind != RowFault::None)
        return Role::Bad;
    for (std::size_t c = 0; c < m_values.size(); ++c)
        if (m_layout.columns[c].kind == CellKind::Number)
            m_searches[c].take(m_values[c]);
    return Role::Data;
}

PreviewRows::Role PreviewRows::roleOf(const RowReader::Line& line, Row& row)
{
    const bool isData = line.number >= dataLine();
    if (contains(m_layout.headerLines, line.number)
        || (isData && contains(m_layout.header, line.text)))
        return Role::Header;
    return isData ? parse(row) : Role::Above;
}

void PreviewRows::add(const RowReader::Line& line, Row& row)
{
    const bool isData = line.number >= dataLine();
    if (line.kind != RowReader::Fields && (isData || line.text.empty()))
        return;
    TextPreview::Row& shown = m_preview.rows.emplace_back();
    shown.line = line.number;
    shown.role = roleOf(line, row);
    if (shown.role == Role::Data || shown.role == Role::Bad)
        shown.fields = shownFields(row);
    else
        shown.fields = {cleanName(std::string(line.text.substr(0, kMostBytes)).c_str(), {})};
    m_fields += shown.fields.size() + 1;
}

void PreviewRows::addSentinels() const
{
    for (const SentinelSearch& search : m_searches)
        if (const std::string word = search.found();
            !word.empty() && !contains(m_preview.sentinels, word))
            m_preview.sentinels.push_back(word);
}

/// Leaves the first lines out where the data begin far down.
void skipFirstLines(LineReader& lines, int dataLine)
{
    std::string_view line;
    if (dataLine > kFarDown)
        while (lines.number() + 1 < dataLine - kLinesAbove && lines.next(line)) { }
}

} // namespace

static void addRows(const QString& path, const TableLayout& layout, TextPreview& preview)
{
    LineReader lines(path, *layout.dialect.encoding);
    skipFirstLines(lines, layout.dialect.dataLine.value_or(1));
    RowReader reader(lines, layout.dialect);
    PreviewRows rows(layout, preview);
    RowReader::Line line;
    Row row;
    while (!rows.isFull() && reader.next(line, row))
        rows.add(line, row);
    rows.addSentinels();
}

TextPreview previewOf(const QString& path, const TextDialect& wanted)
{
    requireReadable(path);
    const TableLayout layout = layoutOf(path, sampleOf(path, wanted), wanted);
    TextPreview preview;
    preview.file = path.toStdString();
    preview.dialect = layout.dialect;
    preview.isSure = layout.isSure;
    for (const TableColumn& column : layout.columns) {
        preview.columns.push_back(column.name);
        const int kind = static_cast<int>(column.kind) - static_cast<int>(CellKind::Number);
        preview.kinds.push_back(static_cast<TextColumnKind>(kind));
    }
    addRows(path, layout, preview);
    return preview;
}

} // namespace corvala::host::io::reader
