// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/io_support.h"
#include "tests/support/rows.h"

#include <QRegularExpression>

using namespace corvala::host;
using namespace corvala::host::io;
using corvala::tests::currentRow;
using corvala::tests::Rows;

/// One file as the table in an ORIGIN.md has it.
struct Listing
{
    struct Totals
    {
        double time;
        int zones;
        int points;
        int cells;
    };

    QString file;
    int zones = -1; ///< that are not empty, at the last time
    int points = 0;
    int cells = 0;
    QVector<Totals> times;
    QStringList rows; ///< "points cells I x J x K" of the zones listed
};

static QVector<Listing> listingsOf(const QString& origin)
{
    static const QRegularExpression heading("^### `([^`]+)` with ");
    static const QRegularExpression leaves(
        "^Leaves \\d+ \\(not null (\\d+)\\), points (\\d+), cells (\\d+)");
    static const QRegularExpression time(
        "^\\| ([-+.\\de]+) \\| (\\d+) \\| \\d+ \\| (\\d+) \\| (\\d+) \\| \\d+ \\|$");
    static const QRegularExpression zone(
        "^\\| `.*` \\| \\w+ \\| (\\d+) \\| (\\d+) \\| ([\\dx ]*) ?\\|$");
    QVector<Listing> result;
    QFile file(origin);
    if (!file.open(QIODevice::ReadOnly))
        return result;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        if (const auto match = heading.match(line); match.hasMatch())
            result.append({QFileInfo(origin).dir().filePath(match.captured(1)), -1, 0, 0, {}, {}});
        if (result.isEmpty())
            continue;
        Listing& last = result.last();
        if (const auto match = leaves.match(line); match.hasMatch()) {
            last.zones = match.captured(1).toInt();
            last.points = match.captured(2).toInt();
            last.cells = match.captured(3).toInt();
        } else if (const auto row = time.match(line); row.hasMatch()) {
            last.times.append({row.captured(1).toDouble(), row.captured(2).toInt(),
                               row.captured(3).toInt(), row.captured(4).toInt()});
        } else if (const auto entry = zone.match(line); entry.hasMatch()) {
            last.rows << QString("%1 %2 %3")
                             .arg(entry.captured(1), entry.captured(2),
                                  entry.captured(3).trimmed());
        }
    }
    return result;
}

/// Reads the data sets, each with a description ORIGIN.md, in the folder "data" of any folder
/// beside the sources, where there is one.
class TestReadDataFolders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (origins().isEmpty())
            skip("there are no data folders beside the sources", __LINE__);
    }

    void init() { m_folder = std::make_unique<DataFolder>(); }

    void asListed_data()
    {
        const Rows<Listing> row;
        for (const QString& origin : origins())
            for (const Listing& listing : listingsOf(origin))
                if (listing.points > 0)
                    row(qPrintable(QFileInfo(listing.file).fileName()), listing);
    }

    void asListed()
    {
        const auto [listing] = currentRow<Listing>();
        const ReadResult result = read({listing.file});
        QVERIFY2(result.data, qPrintable(result.error));
        const DataSet& data = *result.data;
        const std::vector<double> times = data.solutionTimes();
        const Listing::Totals last {times.empty() ? 0.0 : times.back(), listing.zones,
                                    listing.points, listing.cells};
        QVector<Listing::Totals> totals = listing.times;
        totals.append(last);
        for (const Listing::Totals& wanted : qAsConst(totals)) {
            const Listing::Totals found = totalsAt(data, wanted.time);
            QCOMPARE(found.zones, wanted.zones);
            QCOMPARE(found.points, wanted.points);
            QCOMPARE(found.cells, wanted.cells);
        }
        QStringList rows;
        for (const ZoneInfo& zone : data.zones)
            if (zone.strand == 0 || zone.time == last.time)
                rows << rowOf(zone);
        for (const QString& row : listing.rows)
            if (!row.startsWith("0 "))
                QVERIFY2(rows.removeOne(row), qPrintable(row));
    }

    void everythingElse_data()
    {
        const Rows<QString> row;
        for (const QString& origin : origins()) {
            QDirIterator files(QFileInfo(origin).path(), QDir::Files);
            while (files.hasNext()) {
                const QString path = files.next();
                if (QStringList {"pvd", "case", "vtm", "foam", "p3d"}.contains(
                        QFileInfo(path).suffix()))
                    row(qPrintable(QFileInfo(path).fileName()), path);
            }
        }
    }

    void everythingElse()
    {
        const auto [file] = currentRow<QString>();
        const ReadResult result = read({file});
        QVERIFY2(result.data, qPrintable(result.error));
        for (std::int64_t zone = 1; zone <= result.data->zoneCount(); ++zone)
            QVERIFY(result.data->geometry(zone));
    }

private:
    static QStringList origins()
    {
        QStringList result;
        const QDir beside(QStringLiteral(CORVALA_SOURCE_DIR "/.."));
        for (const QString& neighbour : beside.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QDir data(beside.filePath(neighbour + "/data"));
            for (const QString& set : data.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
                if (data.exists(set + "/ORIGIN.md") && !set.startsWith("table_"))
                    result << data.filePath(set + "/ORIGIN.md");
        }
        return result;
    }

    static Listing::Totals totalsAt(const DataSet& data, double time)
    {
        Listing::Totals result {time, 0, 0, 0};
        for (const ZoneInfo& zone : data.zones) {
            if (zone.strand != 0 && zone.time != time)
                continue;
            ++result.zones;
            result.points += static_cast<int>(zone.pointCount);
            result.cells += static_cast<int>(zone.cellCount);
        }
        return result;
    }

    static QString rowOf(const ZoneInfo& zone)
    {
        const QString size = zone.ordered ? QString("%1 x %2 x %3")
                                                .arg(zone.dimensions[0])
                                                .arg(zone.dimensions[1])
                                                .arg(zone.dimensions[2])
                                          : QString();
        return QString("%1 %2 %3").arg(zone.pointCount).arg(zone.cellCount).arg(size);
    }

    std::unique_ptr<DataFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestReadDataFolders)
#include "tst_read_data_folders.moc"
