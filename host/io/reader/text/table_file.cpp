// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/text/table_file.h"

#include "host/io/attribute_filler.h"
#include "host/io/reader/file_format.h"
#include "host/io/reader/read_failure.h"
#include "host/io/reader/text/table_data.h"
#include "host/io/reader/text/table_layout.h"
#include "host/io/reader/text/table_notes.h"
#include "host/io/reader/text/table_places.h"

#include <QFileInfo>

#include <vtkCompositeDataSet.h>
#include <vtkDoubleArray.h>
#include <vtkImageData.h>
#include <vtkInformation.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkStructuredGrid.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

namespace corvala::host::io::reader {

static constexpr double kLeastScore = 0.06; ///< of anything that can be a table
static constexpr std::size_t kMostTableColumns = 100'000;
static constexpr double kSecondsOfDay = 86'400;

/// A table whose zones are ordered along I. They have no coordinates, but places for field plots
/// where columns are named like coordinates.
class TableFile : public DataFile
{
public:
    TableFile(const QString& path, const TextDialect& wanted);

    QString path() const override { return m_path; }
    std::vector<double> times() const override { return {}; }
    vtkSmartPointer<vtkDataObject> read(std::size_t timeIndex,
                                        const ProgressCall& progress) override;
    std::vector<ReadMessage> notes() const override { return m_notes; }
    std::optional<TextDialect> textDialect() const override { return m_layout.dialect; }
    bool isSure() const override { return m_layout.isSure; }
    bool hasCoordinates() const override { return false; }
    bool isPlace(const std::string& array) const override;
    VariableKind kindOf(const std::string& array) const override;

    const TableLayout& layout() const { return m_layout; }
    void takeNames(const TableLayout& other);

private:
    ReadFailure noTable() const;
    void requireGoodRows() const;
    void takeOut(std::size_t column);
    void takeOutSkipped();
    void joinDatesAndTimes();
    void addRowNumbers();
    void note(const char* text, const QStringList& parts);
    void listKinds();
    vtkSmartPointer<vtkDataSet> zone(std::size_t number);

