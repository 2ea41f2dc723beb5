// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/base/cvl.h"
#include "tests/host/document_driver.h"
#include "tests/host/event_log.h"
#include "tests/support/rows.h"

#include <vtkDataSet.h>

#include <QtTest>

using namespace corvala;
using namespace corvala::host;
using namespace corvala::tests;

class tst_Document : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { document().clear(); }
    void framesAnnounceThemselvesFirst()
    {
        EventLog log;
        const CvlUniqueId first = document().activeFrameId();
        execute(R"({"frame": "new"})");
        const CvlUniqueId second = document().activeFrameId();
        QCOMPARE(log.take(), QStringLiteral("51 50"));
        execute(R"({"frame": 1})");
        QCOMPARE(log.take(), QStringLiteral("51"));
        QCOMPARE(execute(R"({"frame": 1})"), StyleWrite_Unchanged);
        execute(R"({"frame": "delete"})");
        QCOMPARE(document().activeFrameId(), second);
        execute(R"({"frame": "delete"})");
        QCOMPARE(log.take(), QStringLiteral("51 50 51 50"));
        QCOMPARE(CvlUtilFrameGetUniqueID(), CvlUniqueId(0));
        QCOMPARE(CvlUtilFrameGetPlotType(), CvlInt64(PlotType_None));
        document().clear();
        QCOMPARE(log.take(), QStringLiteral("51 0"));
        QVERIFY(document().activeFrameId() != first && document().activeFrameId() != second);
    }

    void openingRaisesThePlotTypeFirst()
    {
        EventLog log;
        std::string error;
        QVERIFY(samples::openDemo("field3d", 4, error));
        QCOMPARE(log.take(), QStringLiteral("7:PlotType 5"));
        QVERIFY(samples::openDemo("field3d", 8, error));
        QCOMPARE(log.take(), QStringLiteral("5"));
        execute(R"({"data": "none"})");
        QCOMPARE(log.take(), QStringLiteral("8"));
    }

    void candidateZones_data()
    {
        const Rows<double, QString> row; // time, zones (of the three maps)
        row("first time", 0.0, "1 2 0");
        row("between times", 1.5, "1 3 0");
        row("last digits differ", 2.0 - 1e-12, "1 4 6");
        row("both strands", 3.0, "1 5 7");
        row("before all", -1.0, "1 0 0");
        row("after all", 4.0, "1 0 0");
    }

    void candidateZones()
    {
        const auto [time, zones] = currentRow<double, QString>();
        openOnly("transient");
        EventLog log;
        document().execute(SetSolutionTime {time});
        QCOMPARE(log.take(), time == 0.0 ? QString() : QStringLiteral("29"));
        QStringList found;
        const CvlUniqueId id = frame().id();
        for (CvlInt64 map = 1; map <= frame().fieldMapCount(); ++map)
            found << QString::number(CvlUtilFieldMapGetCandidateZoneForFrame(id, map));
        QCOMPARE(found.join(' '), zones);
        QCOMPARE(CvlUtilFieldMapGetStrandID(id, 3), CvlInt64(7));
        QCOMPARE(CvlUtilFieldMapGetModeForFrame(id, 3), CvlInt64(FieldMapMode_Strand));
        QCOMPARE(CvlUtilFieldMapGetModeForFrame(id, 1), CvlInt64(FieldMapMode_Static));
    }

    void facts_data()
    {
        const Rows<QString, QStringList, QString, int, QString> row;
        const char* const isCharacter = "FieldMap Scatter SymbolShape IsASCII";
        const QString character = R"({"set": ["FieldMap", "Scatter", "SymbolShape", "ASCIIShape",
                                          "ASCIIChar"], "maps": "1-2", "value": "A"})";
        const QString shape = R"({"set": ["FieldMap", "Scatter", "SymbolShape", "GeomShape"],
                              "maps": "2", "value": 0})";
        row("a character is chosen", "field2d", {character}, isCharacter, 2, "1");
        row("a shape instead", "field2d", {character, shape}, isCharacter, 2, "0");
        row("for one map", "field2d", {character, shape}, isCharacter, 1, "1");

        const char* const surfaces = "FieldMap Surfaces SurfacesToPlot";
        row("volumes have no surfaces", "kinds", {}, surfaces, 1, "10");
        row("others have", "kinds", {}, surfaces, 2, "0");
        row("a value stays as defaults move", "kinds",
            {R"({"set": ["FieldMap", "Surfaces", "SurfacesToPlot"], "maps": "2", "value": 10})",
             R"({"deleteMaps": "1,3-8"})"},
            surfaces, 1, "10");
        row("style goes with its map", "transient",
            {R"({"set": ["FieldMap", "Group"], "maps": "3", "value": 5})",
             R"({"deleteMaps": "2"})"},
            "FieldMap Group", 2, "5");
        row("a zone stands for its map", "transient",
            {R"({"active": "FieldZones", "maps": "3", "op": "remove"})"}, "ActiveFieldMaps", 0,
            "\"1,3\"");

        const QStringList zones {
            R"({"set": ["LineMap", "Assign", "Zone"], "maps": "1", "value": 4})",
            R"({"set": ["LineMap", "Assign", "Zone"], "maps": "2", "value": 3})",
            R"({"deleteMaps": "3", "of": "FieldMaps"})"};
        row("a line map keeps its zone", "xy", zones, "LineMap Assign Zone", 1, "3");
        row("or takes the first", "xy", zones, "LineMap Assign Zone", 2, "1");
    }

    void facts()
    {
        const auto [demo, operations, path, map, value] =
            currentRow<QString, QStringList, QString, int, QString>();
        openOnly(qPrintable(demo));
        for (const QString& operation : operations)
            QCOMPARE(execute(operation.toUtf8()), StyleWrite_Ok);
        std::vector<std::string> names;
        for (const QString& name : path.split(' '))
            names.push_back(name.toStdString());
        QCOMPARE(QString::fromStdString(toJson(document().read(names, map).value()).dump()), value);
    }

    void deletedZonesLeaveTheOthersTheirData()
    {
        openOnly("transient");
        execute(R"({"pick": [{"zone": 3}]})");
        execute(R"({"deleteMaps": "2"})");
        QCOMPARE(frame().data()->zoneCount(), std::int64_t(3));
        QCOMPARE(frame().fieldMaps().strand(2), 7);
        QVERIFY(frame().data()->geometry(2)); // still the strand's own zone
        QVERIFY(frame().picks().empty());
    }

    void lineMaps_data()
    {
        const Rows<QString, QString>
            add; // operation, names (were a b- c d e f, the second one not active)
        const auto row = [&add](const char* operation, const char* names) {
            add(operation, operation, names);
        };
        row(R"({"moveMaps": "3,5", "to": "top"})", "ceab-df");
        row(R"({"moveMaps": "1,2", "to": "bottom"})", "cdefab-");
        row(R"({"moveMaps": "1,2", "to": "top"})", "ab-cdef");
        row(R"({"deleteMaps": "1,4-5"})", "b-cf");
        row(R"({"deleteMaps": "all"})", "");
        row(R"({"copyMaps": "2,6"})", "ab-cdefb-f");
        row(R"({"createMaps": 1})", "ab-cdef&DV&");
        row(R"({"rename": "x", "lineMap": "1-2"})", "xx-cdef");
    }

    void lineMaps()
    {
        const auto [operation, wanted] = currentRow<QString, QString>();
        openOnly("xy", 6);
        for (std::uint32_t map = 1; map <= 6; ++map)
            document().execute(
                RenameLineMaps {NumberSet::bitmapOf(1, map), std::string(1, char('a' + map - 1))});
        execute(R"({"active": "LineMaps", "maps": "2", "op": "remove"})");
        execute(operation.toUtf8());
        QString names;
        for (CvlInt64 map = 1; map <= frame().lineMapCount(); ++map) {
            names += QString::fromStdString(
                std::get<std::string>(document().read({"LineMap", "Name"}, map).value()));
            if (!frame().activeLineMaps().contains(static_cast<std::uint32_t>(map)))
                names += '-';
        }
        QCOMPARE(names, wanted);
    }

    void fillsInNames_data()
    {
        const Rows<QString, QString, int>
            add; // stored, shown (of map 2: Moment over Time), plotType
        const auto row = [&add](const char* name, const char* stored, const char* shown,
                                int plotType = 3) { add(name, stored, shown, plotType); };
        row("dependent", "&DV&", "Moment");
        row("numbers", "&D#&/&I#&/&Z#&/&M#&/&X#&/&Y#&", "3/1/1/2/1/1");
        row("independent and zone", "&IV& in &ZN&", "Time in Zone 1");
        row("polar", "&DV& of &IV&", "Gain of Angle", 5);
        row("unknown token", "&QQ& &dv& &DV", "&QQ& &dv& &DV");
        row("ampersand before a token", "&&DV&&", "&Moment&");
        row("empty", "", "");
        row("unicode", "ζ &M#&", "ζ 2");
    }

    void fillsInNames()
    {
        const auto [stored, shown, plotType] = currentRow<QString, QString, int>();
        openOnly("xy", 6);
        document().execute(SetStyle {{"PlotType"}, double(plotType)});
        document().execute(RenameLineMaps {NumberSet::bitmapOf(1, 2), stored.toStdString()});
        char* text = CvlUtilLineMapGetNameForFrame(frame().id(), 2);
        QCOMPARE(QString::fromUtf8(text), shown);
        CvlUtilStringDealloc(&text);
    }

    void colors()
    {
        std::uint8_t r = 9, g = 9, b = 9;
        QVERIFY(CvlUtilColorGetRGB(1, &r, &g, &b));
        QCOMPARE(int(r) + g + b, 3 * 255);
        QVERIFY(CvlUtilColorGetRGB(109, &r, nullptr, nullptr));
        QVERIFY(!CvlUtilColorGetRGB(64, &r, &g, &b));
        QCOMPARE(int(r), 0);
        EventLog log;
        execute(R"({"paletteColor": 5, "rgb": [1, 2, 3]})");
        QCOMPARE(log.take(), QStringLiteral("22"));
        QVERIFY(CvlUtilColorGetRGB(5, &r, &g, &b));
        QCOMPARE(int(b), 3);
    }
};

QTEST_GUILESS_MAIN(tst_Document)
#include "tst_document.moc"
