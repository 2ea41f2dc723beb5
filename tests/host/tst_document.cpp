// SPDX-License-Identifier: BSD-3-Clause
#include "event_log.h"
#include "samples/demo_data.h"
#include "sdk/base/cvl.h"

#include <vtkDataSet.h>

#include <QtTest>

using namespace corvala;
using namespace corvala::host;

class tst_Document : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void framesAnnounceThemselvesFirst();
    void identifiersAreNeverUsedAgain();
    void openingRaisesThePlotTypeFirst();
    void candidateZones_data();
    void candidateZones();
    void renames();
    void deletedFieldMapsComeBack();
    void keepsStyleAsDefaultsMove();
    void lineMapsKeepTheirZones();
    void colors();

private:
    static void open(const char* name, std::int64_t scale = 0)
    {
        std::string error;
        QVERIFY2(samples::openDemo(name, scale, error), error.c_str());
    }
    static QString zoneName(CvlInt64 zone)
    {
        char* text = CvlUtilZoneGetNameForFrame(CvlUtilFrameGetUniqueID(), zone);
        const QString name = QString::fromUtf8(text);
        CvlUtilStringDealloc(&text);
        return name;
    }
};

void tst_Document::init()
{
    Document::instance().clear();
}

void tst_Document::framesAnnounceThemselvesFirst()
{
    EventLog log;
    Document& document = Document::instance();
    const CvlUniqueId first = document.activeFrameId();
    const CvlUniqueId second = document.addFrame();
    QCOMPARE(log.take(), QStringLiteral("51 50"));
    QVERIFY(document.activateFrame(first));
    QCOMPARE(log.take(), QStringLiteral("51"));
    QVERIFY(document.activateFrame(first));
    QCOMPARE(log.take(), QString());
    QVERIFY(!document.activateFrame(12345));
    QVERIFY(document.deleteFrame(second)); // not the active one
    QCOMPARE(log.take(), QStringLiteral("50"));
    QVERIFY(document.deleteFrame(first));
    QCOMPARE(log.take(), QStringLiteral("51 50"));
    QCOMPARE(CvlUtilFrameGetUniqueID(), CvlUniqueId(0));
    QCOMPARE(CvlUtilFrameGetPlotType(), CvlInt64(PlotType_None));
    document.clear();
    QCOMPARE(log.take(), QStringLiteral("51 0"));
}

void tst_Document::identifiersAreNeverUsedAgain()
{
    Document& document = Document::instance();
    const CvlUniqueId first = document.activeFrameId();
    document.deleteFrame(first);
    QVERIFY(document.addFrame() != first);
}

void tst_Document::openingRaisesThePlotTypeFirst()
{
    EventLog log;
    open("field3d", 4);
    QCOMPARE(log.take(), QStringLiteral("7:PlotType 5"));
    open("field3d", 8);
    QCOMPARE(log.take(), QStringLiteral("5"));
    QVERIFY(Document::instance().detachDataSet());
    QCOMPARE(log.take(), QStringLiteral("8"));
    QVERIFY(!Document::instance().detachDataSet());
}

void tst_Document::candidateZones_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<QString>("zones"); // of the three maps
    QTest::newRow("first time") << 0.0 << "1 2 0";
    QTest::newRow("between times") << 1.5 << "1 3 0";
    QTest::newRow("last digits differ") << 2.0 - 1e-12 << "1 4 6";
    QTest::newRow("both strands") << 3.0 << "1 5 7";
    QTest::newRow("before all") << -1.0 << "1 0 0";
    QTest::newRow("after all") << 4.0 << "1 0 0";
}

void tst_Document::candidateZones()
{
    QFETCH(double, time);
    QFETCH(QString, zones);
    open("transient");
    EventLog log;
    QVERIFY(Document::instance().setSolutionTime(time));
    QCOMPARE(log.take(), time == 0.0 ? QString() : QStringLiteral("29"));
    QStringList found;
    const CvlUniqueId frame = CvlUtilFrameGetUniqueID();
    for (CvlInt64 map = 1; map <= CvlUtilFieldMapGetCountForFrame(frame); ++map)
        found << QString::number(CvlUtilFieldMapGetCandidateZoneForFrame(frame, map));
    QCOMPARE(found.join(' '), zones);
    QCOMPARE(CvlUtilFieldMapGetStrandID(frame, 3), CvlInt64(7));
    QCOMPARE(CvlUtilFieldMapGetModeForFrame(frame, 3), CvlInt64(FieldMapMode_Strand));
    QCOMPARE(CvlUtilFieldMapGetModeForFrame(frame, 1), CvlInt64(FieldMapMode_Static));
}

