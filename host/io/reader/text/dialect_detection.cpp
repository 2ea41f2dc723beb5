// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/dialect_detection.h"

#include "host/io/reader/text/cell_value.h"
#include "host/io/reader/text/row_splitter.h"

#include <algorithm>
#include <map>

namespace corvala::host::io::reader {

static constexpr std::size_t kMostLines = 200; ///< of each part that are tried
static constexpr std::size_t kMostFields = 50'000; ///< that are tried in all
static constexpr double kSure = 0.25; ///< least score of a table without doubt
static constexpr double kRival = 0.55; ///< of the score, that another way must not reach

namespace {

/// What is tried: lines that are not blank, without comments.
struct Trial
{
    std::vector<std::string_view> lines;
    std::string_view lastComment; ///< before the first line
};

/// How a sample reads in one way.
struct Reading
{
    TextDialect dialect;
    std::size_t columns = 0;
    double numberShare = 0.0; ///< of the fields that are not missing
    double score = 0.0;
};

} // namespace

/// The mark with which most lines of the beginning start.
static TextComment commentOf(const std::vector<std::string>& lines)
{
    TextComment best = TextComment::None;
    std::ptrdiff_t most = 0;
    for (int i = 1; i <= static_cast<int>(TextComment::Semicolon); ++i) {
        const auto comment = static_cast<TextComment>(i);
        const auto count =
            std::count_if(lines.begin(), lines.end(), [comment](const std::string& line) {
                return commentIn(line, comment).has_value();
            });
        if (count > most) {
            best = comment;
            most = count;
        }
    }
    return best;
}

static Trial trialOf(const TextSample& sample, TextComment comment)
{
    Trial trial;
    for (const std::vector<std::string>& part : sample.parts) {
        std::size_t count = 0;
        for (const std::string& line : part) {
            const std::optional<std::string_view> inside = commentIn(line, comment);
            if (inside && trial.lines.empty() && !inside->empty())
                trial.lastComment = *inside;
            if (inside || trimmed(line).empty() || count == kMostLines)
                continue;
            trial.lines.push_back(line);
            ++count;
        }
    }
    return trial;
}

/// The number of fields that most rows have; of equally frequent ones the largest.
static std::size_t usualCount(const std::vector<Row>& rows)
{
    std::map<std::size_t, int> counts;
    for (const Row& row : rows)
        ++counts[row.fields.size()];
    std::size_t usual = 0;
    int most = 0;
    for (const auto& [fields, count] : counts) {
        if (count >= most) {
            usual = fields;
            most = count;
        }
    }
    return usual;
}

static std::vector<Row> rowsOf(const Trial& trial, const RowSplitter& splitter)
{
    std::vector<Row> rows;
    std::size_t fields = 0;
    for (const std::string_view line : trial.lines) {
        if (fields > kMostFields)
            break;
        splitter.split(line, rows.emplace_back());
        fields += rows.back().fields.size();
    }
    return rows;
}

static bool areWords(const Row& row, const CellReader& cells)
{
    return std::all_of(row.fields.begin(), row.fields.end(), [&](std::string_view field) {
        return cells.read(field).kind == CellKind::Words;
    });
}

/// The share of numbers and times among the fields of some rows that are not missing.
static double numberShareOf(const std::vector<const Row*>& rows, const CellReader& cells)
{
    double numbers = 0;
    double fields = 0;
    for (const Row* const row : rows) {
        for (const std::string_view field : row->fields) {
            const CellKind kind = cells.read(field).kind;
            fields += kind == CellKind::Missing ? 0 : 1;
            numbers += kind == CellKind::Missing || kind == CellKind::Words ? 0 : 1;
        }
    }
    return fields > 0 ? numbers / fields : 0;
}

/// `consistency` is the share of rows that have as many fields as there are columns.
static double scoreOf(const Reading& reading, double consistency, bool hasHeader)
{
    constexpr double kColon = 0.6; // which also stands inside of words and times
    constexpr double kHeader = 1.2;
    constexpr double kOne = 0.8; // column, which all lines have
    const double score = consistency * (1 - 1 / (static_cast<double>(reading.columns) + 1));
    if (reading.columns == 1)
        return score * kOne * reading.numberShare;
    return score * (0.3 + 0.7 * reading.numberShare) * (hasHeader ? kHeader : 1)
        * (reading.dialect.separator == TextSeparator::Colon ? kColon : 1);
}

static Reading readingOf(const Trial& trial, const TextDialect& dialect)
{
    const RowSplitter splitter(*dialect.separator, *dialect.quote);
    const CellReader cells(dialect);
    const std::vector<Row> rows = rowsOf(trial, splitter);
    Reading reading {dialect, usualCount(rows)};
    std::vector<const Row*> usual;
    std::size_t tried = 0; // from the first one that is usual
    for (const Row& row : rows) {
        if (row.fields.size() == reading.columns && row.isClosed)
            usual.push_back(&row);
        tried += usual.empty() ? 0 : 1;
    }
    if (usual.empty())
        return reading;
    const double consistency = static_cast<double>(usual.size()) / static_cast<double>(tried);
    Row comment;
    splitter.split(trial.lastComment, comment);
    const bool isHeader = areWords(*usual.front(), cells);
    if (isHeader && reading.columns > 1)
        usual.erase(usual.begin());
    reading.numberShare = numberShareOf(usual, cells);
    reading.score =
        scoreOf(reading, consistency, isHeader || comment.fields.size() == reading.columns);
    return reading;
}

/// Which part of a date comes first, and whether that is clear. Years where there are none.
static std::pair<TextDates, bool> datesOf(const Trial& trial, TextDialect dialect)
{
    constexpr TextDates kOrders[] = {TextDates::Year, TextDates::Day, TextDates::Month};
    int counts[3] = {0, 0, 0};
    const RowSplitter splitter(*dialect.separator, *dialect.quote);
    const std::vector<Row> rows = rowsOf(trial, splitter);
    for (std::size_t i = 0; i < 3; ++i) {
        dialect.dates = kOrders[i];
        const CellReader cells(dialect);
        for (const Row& row : rows)
            for (const std::string_view field : row.fields)
                counts[i] += cells.read(field).kind == CellKind::Instant ? 1 : 0;
    }
    const auto best = static_cast<std::size_t>(std::max_element(counts, counts + 3) - counts);
    // With a year of four digits in front, all orders say the same.
    const bool isClear = counts[0] == counts[best] || counts[1] != counts[2];
    return {kOrders[best], isClear};
}

static std::vector<TextDialect> waysOf(const Trial& trial, const TextDialect& wanted,
                                       TextComment comment)
{
    const auto holds = [&](char sign) {
        return std::any_of(trial.lines.begin(), trial.lines.end(), [sign](std::string_view line) {
            return line.find(sign) != std::string_view::npos;
        });
    };
    TextDialect way;
    way.comment = comment;
    way.missing = wanted.missing;
    way.dates = wanted.dates;
    way.quote =
        wanted.quote.value_or(holds('\'') && !holds('"') ? TextQuote::Single : TextQuote::Double);
    const bool hasQuotes = holds(way.quote == TextQuote::Single ? '\'' : '"');
    std::vector<TextDialect> ways;
    for (const TextSeparator separator :
         {TextSeparator::Tab, TextSeparator::Comma, TextSeparator::Semicolon, TextSeparator::Bar,
          TextSeparator::Blanks, TextSeparator::Colon, TextSeparator::None}) {
        for (const TextDecimal decimal : {TextDecimal::Point, TextDecimal::Comma}) {
            way.separator = separator;
            way.decimal = decimal;
            const bool isWanted = wanted.separator.value_or(separator) == separator
                && wanted.decimal.value_or(decimal) == decimal;
            // Between commas, decimal commas stand in quotes.
            const bool isPossible = separator != TextSeparator::Comma
                || decimal == TextDecimal::Point || wanted.decimal.has_value() || hasQuotes;
            if (isWanted && isPossible)
                ways.push_back(way);
        }
    }
    return ways;
}

DetectedFields detectFields(const TextSample& sample, const TextDialect& wanted)
{
    const TextComment comment = wanted.comment.value_or(commentOf(sample.parts.front()));
    const Trial trial = trialOf(sample, comment);
    std::vector<Reading> readings;
    for (const TextDialect& way : waysOf(trial, wanted, comment))
        readings.push_back(readingOf(trial, way));
    const auto best = std::max_element(
        readings.begin(), readings.end(),
        [](const Reading& one, const Reading& other) { return one.score < other.score; });
    const auto isRival = [&](const Reading& other) {
        const bool isSame =
            other.columns == best->columns && other.dialect.decimal == best->dialect.decimal;
        return !isSame && other.numberShare > best->numberShare - 0.1
            && (other.columns != best->columns || other.numberShare > best->numberShare)
            && other.score > kRival * best->score;
    };
    DetectedFields result {best->dialect, best->columns, best->score, false};
    if (best->columns == 1 && !wanted.separator)
        result.dialect.separator = TextSeparator::None;
    const auto [dates, areClear] = datesOf(trial, result.dialect);
    result.dialect.dates = wanted.dates.value_or(dates);
    result.isSure = best->score >= kSure && best->numberShare > 0 && (areClear || wanted.dates)
        && std::none_of(readings.begin(), readings.end(), isRival);
    return result;
}

} // namespace corvala::host::io::reader
