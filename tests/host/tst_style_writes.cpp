// SPDX-License-Identifier: BSD-3-Clause
#include "event_log.h"
#include "samples/demo_data.h"
#include "sdk/toolbox/style_value.h"

#include <QtTest>

#include <cmath>
#include <cstdlib>
#include <new>

using namespace corvala;
using namespace corvala::host;

static std::size_t allocations = 0;

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    ++allocations;
    return std::malloc(size);
}
void* operator new(std::size_t size)
{
    if (void* const memory = operator new(size, std::nothrow))
        return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace {

using Path = std::vector<std::string>;

/// A write to a field plot with twelve maps, and its answer; failing writes must leave no trace.
struct WriteCase
{
    Path path;
    std::string maps;
    StyleInput value;
    StyleWriteResult_e result;
    int op = 255;
    CvlInt64 index = -1;
};

} // namespace
Q_DECLARE_METATYPE(WriteCase)

class tst_StyleWrites : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void answers_data();
    void answers();
    void refusesWithoutData();
    void raisesOneEventForAllMaps();
    void shapeAndCharacterExcludeEachOther();
    void surfacesDefaultDependsOnTheZone();
    void activeSets();
    void zoneViewOfActiveMaps();
    void plotTypeEmptiesThePicks();
    void contourGroupAnnouncesItself();
    void readsAllocateNothing();
    void readsOfMissingThingsFail();
    void recordsWrites();
};

void tst_StyleWrites::init()
{
    Document::instance().clear();
    std::string error;
    QVERIFY(samples::openDemo("field2d", 12, error));
}