void tst_Document::renames()
{
    open("kinds");
    EventLog log;
    QVERIFY(Document::instance().renameZone(2, "wing/upper"));
    QCOMPARE(zoneName(2), QStringLiteral("wing/upper"));
    QVERIFY(Document::instance().renameVariable(1, "x [m]"));
    QCOMPARE(log.take(), QStringLiteral("14 16"));
    QVERIFY(!Document::instance().renameZone(9, "none"));
    QVERIFY(!Document::instance().renameZone(1, "\xc3"));
    Document::instance().undo().undo();
    Document::instance().undo().undo();
    QCOMPARE(zoneName(2), QStringLiteral("ZONE 12"));
}

void tst_Document::deletedFieldMapsComeBack()
{
    open("transient");
    writeStyle({"FieldMap", "Group"}, "3", 5.0);
    NumberSet strand;
    strand.add(2);
    EventLog log;
    QVERIFY(Document::instance().deleteFieldMaps(strand));
    QCOMPARE(log.take(), QStringLiteral("2 10"));
    const Frame& frame = *Document::instance().activeFrame();
    const AttributeId group = Schema::instance().find({"FieldMap", "Group"});
    QCOMPARE(frame.fieldMapCount(), CvlInt64(2));
    QCOMPARE(frame.data()->zoneCount(), std::int64_t(3));
    QCOMPARE(frame.fieldMaps().strand(2), 7);
    QCOMPARE(frame.fieldInteger(group, 2), 5);
    QVERIFY(frame.data()->geometry(2)); // still the strand's own zone
    Document::instance().undo().undo();
    QCOMPARE(frame.fieldMapCount(), CvlInt64(3));
    QCOMPARE(frame.fieldInteger(group, 3), 5);
    QCOMPARE(frame.activeFieldMaps().cardinality(), std::uint64_t(3));
    QVERIFY(!Document::instance().deleteFieldMaps(allUpTo(4)));
}

void tst_Document::keepsStyleAsDefaultsMove()
{
    open("kinds"); // map 1 is a volume, which shows no surfaces by default; map 2 is none
    const AttributeId surfaces =
        Schema::instance().find({"FieldMap", "Surfaces", "SurfacesToPlot"});
    const Frame& frame = *Document::instance().activeFrame();
    writeStyle({"FieldMap", "Surfaces", "SurfacesToPlot"}, "2", double(SurfacesToPlot_None));
    const NumberSet others = allUpTo(frame.fieldMapCount()) - (allUpTo(2) - allUpTo(1));
    QVERIFY(Document::instance().deleteFieldMaps(others));
    QCOMPARE(frame.fieldInteger(surfaces, 1), int(SurfacesToPlot_None));
}

void tst_Document::lineMapsKeepTheirZones()
{
    open("xy", 3);
    for (int map = 1; map <= 3; ++map)
        writeStyle({"LineMap", "Assign", "Zone"}, std::to_string(map), 5.0 - map); // 4, 3, 2
    NumberSet third;
    third.add(3);
    QVERIFY(Document::instance().deleteFieldMaps(third));
    const Frame& frame = *Document::instance().activeFrame();
    const auto zones = [&frame] {
        const AttributeId zone = Schema::instance().find({"LineMap", "Assign", "Zone"});
        QStringList numbers;
        for (CvlInt64 map = 1; map <= 3; ++map)
            numbers << QString::number(frame.lineInteger(zone, map));
        return numbers.join(' ');
    };
    QCOMPARE(zones(), QStringLiteral("3 1 2")); // the second one's zone is gone
    Document::instance().undo().undo();
    QCOMPARE(zones(), QStringLiteral("4 3 2"));
}

void tst_Document::colors()
{
    std::uint8_t r = 9, g = 9, b = 9;
    QVERIFY(CvlUtilColorGetRGB(1, &r, &g, &b));
    QCOMPARE(int(r) + g + b, 3 * 255);
    QVERIFY(CvlUtilColorGetRGB(109, &r, nullptr, nullptr));
    QVERIFY(!CvlUtilColorGetRGB(64, &r, &g, &b));
    QCOMPARE(int(r), 0);
    EventLog log;
    QVERIFY(Document::instance().setPaletteColor(5, {1, 2, 3}));
    QCOMPARE(log.take(), QStringLiteral("22"));
    QVERIFY(CvlUtilColorGetRGB(5, &r, &g, &b));
    QCOMPARE(int(b), 3);
}

QTEST_GUILESS_MAIN(tst_Document)
#include "tst_document.moc"