    QString m_path;
    bool m_isChosen; ///< by the user: how it is written
    TableLayout m_layout;
    double m_expectedRows;
    TableData m_table; ///< whose memory the zones use
    PlaceColumns m_places;
    std::map<std::string, VariableKind> m_kinds; ///< of columns that are no numbers
    std::vector<ReadMessage> m_notes;
};

static bool isSkipped(const TableColumn& column)
{
    return column.kind == CellKind::Skipped;
}

TableFile::TableFile(const QString& path, const TextDialect& wanted)
    : m_path(path)
    , m_isChosen(wanted.separator.has_value() || !wanted.columns.empty())
{
    const TextSample sample = sampleOf(path, wanted);
    m_layout = layoutOf(path, sample, wanted);
    m_expectedRows = static_cast<double>(sample.fileBytes) / sample.bytesOfLine;
    if (m_layout.columns.empty() || (m_layout.score < kLeastScore && !m_isChosen))
        throw noTable();
    if (m_layout.columns.size() > kMostTableColumns)
        throw ReadFailure(
            path, QT_TRANSLATE_NOOP("ReadMessage", "it has %1 columns, which are more than %2"),
            {QString::number(m_layout.columns.size()), QString::number(kMostTableColumns)});
    if (std::all_of(m_layout.columns.begin(), m_layout.columns.end(), isSkipped))
        throw ReadFailure(path, QT_TRANSLATE_NOOP("ReadMessage", "all its columns are left out"));
    if (!m_layout.isSure && toText(wanted).isEmpty())
        note(QT_TRANSLATE_NOOP("ReadMessage",
                               "%1 can be meant in several ways; it was read as: %2."),
             {describe(m_layout.dialect)});
    if (m_layout.linesLeftOut > 0)
        note(QT_TRANSLATE_NOOP("ReadMessage", "%1: lines above the table were left out: %2."),
             {QString::number(m_layout.linesLeftOut)});
}

bool TableFile::isPlace(const std::string& array) const
{
    return std::any_of(m_places.begin(), m_places.end(),
                       [&](const std::optional<std::size_t>& column) {
                           return column && m_layout.columns[*column].name == array;
                       });
}

VariableKind TableFile::kindOf(const std::string& array) const
{
    const auto found = m_kinds.find(array);
    return found != m_kinds.end() ? found->second : VariableKind::Number;
}

/// Of the columns that are no numbers.
void TableFile::listKinds()
{
    for (const TableColumn& column : m_layout.columns)
        if (column.kind == CellKind::Instant)
            m_kinds[column.name] = VariableKind::Instant;
        else if (column.kind == CellKind::Words)
            m_kinds[column.name] = VariableKind::Words;
}

void TableFile::takeNames(const TableLayout& other)
{
    for (std::size_t c = 0; c < m_layout.columns.size(); ++c)
        m_layout.columns[c].name = other.columns[c].name;
}

ReadFailure TableFile::noTable() const
{
    return {m_path,
            QT_TRANSLATE_NOOP("ReadMessage",
                              "it has no rows of equally many fields, so it is no table, or one "
                              "that is written in an unusual way")};
}

/// Nothing is handed over while rows are bad, unless that is wanted.
void TableFile::requireGoodRows() const
{
    const std::int64_t bad = m_table.badRowCount;
    const bool areWords =
        std::all_of(m_layout.columns.begin(), m_layout.columns.end(),
                    [](const TableColumn& column) { return column.kind == CellKind::Words; });
    const bool isHeader = m_table.rowCount == 1 && bad == 0 && !m_layout.isNamed
        && m_layout.linesLeftOut == 0 && areWords;
    if (isHeader || (m_table.rowCount == 0 && bad == 0))
        throw ReadFailure(m_path,
                          QT_TRANSLATE_NOOP("ReadMessage", "there are no rows of data in it"));
    // A header above numbers tells a table, whatever its rows are like.
    const bool isTold = m_isChosen || (m_layout.isNamed && !areWords && m_table.rowCount > 0);
    if (bad > static_cast<std::int64_t>(m_table.rowCount) && !isTold)
        throw noTable();
    const bool mayBeSkipped = m_table.rowCount > 0;
    if (bad == 0 || (mayBeSkipped && m_layout.dialect.badRows == TextBadRows::Skip))
        return;
    ReadFailure failure(
        m_path, QT_TRANSLATE_NOOP("ReadMessage", "%1 of its %2 rows are bad. %3"),
        {QString::number(bad),
         QString::number(static_cast<qint64>(m_table.rowCount) + static_cast<qint64>(bad)),
         m_table.badRows.front().asArgument()});
    if (mayBeSkipped)
        failure.badRows = {bad, m_table.badRows};
    throw failure;
}

void TableFile::takeOutSkipped()
{
    for (std::size_t c = m_layout.columns.size(); c-- > 0;)
        if (isSkipped(m_layout.columns[c]))
            takeOut(c);
}

void TableFile::takeOut(std::size_t column)
{
    const auto place = static_cast<std::ptrdiff_t>(column);
    m_layout.columns.erase(m_layout.columns.begin() + place);
    m_table.columns.erase(m_table.columns.begin() + place);
}

/// A column of days beside one of times of day becomes one of instants.
void TableFile::joinDatesAndTimes()
{
    std::vector<TableColumn>& columns = m_layout.columns;
    for (std::size_t c = 0; c + 1 < columns.size(); ++c) {
        if (columns[c].kind != CellKind::Instant || columns[c + 1].kind != CellKind::TimeOfDay)
            continue;
        std::vector<double>& days = m_table.columns[c].numbers;
        const std::vector<double>& times = m_table.columns[c + 1].numbers;
        const auto isDay = [](double value) {
            return std::isnan(value) || std::fmod(value, kSecondsOfDay) == 0.0;
        };
        if (!std::all_of(days.begin(), days.end(), isDay))
            continue;
        std::transform(days.begin(), days.end(), times.begin(), days.begin(), std::plus<>());
        columns[c].name += ' ' + columns[c + 1].name;
        takeOut(c + 1);
    }
}

/// A single column is drawn over the numbers of its rows.
void TableFile::addRowNumbers()
{
    const auto isNumeric = [](const TableColumn& column) { return column.kind != CellKind::Words; };
    if (std::count_if(m_layout.columns.begin(), m_layout.columns.end(), isNumeric) > 1)
        return;
    ColumnValues rows;
    rows.numbers.resize(m_table.rowCount);
    std::iota(rows.numbers.begin(), rows.numbers.end(), 1.0);
    m_table.columns.insert(m_table.columns.begin(), std::move(rows));
    m_layout.columns.insert(m_layout.columns.begin(), {"Row", CellKind::Number});
}

/// Tells something about parts of the file, if there are any.
void TableFile::note(const char* text, const QStringList& parts)
{
    if (!parts.isEmpty())
        m_notes.emplace_back(text,
                             std::initializer_list<QString> {QFileInfo(m_path).fileName(),
                                                             parts.join(QStringLiteral(", "))});
}

static vtkSmartPointer<vtkDataSet> withPlaces(vtkSmartPointer<vtkPoints> places)
{
    auto grid = vtkSmartPointer<vtkStructuredGrid>::New();
    grid->SetDimensions(static_cast<int>(places->GetNumberOfPoints()), 1, 1);
    grid->SetPoints(places);
    return grid;
}

static vtkSmartPointer<vtkDataSet> withoutPlaces(std::size_t rows)
{
    auto grid = vtkSmartPointer<vtkImageData>::New();
    grid->SetDimensions(static_cast<int>(rows), 1, 1);
    return grid;
}

vtkSmartPointer<vtkDataSet> TableFile::zone(std::size_t number)
{
    const std::vector<TableZone>& zones = m_table.zones;
    const std::size_t first = zones[number].firstRow;
    const std::size_t end =
        number + 1 < zones.size() ? zones[number + 1].firstRow : m_table.rowCount;
    const std::size_t rows = end - first;
    const auto result =
        m_places[0] ? withPlaces(placesOf(m_table, m_places, first, rows)) : withoutPlaces(rows);
    AttributeFiller filler(*result->GetPointData(), static_cast<int>(m_layout.columns.size()));
    for (std::size_t c = 0; c < m_layout.columns.size(); ++c) {
        if (m_table.columns[c].isDropped)
            continue;
        vtkNew<vtkDoubleArray> array;
        constexpr int kKeepMemory = 1;
        array->SetArray(m_table.columns[c].numbers.data() + first, static_cast<vtkIdType>(rows),
                        kKeepMemory);
        filler.add(*array, m_layout.columns[c].name);
    }
    return result;
}

vtkSmartPointer<vtkDataObject> TableFile::read(std::size_t, const ProgressCall& progress)
{
    m_table = readTable(m_path, m_layout, m_expectedRows, progress);
    requireGoodRows();
    if (m_table.badRowCount > 0)
        note(QT_TRANSLATE_NOOP("ReadMessage", "%1: bad rows were left out: %2."),
             {ReadMessage(
                  "%1 (%2)",
                  {QString::number(m_table.badRowCount), m_table.badRows.front().asArgument()})
                  .asArgument()});
    takeOutSkipped();
    TextDialect& dialect = m_layout.dialect;
    if (m_table.zones.size() < 2 && dialect.zones.value_or(TextZones::Words) == TextZones::Words)
        dialect.zones = divideByWords(m_table, m_layout) ? TextZones::Words : TextZones::One;
    joinDatesAndTimes();
    addRowNumbers();
    m_places = placeColumns(m_table, m_layout.columns);
    const std::vector<ReadMessage> notes =
        notesOf(QFileInfo(m_path).fileName(), m_layout.columns, m_table);
    m_notes.insert(m_notes.end(), notes.begin(), notes.end());
    listKinds();
    if (m_table.zones.size() == 1)
        return zone(0);
    auto result = vtkSmartPointer<vtkMultiBlockDataSet>::New();
    for (unsigned int i = 0; i < m_table.zones.size(); ++i) {
        result->SetBlock(i, zone(i));
        const std::string& name = m_table.zones[i].name;
        if (!name.empty())
            result->GetMetaData(i)->Set(vtkCompositeDataSet::NAME(), name.c_str());
    }
    return result;
}

std::vector<std::unique_ptr<DataFile>> openTables(const QStringList& paths,
                                                  const TextDialect& wanted)
{
    std::vector<std::unique_ptr<TableFile>> tables;
    for (const QString& path : paths)
        tables.push_back(std::make_unique<TableFile>(path, wanted));
    for (const auto& table : tables) {
        const auto lender = std::find_if(tables.begin(), tables.end(), [&](const auto& other) {
            return !table->layout().isNamed && other->layout().isNamed
                && other->layout().columns.size() == table->layout().columns.size();
        });
        if (lender != tables.end())
            table->takeNames((*lender)->layout());
    }
    std::vector<std::unique_ptr<DataFile>> result;
    for (std::unique_ptr<TableFile>& table : tables)
        result.push_back(std::move(table));
    return result;
}

bool isTable(const QString& path)
{
    for (const char* const other : {"<", "$MeshFormat"}) // whose inner parts may look like one
        if (firstBytes(path, 1024).trimmed().startsWith(other))
            return false;
    try {
        const TableLayout layout = layoutOf(sampleOf(path, {}), {});
        return !layout.columns.empty() && layout.isSure;
    } catch (const ReadFailure&) {
        return false;
    }
}

} // namespace corvala::host::io::reader