void tst_StyleWrites::answers_data()
{
    const Path type {"FieldMap", "Mesh", "MeshType"};
    const Path thickness {"FieldMap", "Mesh", "LineThickness"};
    const Path shade {"FieldMap", "Shade", "Color"};
    const Path meshColor {"FieldMap", "Mesh", "Color"};
    const Path character {"FieldMap", "Scatter", "SymbolShape", "ASCIIShape", "ASCIIChar"};
    const Path group {"ContourGroups", "Var"};
    const Path active {"ActiveFieldMaps"};
    const NumberSet two = allUpTo(2);

    QTest::addColumn<WriteCase>("c");
    const auto row = [](const char* name) -> QTestData& { return QTest::newRow(name); };
    row("written") << WriteCase {type, "1-3", 2.0, StyleWrite_Ok};
    row("there already") << WriteCase {type, "1-3", 1.0, StyleWrite_Unchanged};
    row("one of them differs") << WriteCase {
        {"FieldMap", "Shade", "Color"}, "2,3", 2.0, StyleWrite_Ok};
    row("unknown path") << WriteCase {
        {"FieldMap", "Scatter", "KRange"}, "1", 1.0, StyleWrite_UnknownPath};
    row("group") << WriteCase {{"FieldMap", "Surfaces", "IRange"}, "1", 1.0, StyleWrite_NotALeaf};
    row("text for a number") << WriteCase {type, "1", std::string("2"), StyleWrite_WrongType};
    row("fraction for an enumeration") << WriteCase {type, "1", 0.5, StyleWrite_WrongType};
    row("NaN for an enumeration") << WriteCase {type, "1", std::nan(""), StyleWrite_WrongType};
    row("bool for an enumeration") << WriteCase {type, "1", false, StyleWrite_Ok};
    row("number for a bool") << WriteCase {{"FieldMap", "Mesh", "Show"}, "1", 0.0, StyleWrite_Ok};
    row("NaN for a bool is true") << WriteCase {
        {"FieldMap", "Mesh", "Show"}, "1", std::nan(""), StyleWrite_Unchanged};
    row("no such enumerator") << WriteCase {type, "1", 3.0, StyleWrite_OutOfRange};
    row("below the range") << WriteCase {thickness, "1", 0.0, StyleWrite_OutOfRange};
    row("smallest") << WriteCase {thickness, "1", 0.0001, StyleWrite_Ok};
    row("above the range") << WriteCase {thickness, "1", 100.5, StyleWrite_OutOfRange};
    row("NaN for a real") << WriteCase {thickness, "1", std::nan(""), StyleWrite_OutOfRange};
    row("infinite") << WriteCase {thickness, "1", HUGE_VAL, StyleWrite_OutOfRange};
    row("group 0") << WriteCase {{"FieldMap", "Group"}, "1", 0.0, StyleWrite_OutOfRange};
    row("group colour") << WriteCase {meshColor, "1", 101.0, StyleWrite_Ok};
    row("group colour for a shade") << WriteCase {shade, "1", 101.0, StyleWrite_OutOfRange};
    row("colour between") << WriteCase {meshColor, "1", 64.0, StyleWrite_OutOfRange};
    row("one wide character") << WriteCase {character, "1", std::string("\xf0\x9d\x84\x9e"),
                                            StyleWrite_Ok};
    row("two characters") << WriteCase {character, "1", std::string("AB"), StyleWrite_OutOfRange};
    row("no UTF-8") << WriteCase {character, "1", std::string("\xff"), StyleWrite_WrongType};
    row("no maps") << WriteCase {type, "none", 2.0, StyleWrite_BadObjects};
    row("no set") << WriteCase {type, "", 2.0, StyleWrite_BadObjects};
    row("a map too many") << WriteCase {type, "1-13", 2.0, StyleWrite_BadObjects};
    row("operator for a number") << WriteCase {type, "1", 2.0, StyleWrite_BadOperator, 1};
    row("maps for a frame value") << WriteCase {
        {"FieldLayers", "ShowShade"}, "1", true, StyleWrite_BadObjects};
    row("no such variable") << WriteCase {{"GlobalScatter", "Var"}, "", 7.0, StyleWrite_OutOfRange};
    row("last variable") << WriteCase {{"GlobalScatter", "Var"}, "", 6.0, StyleWrite_Ok};
    row("group without index") << WriteCase {group, "", 3.0, StyleWrite_OutOfRange};
    row("ninth group") << WriteCase {group, "", 3.0, StyleWrite_OutOfRange, 255, 9};
    row("eighth group") << WriteCase {group, "", 3.0, StyleWrite_Ok, 255, 8};
    row("set for a set") << WriteCase {active, "", two, StyleWrite_Ok, 2};
    row("number for a set") << WriteCase {active, "", 1.0, StyleWrite_WrongType, 1};
    row("unknown set operator") << WriteCase {active, "", two, StyleWrite_BadOperator, 3};
    row("empty set to add") << WriteCase {active, "", NumberSet(), StyleWrite_BadObjects, 1};
    row("active already") << WriteCase {active, "", two, StyleWrite_Unchanged, 1};
    row("a member too many") << WriteCase {active, "", allUpTo(13), StyleWrite_BadObjects, 2};
}

void tst_StyleWrites::answers()
{
    QFETCH(WriteCase, c);
    EventLog log;
    QCOMPARE(writeStyle(c.path, c.maps, c.value, c.op, c.index), c.result);
    const bool written = c.result == StyleWrite_Ok;
    const int steps = Document::instance().undo().stepCount();
    QCOMPARE(steps, written ? 1 : 0);
    QCOMPARE(log.take().startsWith(QStringLiteral("7:")), written);
}

void tst_StyleWrites::refusesWithoutData()
{
    Document::instance().detachDataSet();
    QCOMPARE(writeStyle({"FieldMap", "Group"}, "1", 2.0), StyleWrite_NoDocument);
    QCOMPARE(writeStyle({"FieldLayers", "ShowShade"}, "", true), StyleWrite_Ok);
    QVERIFY(Document::instance().deleteFrame(Document::instance().activeFrameId()));
    QCOMPARE(writeStyle({"FieldLayers", "ShowShade"}, "", true), StyleWrite_NoDocument);
    QCOMPARE(writeStyle({"BasicSize", "SymbolSizes", "Tiny"}, "", 0.25), StyleWrite_Ok);
}

