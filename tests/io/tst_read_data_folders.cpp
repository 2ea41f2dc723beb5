// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/io_support.h"
#include "tests/support/rows.h"

#include <QRegularExpression>

using namespace corvala::host;
using namespace corvala::host::io;
using namespace corvala::tests;

/// By file, what the tables of an ORIGIN.md say of it: "time: zones points cells", without time for
/// the last one. Zones without points do not count.
static QMap<QString, QStringList> totalsOf(const QString& origin)
{
    static const QRegularExpression heading("^### `([^`]+)` with ");
    static const QRegularExpression last("^Leaves \\d+ \\(not null (\\d+)\\), points ([1-9]\\d*), "
                                         "cells (\\d+)");
    static const QRegularExpression at(
        "^\\| ([-+.\\de]+) \\| (\\d+) \\| \\d+ \\| (\\d+) \\| (\\d+) \\| \\d+ \\|$");
    QMap<QString, QStringList> totals;
    QFile file(origin);
    if (!file.open(QIODevice::ReadOnly))
        return totals;
    QString path;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        if (const auto name = heading.match(line); name.hasMatch())
            path = QFileInfo(origin).dir().filePath(name.captured(1));
        if (const auto row = last.match(line); row.hasMatch())
            totals[path] << ": " + row.capturedTexts().mid(1).join(' ');
        if (const auto row = at.match(line); row.hasMatch())
            totals[path] << row.captured(1) + ": " + row.capturedTexts().mid(2).join(' ');
    }
    return totals;
}

static QString totalsAt(const DataSet& data, const QString& when)
{
    const std::vector<double> times = data.solutionTimes();
    const double time = !when.isEmpty() ? when.toDouble() : times.empty() ? 0.0 : times.back();
    std::int64_t zones = 0;
    std::int64_t points = 0;
    std::int64_t cells = 0;
    for (const ZoneInfo& zone : data.zones) {
        if (zone.strand == 0 || zone.time == time) {
            ++zones;
            points += zone.pointCount;
            cells += zone.cellCount;
        }
    }
    return QString("%1: %2 %3 %4").arg(when).arg(zones).arg(points).arg(cells);
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

    void readsWhatIsDescribed_data()
    {
        const Rows<QString, QStringList> row;
        for (const QString& origin : origins()) {
            QMap<QString, QStringList> totals = totalsOf(origin);
            QDirIterator files(QFileInfo(origin).path(), {"*.pvd", "*.case", "*.vtm", "*.foam"},
                               QDir::Files);
            while (files.hasNext())
                totals[files.next()]; // also without a table
            for (auto file = totals.cbegin(); file != totals.cend(); ++file)
                row(QFileInfo(file.key()).fileName(), file.key(), file.value());
        }
    }

    void readsWhatIsDescribed()
    {
        const auto [file, totals] = currentRow<QString, QStringList>();
        const DataFolder temporary;
        const auto result = dataOf({file});
        for (const QString& wanted : totals)
            QCOMPARE(totalsAt(*result, wanted.section(':', 0, 0)), wanted);
        for (std::int64_t zone = 1; zone <= result->zoneCount(); ++zone)
            QVERIFY(result->geometry(zone));
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
};

QTEST_GUILESS_MAIN(TestReadDataFolders)
#include "tst_read_data_folders.moc"
