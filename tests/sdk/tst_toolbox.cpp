// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/base/cvl.h"
#include "sdk/toolbox/style_value.h"
#include "tests/support/document_fixture.h"

#include <QtTest>

#include <cstdlib>
#include <new>

using namespace corvala;
using toolbox::ArgList;
using toolbox::Set;
using toolbox::StyleValue;

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

class tst_Toolbox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sets()
    {
        Set set;
        QVERIFY(set.isEmpty());
        QVERIFY(!set.add(0) && !set.add(-3) && !set.add(CvlInt64(1) << 33));
        for (const CvlInt64 member : {9, 2, 9, 4})
            QVERIFY(set.add(member));
        QString members;
        for (const CvlInt64 m : set)
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

    void writesGoWhereTheArgumentsSay()
    {
        corvala::tests::openDemo("field2d", 4);
        Set maps;
        maps.addRange(2, 3);
        StyleValue thickness("FieldMap", nullptr, "Mesh",
                             "LineThickness"); // null names are dropped
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
        QCOMPARE(
            variable.setFinalValue(3.0, addressOf(variable, nullptr, toolbox::AssignOp_None, 5)),
            StyleWrite_Ok);
        QCOMPARE(variable.read<int>(0, 5), std::optional<int>(3));
    }

    void readsNumbersThatFit()
    {
        corvala::tests::openDemo("xy", 2);
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

    void readsNothingWhereNothingIs()
    {
        corvala::tests::openDemo("xy", 2);
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
        QVERIFY(!zone.read<Set>(1) && !StyleValue("ActiveLineMaps").read<int>());
    }

    void readsOfNumbersAllocateNothing()
    {
        corvala::tests::openDemo("field2d", 12);
        const CvlUniqueId frame = CvlUtilFrameGetUniqueID();
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
};

QTEST_GUILESS_MAIN(tst_Toolbox)
#include "tst_toolbox.moc"