void tst_StyleWrites::raisesOneEventForAllMaps()
{
    EventLog log;
    QCOMPARE(writeStyle({"FieldMap", "Mesh", "MeshType"}, "2-4,9", 0.0), StyleWrite_Ok);
    QCOMPARE(log.take(), QStringLiteral("7:FieldMap"));
    QCOMPARE(log.lastStyle().parameters, Path({"FieldMap", "Mesh", "MeshType"}));
    QCOMPARE(log.lastStyle().styleChanges.size(), std::size_t(1));
    QCOMPARE(QString::fromStdString(toText(log.lastStyle().styleChanges[0].maps, 12)),
             QStringLiteral("2-4,9"));
    QCOMPARE(Document::instance().undo().undoText(),
             QStringLiteral("Mesh type = Wire frame (4 field maps)"));
    writeStyle({"FieldMap", "Group"}, "2", 1234567.0);
    QCOMPARE(Document::instance().undo().undoText(),
             QStringLiteral("Group number = 1234567 (1 field map)"));
    writeStyle({"FieldMap", "Mesh", "LineThickness"}, "2", 0.3);
    QCOMPARE(Document::instance().undo().undoText(),
             QStringLiteral("Mesh line thickness = 0.3% (1 field map)"));
}

void tst_StyleWrites::shapeAndCharacterExcludeEachOther()
{
    const toolbox::StyleValue isCharacter("FieldMap", "Scatter", "SymbolShape", "IsASCII");
    writeStyle({"FieldMap", "Scatter", "SymbolShape", "ASCIIShape", "ASCIIChar"}, "1-2",
               std::string("A")); // the default character, chosen
    QCOMPARE(isCharacter.read<bool>(2), std::optional<bool>(true));
    writeStyle({"FieldMap", "Scatter", "SymbolShape", "GeomShape"}, "2", 0.0);
    QCOMPARE(isCharacter.read<bool>(1), std::optional<bool>(true));
    QCOMPARE(isCharacter.read<bool>(2), std::optional<bool>(false));
    Document::instance().undo().undo();
    QCOMPARE(isCharacter.read<bool>(2), std::optional<bool>(true));
}

void tst_StyleWrites::surfacesDefaultDependsOnTheZone()
{
    std::string error;
    QVERIFY(samples::openDemo("kinds", 0, error));
    const toolbox::StyleValue surfaces("FieldMap", "Surfaces", "SurfacesToPlot");
    QCOMPARE(surfaces.read<int>(1), std::optional<int>(SurfacesToPlot_None));
    QCOMPARE(surfaces.read<int>(2), std::optional<int>(SurfacesToPlot_BoundaryCellFaces));
}

void tst_StyleWrites::activeSets()
{
    const Frame& frame = *Document::instance().activeFrame();
    NumberSet set;
    fromText("2-4", 12, set);
    EventLog log;
    QCOMPARE(writeStyle({"ActiveFieldMaps"}, "", set, 2), StyleWrite_Ok);
    QCOMPARE(log.take(), QStringLiteral("7:ActiveFieldMaps"));
    QCOMPARE(QString::fromStdString(toText(frame.activeFieldMaps(), 12)), QStringLiteral("1,5-12"));
    QCOMPARE(Document::instance().undo().undoText(), QStringLiteral("Deactivate 3 field maps"));
    QCOMPARE(writeStyle({"ActiveFieldMaps"}, "", NumberSet()), StyleWrite_Ok);
    QVERIFY(frame.activeFieldMaps().isEmpty());
    Document::instance().undo().undo();
    Document::instance().undo().undo();
    QCOMPARE(QString::fromStdString(toText(frame.activeFieldMaps(), 12)), QStringLiteral("all"));
}

