// SPDX-License-Identifier: BSD-3-Clause
#include "host/style/map_table.h"
#include "host/style/number_set.h"
#include "host/style/schema.h"
#include "tests/support/rows.h"

#include <QtTest>

#include <random>

using namespace corvala::host;
using namespace corvala::tests;

static const Attribute& attributeOf(const std::vector<std::string>& path)
{
    const AttributeId id = Schema::instance().find(path);
    Q_ASSERT(id >= 0);
    return Schema::instance().at(id);
}

/// The schema, the sets and the column store, without a document.
class tst_StyleTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsPaths_data()
    {
        const Rows<QStringList, int> row; // path, kind (0 a value, else the answer)
        row("one name", {"PlotType"}, 0);
        row("two names", {"FieldMap", "Group"}, 0);
        row("five names", {"FieldMap", "Scatter", "SymbolShape", "ASCIIShape", "ASCIIChar"}, 0);
        row("group", {"FieldMap", "Surfaces", "IRange"}, kGroupAttribute);
        row("first name only", {"LineMap"}, kGroupAttribute);
        row("no such leaf", {"FieldMap", "Scatter", "KRange"}, kNoAttribute);
        row("other map kind", {"FieldMap", "Lines", "LineThickness"}, kNoAttribute);
        row("beyond a leaf", {"FieldMap", "Group", "Show"}, kNoAttribute);
        row("names run together", {"FieldMapGroup"}, kNoAttribute);
        row("empty name", {""}, kNoAttribute);
        row("no names", {}, kNoAttribute);
    }

    void findsPaths()
    {
        const auto [path, kind] = currentRow<QStringList, int>();
        std::vector<std::string> names;
        for (const QString& name : qAsConst(path))
            names.push_back(name.toStdString());
        const AttributeId id = Schema::instance().find(names);
        if (kind != 0) {
            QCOMPARE(id, kind);
            return;
        }
        QVERIFY(id >= 0);
        QCOMPARE(Schema::instance().at(id).names, names);
    }

    void namesHaveIdentifiers()
    {
        const Schema& schema = Schema::instance();
        QCOMPARE(schema.nameOf(schema.nameId("LineThickness")), "LineThickness");
        QCOMPARE(schema.nameId("NoSuchName"), -2);
        QVERIFY(!schema.nameOf(-2));
    }

    void readsSetTexts_data()
    {
        const Rows<QString, QString> row; // text, shortest (empty: refused)
        row("ranges", "1-3,7", "1-3,7");
        row("joined and sorted", "7,2,1,3-4", "1-4,7");
        row("pair", "3,2", "2-3");
        row("all by name", "all", "all");
        row("all by number", "1-9", "all");
        row("none", "none", "none");
        row("beyond the count", "8-10", "8-10");
        row("zero", "0", "");
        row("backwards", "3-1", "");
        row("empty", "", "");
        row("trailing comma", "1,", "");
        row("blank", "1, 2", "");
        row("overflow", "4294967296", "");
        row("words", "first", "");
    }

    void readsSetTexts()
    {
        const auto [text, shortest] = currentRow<QString, QString>();
        NumberSet set = allUpTo(2);
        const bool ok = fromText(text.toStdString(), 9, set);
        QCOMPARE(ok, !shortest.isEmpty());
        if (ok)
            QCOMPARE(QString::fromStdString(toText(set, 9)), shortest);
        else
            QVERIFY(set == allUpTo(2));
    }

    void behavesLikePlainVectors()
    {
        constexpr int kMaps = 3000; // two whole chunks and a part
        std::mt19937 random(7);
        MapTable table(Scope::FieldMap);
        table.setCount(kMaps);
        const Attribute& group = attributeOf({"FieldMap", "Group"});
        const Attribute& length = attributeOf({"FieldMap", "Mesh", "PatternLength"});
        const Attribute& character =
            attributeOf({"FieldMap", "Scatter", "SymbolShape", "ASCIIShape", "ASCIIChar"});
        std::vector<int> groups(kMaps, 1);
        std::vector<double> lengths(kMaps, 2.0);
        std::vector<std::string> characters(kMaps, "A");

        for (int round = 0; round < 60; ++round) {
            NumberSet maps;
            const auto first = static_cast<std::uint32_t>(1 + random() % kMaps);
            const auto last =
                std::min<std::uint32_t>(kMaps, first + static_cast<std::uint32_t>(random() % 2500));
            for (std::uint32_t map = first; map <= last;
                 map += 1 + static_cast<std::uint32_t>(round % 3))
                maps.add(map);
            const int value = 1 + static_cast<int>(random() % 3);
            table.apply(group, table.plan(group, maps, std::int32_t(value)), true);
            table.apply(length, table.plan(length, maps, value * 0.5), true);
            table.apply(character, table.plan(character, maps, std::to_string(value)), true);
            for (const std::uint32_t map : maps) {
                groups[map - 1] = value;
                lengths[map - 1] = value * 0.5;
                characters[map - 1] = std::to_string(value);
            }
            QVERIFY(table.plan(group, maps, std::int32_t(value)).empty());
        }
        for (int map = 1; map <= kMaps; ++map) {
            const auto i = static_cast<std::size_t>(map - 1);
            QCOMPARE(table.integer(group, map), groups[i]);
            QCOMPARE(table.real(length, map), lengths[i]);
            QCOMPARE(table.text(character, map), characters[i]);
        }
    }

    void rearrangesLikePlainVectors()
    {
        MapTable table(Scope::LineMap);
        table.setCount(2100);
        const Attribute& color = attributeOf({"LineMap", "Lines", "Color"});
        const Attribute& name = attributeOf({"LineMap", "Name"});
        table.apply(name, table.plan(name, allUpTo(3), std::string("first")), true);
        std::vector<int> colors;
        for (int map = 1; map <= 2100; ++map)
            colors.push_back(table.integer(color, map));

        std::vector<std::int64_t> newToOld;
        for (std::int64_t map = 2100; map > 1050; --map)
            newToOld.push_back(map);
        newToOld.push_back(0);
        newToOld.push_back(2);
        table.rearrange(newToOld);
        QCOMPARE(table.count(), std::int64_t(1052));
        for (std::size_t i = 0; i < newToOld.size(); ++i) {
            const auto map = static_cast<std::int64_t>(i + 1);
            if (newToOld[i] > 0) // colours follow their map, though they were defaults
                QCOMPARE(table.integer(color, map),
                         colors[static_cast<std::size_t>(newToOld[i] - 1)]);
            QCOMPARE(table.text(name, map), std::string(newToOld[i] == 2 ? "first" : "&DV&"));
        }
    }

    void defaultsCostNextToNothing()
    {
        constexpr std::int64_t kMaps = 1000000;
        MapTable table(Scope::FieldMap);
        table.setCount(kMaps);
        QVERIFY(table.memoryUse() <= std::size_t(64 * kMaps));
        const std::size_t before = table.memoryUse();
        const Attribute& type = attributeOf({"FieldMap", "Mesh", "MeshType"});
        table.apply(type, table.plan(type, allUpTo(kMaps), std::int32_t(2)), true);
        QVERIFY(table.memoryUse() - before <= 4 * MapTable::kChunkSize * 2);
    }
};

QTEST_GUILESS_MAIN(tst_StyleTable)
#include "tst_style_table.moc"
