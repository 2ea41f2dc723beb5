// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"
#include "samples/demo_data.h"
#include "sdk/base/cvl.h"
#include "sdk/toolbox/string_list.h"
#include "sdk/toolbox/style_value.h"

#include <QtTest>

using namespace corvala;
using toolbox::ArgList;
using toolbox::Set;
using toolbox::StyleValue;

class tst_Toolbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sets();
    void argumentsKeepTheirTypes();
    void writesGoWhereTheArgumentsSay();
    void setValuedWrites();
    void readsSetsOfTheFrame();
    void readsNumbersThatFit();
    void readsNothingWhereNothingIs();
    void stringLists();
};

void tst_Toolbox::sets()
{
    Set set;
    QVERIFY(set.isEmpty());
    QVERIFY(!set.add(0) && !set.add(-3) && !set.add(CvlInt64(1) << 33));
    for (const CvlInt64 member : {9, 2, 9, 4})
        QVERIFY(set.add(member));
    QString members;
    for (CvlInt64 m = set.next(0); m != 0; m = set.next(m))
        members += QString::number(m);
    QCOMPARE(members, QStringLiteral("249"));
    QVERIFY(set.contains(4) && !set.contains(3) && !set.contains(-1));

    Set copy = set;
    copy.add(5);
    QCOMPARE(set.count(), CvlInt64(3));
    const Set moved = std::move(copy);
    QCOMPARE(moved.count(), CvlInt64(4));
    QVERIFY(copy.isEmpty()); // NOLINT: a moved-from set is empty and usable
    QVERIFY(copy.add(1));
    QVERIFY(set.addRange(100, 1000000));
    QCOMPARE(set.count(), CvlInt64(3 + 999901));
}

void tst_Toolbox::argumentsKeepTheirTypes()
{
    ArgList list;
    list.append("number", CvlInt64(3));
    list.append("real", 2.5);
    list.append("text", std::string("x"));
    QVERIFY(list.has("real") && !list.has("none"));
    QCOMPARE(*list.get<CvlInt64>("number"), CvlInt64(3));
    QVERIFY(!list.get<double>("number") && !list.get<double>("none"));
    list.append("number", 4.0);
    QCOMPARE(*list.get<double>("number"), 4.0);
    list.clear();
    QVERIFY(!list.has("text"));
}

/// Address of a write of the path for the maps.
static ArgList addressOf(const StyleValue& value, const Set* maps,
                         toolbox::AssignOp_e op = toolbox::AssignOp_None, CvlInt64 index = -1)
{
    std::vector<std::int32_t> ids = StyleValue::initMacroIDsfromStyleValueNames(value.names());
    ids.push_back(-1);
    ArgList address;
    StyleValue::setupSetValueArgList(ids.data(), maps, index, -1, op, address);
    return address;
}

void tst_Toolbox::writesGoWhereTheArgumentsSay()
{
    std::string error;
    QVERIFY(samples::openDemo("field2d", 4, error));
    Set maps;
    maps.addRange(2, 3);
    StyleValue thickness("FieldMap", nullptr, "Mesh", "LineThickness"); // null names are dropped
    QCOMPARE(thickness.setFinalValue(0.4, addressOf(thickness, &maps)), StyleWrite_Ok);
    QCOMPARE(thickness.read<double>(1), std::optional<double>(0.15));
    QCOMPARE(thickness.read<double>(3), std::optional<double>(0.4));
    QCOMPARE(thickness.setFinalValue(true, addressOf(thickness, &maps)), StyleWrite_Ok);
    QCOMPARE(thickness.read<double>(3), std::optional<double>(1.0));
    QCOMPARE(thickness.setFinalValue(std::string("1"), addressOf(thickness, &maps)),
             StyleWrite_WrongType);
    QCOMPARE(thickness.setFinalValue(0.4, ArgList()), StyleWrite_UnknownPath);
    const StyleValue unknown("FieldMap", "Mesh", "Line");
    QCOMPARE(thickness.setFinalValue(0.4, addressOf(unknown, &maps)), StyleWrite_UnknownPath);
    QCOMPARE(thickness.read<double>(3), std::optional<double>(1.0));
    const Set moved = std::move(maps);
    QCOMPARE(thickness.setFinalValue(0.4, addressOf(thickness, &maps)), StyleWrite_BadObjects);

    StyleValue variable("ContourGroups", "Var");
    QCOMPARE(variable.setFinalValue(3.0, addressOf(variable, nullptr, toolbox::AssignOp_None, 5)),
             StyleWrite_Ok);
    QCOMPARE(variable.read<int>(0, 5), std::optional<int>(3));
}

