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

static void addRows(const QString& path, const TableLayout& layout, TextPreview& preview)
{
    LineReader lines(path, *layout.dialect.encoding);
    RowReader reader(lines, layout.dialect);
    const RowParser parser(layout);
    std::vector<double> values(layout.columns.size());
    std::vector<SentinelSearch> searches(layout.columns.size());
    const int dataLine = layout.dialect.dataLine.value_or(1);
    std::string_view above;
    if (dataLine > kFarDown)
        while (lines.number() + 1 < dataLine - kLinesAbove && lines.next(above)) { }
    RowReader::Line line;
    Row row;
    std::size_t fields = 0;
    while (preview.rows.size() < kMostRows && fields < kMostFields && reader.next(line, row)) {
        const bool isData = line.number >= dataLine;
        if (line.kind != RowReader::Fields && (isData || line.text.empty()))
            continue;
        TextPreview::Row& shown = preview.rows.emplace_back();
        shown.line = line.number;
        const bool isHeader = contains(layout.headerLines, line.number)
            || (isData && contains(layout.header, line.text));
        shown.role = isHeader ? TextPreview::Role::Header
            : isData          ? TextPreview::Role::Data
                              : TextPreview::Role::Above;
        if (isData && !isHeader && !layout.columns.empty()) {
            if (parser.parse(row, values).kind != RowFault::None)
                shown.role = TextPreview::Role::Bad;
            else
                for (std::size_t c = 0; c < values.size(); ++c)
                    if (layout.columns[c].kind == CellKind::Number)
                        searches[c].take(values[c]);
        }
        if (isData && !isHeader)
            shown.fields = shownFields(row);
        else
            shown.fields = {cleanName(std::string(line.text.substr(0, kMostBytes)).c_str(), {})};
        fields += shown.fields.size() + 1;
    }
    for (const SentinelSearch& search : searches)
        if (const std::string word = search.found();
            !word.empty() && !contains(preview.sentinels, word))
            preview.sentinels.push_back(word);
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