void tst_StyleWrites::zoneViewOfActiveMaps()
{
    std::string error;
    QVERIFY(samples::openDemo("transient", 0, error));
    NumberSet zones;
    zones.add(3); // of strand 1, field map 2
    EventLog log;
    QCOMPARE(writeStyle({"ActiveFieldZones"}, "", zones, 2), StyleWrite_Ok);
    QCOMPARE(log.take(), QStringLiteral("7:ActiveFieldZones"));
    QCOMPARE(
        QString::fromStdString(toText(Document::instance().activeFrame()->activeFieldMaps(), 3)),
        QStringLiteral("1,3"));
}

void tst_StyleWrites::plotTypeEmptiesThePicks()
{
    Document::instance().setPicks({{PickType_Zone, 3}});
    EventLog log;
    QCOMPARE(writeStyle({"PlotType"}, "", double(PlotType_LineXY)), StyleWrite_Ok);
    QVERIFY(log.take().startsWith(QStringLiteral("7:PlotType")));
    QVERIFY(Document::instance().activeFrame()->picks().empty());
}

void tst_StyleWrites::contourGroupAnnouncesItself()
{
    EventLog log;
    writeStyle({"ContourGroups", "Var"}, "", 4.0, 255, 3);
    QCOMPARE(log.take(), QStringLiteral("7:ContourGroups 21"));
}

void tst_StyleWrites::readsAllocateNothing()
{
    const CvlUniqueId frame = Document::instance().activeFrameId();
    int sum = 0;
    const std::size_t before = allocations;
    for (int map = 1; map <= 12; ++map) {
        const toolbox::FrameStyleValue type(frame, "FieldMap", "Mesh", "MeshType");
        const toolbox::FrameStyleValue length(frame, "FieldMap", "Mesh", "PatternLength");
        sum += type.read<int>(map).value_or(0) + int(length.read<double>(map).value_or(0.0));
    }
    QCOMPARE(allocations - before, std::size_t(0));
    QCOMPARE(sum, 36);
}

void tst_StyleWrites::readsOfMissingThingsFail()
{
    const CvlUniqueId frame = Document::instance().activeFrameId();
    const toolbox::FrameStyleValue type(frame, "FieldMap", "Mesh", "MeshType");
    QVERIFY(!type.read<int>(0) && !type.read<int>(13) && !type.read<int>(-1));
    QVERIFY(!type.read<std::string>(1));
    QVERIFY(!toolbox::FrameStyleValue(999, "FieldMap", "Group").read<int>(1));
    QVERIFY(!toolbox::StyleValue("FieldMap", "Nothing").read<int>(1));
    QVERIFY(!toolbox::StyleValue("FieldMap", "Mesh").read<int>(1));
    QVERIFY(!toolbox::StyleValue("ContourGroups", "Var").read<int>());
    QCOMPARE(toolbox::StyleValue("ContourGroups", "Var").read<int>(0, 1), std::optional<int>(5));
    QVERIFY(!toolbox::CheckedStyleValue("FieldMap", "Scatter", "KRange").isValid());
    QCOMPARE(toolbox::StyleValue("BasicSize", "LineThicknesses", "Huge").read<double>(),
             std::optional<double>(1.2));
}

void tst_StyleWrites::recordsWrites()
{
    Document::instance().clearWriteRecords();
    toolbox::CheckedStyleValue value("FieldMap", "Scatter", "KRange");
    std::vector<std::int32_t> ids =
        toolbox::StyleValue::initMacroIDsfromStyleValueNames(value.names());
    ids.push_back(-1);
    toolbox::Set maps;
    maps.add(2);
    toolbox::ArgList address;
    toolbox::StyleValue::setupSetValueArgList(ids.data(), &maps, -1, -1, toolbox::AssignOp_None,
                                              address);
    QCOMPARE(value.setFinalValue(3.0, address), StyleWrite_UnknownPath);
    const StyleWriteRecord& record = Document::instance().writeRecords().back();
    QCOMPARE(record.path, Path({"FieldMap", "Scatter", "KRange"}));
    QVERIFY(record.objects.contains(2));
    QCOMPARE(record.result, StyleWrite_UnknownPath);
}

QTEST_GUILESS_MAIN(tst_StyleWrites)
#include "tst_style_writes.moc"