void tst_Toolbox::setValuedWrites()
{
    std::string error;
    QVERIFY(samples::openDemo("xy", 4, error));
    Set maps;
    maps.add(2);
    StyleValue active("ActiveLineMaps");
    QCOMPARE(active.setFinalValue(maps, addressOf(active, nullptr, toolbox::AssignOp_Remove)),
             StyleWrite_Ok);
    QVERIFY(!CvlUtilLineMapIsActiveForFrame(active.frame(), 2));
    QCOMPARE(active.setFinalValue(maps, addressOf(active, nullptr, toolbox::AssignOp_Add)),
             StyleWrite_Ok);
    QVERIFY(CvlUtilLineMapIsActiveForFrame(active.frame(), 2));
}

void tst_Toolbox::readsSetsOfTheFrame()
{
    std::string error;
    QVERIFY(samples::openDemo("transient", 0, error));
    QCOMPARE(StyleValue("ActiveFieldMaps").read<Set>()->count(), CvlInt64(3));
    QCOMPARE(StyleValue("ActiveFieldZones").read<Set>()->count(), CvlInt64(7));
    QVERIFY(!StyleValue("ActiveFieldMaps").read<int>());
    QVERIFY(!StyleValue("PlotType").read<Set>());
}

void tst_Toolbox::readsNumbersThatFit()
{
    std::string error;
    QVERIFY(samples::openDemo("xy", 2, error));
    Set maps;
    maps.add(1);
    StyleValue end("LineMap", "Curves", "IndVarMax");
    QCOMPARE(end.setFinalValue(-2147483648.0, addressOf(end, &maps)), StyleWrite_Ok);
    QCOMPARE(end.read<int>(1), std::optional<int>(-2147483647 - 1));
    QCOMPARE(end.setFinalValue(2147483648.0, addressOf(end, &maps)), StyleWrite_Ok);
    QVERIFY(!end.read<int>(1));
    QCOMPARE(end.read<CvlInt64>(1), std::optional<CvlInt64>(2147483648));
    QCOMPARE(end.setFinalValue(1e300, addressOf(end, &maps)), StyleWrite_Ok);
    QVERIFY(!end.read<CvlInt64>(1));
    QCOMPARE(end.read<double>(1), std::optional<double>(1e300));
}

void tst_Toolbox::readsNothingWhereNothingIs()
{
    std::string error;
    QVERIFY(samples::openDemo("xy", 2, error));
    const CvlUniqueId frame = CvlUtilFrameGetUniqueID();
    const StyleValue zone("LineMap", "Assign", "Zone");
    const StyleValue variable("ContourGroups", "Var");
    QVERIFY(zone.read<int>(2) && variable.read<int>(0, 8));
    const CvlInt64 wrapsToOne = (CvlInt64(1) << 32) + 1;
    for (const CvlInt64 bad : {CvlInt64(0), CvlInt64(-1), CvlInt64(9), wrapsToOne}) {
        QVERIFY(!zone.read<int>(bad));
        QVERIFY(!variable.read<int>(0, bad));
    }
    for (const CvlUniqueId gone : {CvlUniqueId(0), frame + 1})
        QVERIFY(!toolbox::FrameStyleValue(gone, "LineMap", "Assign", "Zone").read<int>(1));
    QVERIFY(!StyleValue("LineMap", "Assign").read<int>(1)); // a group
    QVERIFY(!StyleValue("LineMap", "Assign", "Zones").read<int>(1));
    QVERIFY(!StyleValue(nullptr).read<int>(1));
    QVERIFY(!StyleValue("LineMap", "Name").read<int>(1));
    QVERIFY(!zone.read<std::string>(1));
}

void tst_Toolbox::stringLists()
{
    toolbox::StringList list;
    QCOMPARE(list.join(","), std::string());
    list.append("a");
    list.append("b");
    QCOMPARE(list.join(", "), std::string("a, b"));
}

QTEST_GUILESS_MAIN(tst_Toolbox)
#include "tst_toolbox.moc"
