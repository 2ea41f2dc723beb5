// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/table_notes.h"

#include "host/io/reader/numbered_words.h"
#include "host/io/reader/text/sentinel_search.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace corvala::host::io::reader {

static constexpr int kMostColumns = 5;

static QStringList wordColumns(const std::vector<TableColumn>& columns, const TableData& table)
{
    QStringList numbered;
    for (std::size_t c = 0; c < columns.size() && numbered.size() < kMostColumns; ++c)
        if (!table.columns[c].words.empty())
            numbered << numberedWords(QString::fromStdString(columns[c].name),
                                      table.columns[c].words, 1);
    return numbered;
}

static QStringList droppedColumns(const std::vector<TableColumn>& columns, const TableData& table)
{
    QStringList dropped;
    for (std::size_t c = 0; c < columns.size(); ++c)
        if (table.columns[c].isDropped)
            dropped << QString::fromStdString(columns[c].name);
    return dropped;
}

static std::string sentinelIn(const std::vector<double>& numbers)
{
    constexpr std::size_t kMostRows = 100'000; // that are looked at
    SentinelSearch search;
    for (std::size_t i = 0; i < std::min(numbers.size(), kMostRows); ++i)
        search.take(numbers[i]);
    return search.found();
}

static QStringList sentinelColumns(const std::vector<TableColumn>& columns, const TableData& table)
{
    QStringList found;
    for (std::size_t c = 0; c < columns.size() && found.size() < kMostColumns; ++c) {
        if (columns[c].kind != CellKind::Number)
            continue;
        if (const std::string word = sentinelIn(table.columns[c].numbers); !word.empty())
            found << QStringLiteral("%1 (%2)").arg(QString::fromStdString(columns[c].name),
                                                   QString::fromStdString(word));
    }
    return found;
}

std::vector<ReadMessage> notesOf(const QString& file, const std::vector<TableColumn>& columns,
                                 const TableData& table)
{
    const std::pair<const char*, QStringList> parts[] = {
        {QT_TRANSLATE_NOOP("ReadMessage", "%1: columns of words are numbered: %2."),
         wordColumns(columns, table)},
        {QT_TRANSLATE_NOOP("ReadMessage", "%1: columns of text were left out: %2."),
         droppedColumns(columns, table)},
        {QT_TRANSLATE_NOOP("ReadMessage",
                           "%1: numbers that often stand for missing values were read as numbers: "
                           "%2."),
         sentinelColumns(columns, table)}};
    std::vector<ReadMessage> notes;
    for (const auto& [text, what] : parts)
        if (!what.isEmpty())
            notes.emplace_back(
                text, std::initializer_list<QString> {file, what.join(QStringLiteral(", "))});
    return notes;
}

} // namespace corvala::host::io::reader
