// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/read_protocol.h"
#include "tests/support/rows.h"

#include <QtTest>

#include <nlohmann/json.hpp>

using namespace corvala::host;
using namespace corvala::host::io;
using namespace corvala::tests;

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
    const ReadMessage reason("%1 of %2 (%3)", {"1:2", "x", ReadMessage("so").asArgument()});
    index.notes = {ReadMessage("%1 empty blocks were left out.", {"3"}),
                   ReadMessage("%1: %2.", {"a", reason.asArgument()})};
    index.offers = {12, 3};
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
        QCOMPARE(describe(index->offers).last(), QString("12 boundary patch(es) were not read."));
        QCOMPARE(index->notes[0].toString(), QString("3 empty blocks were left out."));
        QCOMPARE(index->notes[1].toString(), QString("a: 1:2 of x (so)."));
    }

    void brokenIndexIsRefused_data()
    {
        const Rows<QByteArray, QByteArray> row;
        row("text as number", "/zones/0/points", "\"many\"");
        row("two dimensions", "/zones/0/size", "[1,2]");
        row("zones missing", "/zones", "7");
        row("vector that is none", "/vectors/2", "3");
        row("contour that is none", "/contours/0", "-1");
        row("note without text", "/notes/0", "{}");
    }

    void brokenIndexIsRefused()
    {
        const auto [place, value] = currentRow<QByteArray, QByteArray>();
        nlohmann::json json = nlohmann::json::parse(toJson(exampleIndex()));
        json.at(nlohmann::json::json_pointer(place.toStdString())) =
            nlohmann::json::parse(value.toStdString());
        QVERIFY(!indexFromJson(json.dump()));
    }

    void rubbishIsNoLine_data()
    {
        const Rows<QByteArray> row;
        row("empty", {});
        row("prose", "Reading...");
        row("other json", "[1, 2]");
        row("member missing", R"({"percent": 3, "file": "a"})");
        row("wrong type",
            R"({"percent": "3", "file": "a", "error": false,)"
            R"( "what": {"text": "b", "arguments": []}})");
    }

    void rubbishIsNoLine()
    {
        const auto [text] = currentRow<QByteArray>();
        QVERIFY(!lineFromJson(text.toStdString()));
    }

    void lineAndRequestSurviveTheWay()
    {
        ReadRequest request;
        request.files = QStringList {"/data/ä b.vtu", "/data/\"c\".vtu"};
        request.plot3d.bigEndian = false;
        request.choices.numberedTimes = true;
        request.limits.memoryBytes = std::int64_t(1) << 40;
        const std::optional<ReadRequest> same = requestFromJson(toJson(request));
        QVERIFY(same);
        QCOMPARE(same->files, request.files);
        QCOMPARE(same->plot3d.bigEndian, std::optional<bool>(false));
        QVERIFY(same->choices.numberedTimes && !same->choices.boundaryPatches);
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
        const Rows<bool, QString> row;
        row("text", true, "text, several grids, two-dimensional");
        row("binary", false,
            "binary, big-endian, double precision, with record marks, "
            "several grids, two-dimensional");
    }

    void layoutIsDescribed()
    {
        const auto [ascii, text] = currentRow<bool, QString>();
        Plot3DLayout layout;
        layout.ascii = ascii;
        layout.bigEndian = layout.doublePrecision = layout.byteCount = true;
        layout.multiGrid = layout.twoDimensional = true;
        layout.iblank = false;
        QCOMPARE(describe(layout), text);
    }
};

QTEST_GUILESS_MAIN(TestReadProtocol)
#include "tst_read_protocol.moc"
