// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/read_protocol.h"

#include <QtTest>

#include <nlohmann/json.hpp>

using namespace corvala::host;
using namespace corvala::host::io;

static DataSetIndex exampleIndex()
{
    DataSetIndex index;
    index.data.title = "wing";
    index.data.files = {"/data/wing.cgns"};
    ZoneInfo zone;
    zone.name = "Base/Flügel";
    zone.ordered = true;
    zone.dimensions = {3, 4, 1};
    zone.pointCount = 12;
    zone.cellCount = 6;
    zone.cellDimension = 2;
    zone.strand = 2;
    zone.time = 0.1;
    index.data.zones = {zone};
    index.data.variables = {{"X", {}, {}, 0}, {"Momentum Y", {}, "Momentum", 1}};
    index.data.vectorVariables = {{1, 2, 0}};
    index.data.contourVariables = {2};
    index.data.isPlanar = true;
    index.zoneFiles = {"zone-0.xml"};
    index.notes = {ReadMessage("%1 empty blocks were left out.", {"3"})};
    index.plot3d = Plot3DLayout();
    index.plot3d->iblank = true;
    return index;
}

class TestReadProtocol : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void indexSurvivesTheWay()
    {
        const std::optional<DataSetIndex> index = indexFromJson(toJson(exampleIndex()));
        QVERIFY(index);
        QCOMPARE(toJson(*index), toJson(exampleIndex()));
        QCOMPARE(index->data.zones[0].name, std::string("Base/Flügel"));
        QCOMPARE(index->data.zones[0].time, 0.1);
        QCOMPARE(index->data.zones[0].dimensions[1], std::int64_t(4));
        QCOMPARE(index->data.variables[1].array, std::string("Momentum"));
        QCOMPARE(index->data.variables[1].component, 1);
        QCOMPARE(index->plot3d->iblank, std::optional<bool>(true));
        QCOMPARE(index->plot3d->ascii, std::optional<bool>());
        QCOMPARE(index->notes[0].toString(), QString("3 empty blocks were left out."));
    }

    void brokenIndexIsRefused_data()
    {
        QTest::addColumn<QByteArray>("place");
        QTest::addColumn<QByteArray>("value");
        QTest::newRow("zone without file") << QByteArray("/zones/0/source") << QByteArray("1");
        QTest::newRow("negative file") << QByteArray("/zones/0/source") << QByteArray("-1");
        QTest::newRow("text as number") << QByteArray("/zones/0/points") << QByteArray("\"many\"");
        QTest::newRow("two dimensions") << QByteArray("/zones/0/size") << QByteArray("[1,2]");
        QTest::newRow("zones missing") << QByteArray("/zones") << QByteArray("7");
        QTest::newRow("file outside")
            << QByteArray("/zoneFiles/0") << QByteArray("\"../../home/secret\"");
        QTest::newRow("vector that is none") << QByteArray("/vectors/2") << QByteArray("3");
        QTest::newRow("contour that is none") << QByteArray("/contours/0") << QByteArray("-1");
        QTest::newRow("note without text") << QByteArray("/notes/0") << QByteArray("{}");
    }

    void brokenIndexIsRefused()
    {
        QFETCH(QByteArray, place);
        QFETCH(QByteArray, value);
        nlohmann::json json = nlohmann::json::parse(toJson(exampleIndex()));
        json.at(nlohmann::json::json_pointer(place.toStdString())) =
            nlohmann::json::parse(value.toStdString());
        QVERIFY(!indexFromJson(json.dump()));
    }

    void rubbishIsNoLine_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("prose") << QByteArray("Reading...");
        QTest::newRow("other json") << QByteArray("[1, 2]");
        QTest::newRow("member missing") << QByteArray(R"({"percent": 3, "file": "a"})");
        QTest::newRow("wrong type") << QByteArray(R"({"percent": "3", "file": "a", "error": false,)"
                                                  R"( "what": {"text": "b", "arguments": []}})");
    }

    void rubbishIsNoLine()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!lineFromJson(text.toStdString()));
    }

    void lineAndRequestSurviveTheWay()
    {
        ReadRequest request;
        request.files = QStringList {"/data/ä b.vtu", "/data/\"c\".vtu"};
        request.plot3d.bigEndian = false;
        request.limits.memoryBytes = std::int64_t(1) << 40;
        const std::optional<ReadRequest> same = requestFromJson(toJson(request));
        QVERIFY(same);
        QCOMPARE(same->files, request.files);
        QCOMPARE(same->plot3d.bigEndian, std::optional<bool>(false));
        QCOMPARE(same->limits.memoryBytes, request.limits.memoryBytes);

        const auto line = lineFromJson(toJson(ReaderLine {250, "a\nb", ReadMessage("c"), true}));
        QVERIFY(line);
        QCOMPARE(line->percent, 100);
        QCOMPARE(line->file, std::string("a\nb"));
        QVERIFY(line->isError);
        QVERIFY(toJson(ReaderLine {0, "a\nb", ReadMessage("c"), false}).find('\n')
                == std::string::npos);
        const auto noUtf8 = lineFromJson(toJson(ReaderLine {0, "\xff", ReadMessage("c"), false}));
        QVERIFY(noUtf8);
    }

    void argumentsAreFilledInOnce()
    {
        const ReadMessage message("%1: %2 of %3%", {"%2", "7", "100"});
        QCOMPARE(message.toString(), QString("%2: 7 of 100%"));
        QCOMPARE(ReadMessage("%1 and %2", {"one"}).toString(), QString("one and %2"));
    }

    void layoutIsDescribed_data()
    {
        QTest::addColumn<bool>("ascii");
        QTest::addColumn<QString>("text");
        QTest::newRow("text") << true << "text, several grids, two-dimensional";
        QTest::newRow("binary") << false
                                << "binary, big-endian, double precision, with record marks, "
                                   "several grids, two-dimensional";
    }

    void layoutIsDescribed()
    {
        QFETCH(bool, ascii);
        Plot3DLayout layout;
        layout.ascii = ascii;
        layout.bigEndian = layout.doublePrecision = layout.byteCount = true;
        layout.multiGrid = layout.twoDimensional = true;
        layout.iblank = false;
        QTEST(describe(layout), "text");
    }
};

QTEST_GUILESS_MAIN(TestReadProtocol)
#include "tst_read_protocol.moc"
