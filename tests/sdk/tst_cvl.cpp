// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/base/cvl.h"

#include "tests/host/event_log.h"
#include "tests/support/document_fixture.h"
#include "tests/support/rows.h"

#include <QtTest>

#include <limits>

using namespace corvala;
using namespace corvala::tests;
using host::Document;

namespace {

/// A question about a frame; those that take no number, or ask the active frame, ignore it.
using Ask = std::function<CvlInt64(CvlUniqueId frame, CvlInt64 number)>;
/// A command for a set of line maps.
using Command = std::function<CvlBool(CvlSetHandle maps)>;

constexpr CvlInt64 kLowest = std::numeric_limits<CvlInt64>::min();
constexpr CvlInt64 kHighest = std::numeric_limits<CvlInt64>::max();
/// Becomes 1 where somebody drops the upper half.
constexpr CvlInt64 kWrapsToOne = (CvlInt64(1) << 32) + 1;

/// Whether there was a text, which is given back.
CvlInt64 isText(char* text)
{
    const bool isThere = text != nullptr;
    CvlUtilStringDealloc(&text);
    return isThere;
}

CvlInt64 countOf(CvlSetHandle set)
{
    const CvlInt64 count = CvlUtilSetGetMemberCount(set);
    CvlUtilSetDealloc(&set);
    return count;
}

} // namespace

/// The flat functions: what they answer when there is nothing to answer about.
class tst_Cvl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Document::instance().clear(); }
    void answersNothing_data()
    {
        const Rows<QString, int, Ask,
                   CvlInt64>
            add; // demo, good (a number that has an answer; 0: takes no number), ask, nothing
        const auto row = [&add](const char* name, const char* demo, int good, const Ask& ask,
                                CvlInt64 nothing = 0) { add(name, demo, good, ask, nothing); };
        using Frame = CvlUniqueId;
        using Number = CvlInt64;

        row("data", "xy", 0, [](Frame, Number) { return CvlUtilDataSetIsAvailable(); });
        row("data of a frame", "xy", 0,
            [](Frame f, Number) { return CvlUtilDataSetIsAvailableForFrame(f); });
        row("frames", "xy", 0, [](Frame, Number) { return CvlUtilFrameGetCount(); });
        row("plot type", "xy", 0, [](Frame, Number) { return CvlUtilFrameGetPlotType(); });
        row("plot type of a frame", "xy", 0,
            [](Frame f, Number) { return CvlUtilFrameGetPlotTypeForFrame(f); });
        row("frame", "xy", 0,
            [](Frame, Number) { return static_cast<CvlInt64>(CvlUtilFrameGetUniqueID()); });

        row("field maps", "kinds", 0,
            [](Frame f, Number) { return CvlUtilFieldMapGetCountForFrame(f); });
        row("active field map", "kinds", 1,
            [](Frame f, Number n) { return CvlUtilFieldMapIsActiveForFrame(f, n); });
        row("candidate zone", "transient", 2,
            [](Frame f, Number n) { return CvlUtilFieldMapGetCandidateZoneForFrame(f, n); });
        row(
            "mode", "transient", 2,
            [](Frame f, Number n) { return CvlUtilFieldMapGetModeForFrame(f, n); },
            FieldMapMode_Static);
        row("strand", "transient", 2,
            [](Frame f, Number n) { return CvlUtilFieldMapGetStrandID(f, n); });
        row("volume zones", "kinds", 1,
            [](Frame f, Number n) { return CvlUtilFieldMapHasVolumeZonesForFrame(f, n); });
        row("ordered zones", "kinds", 1,
            [](Frame f, Number n) { return CvlUtilFieldMapHasOrderedZonesForFrame(f, n); });
        row("ordered volume zones", "kinds", 1,
            [](Frame f, Number n) { return CvlUtilFieldMapHasIJKOrderedZonesForFrame(f, n); });
        row("field layer", "kinds", 0,
            [](Frame f, Number) { return CvlUtilFieldLayerIsActiveForFrame(f, "ShowMesh"); });
        row("line layer", "xy", 0,
            [](Frame f, Number) { return CvlUtilLinePlotLayerIsActiveForFrame(f, "ShowLines"); });

        row("zones", "kinds", 0, [](Frame f, Number) { return CvlUtilZoneGetCountForFrame(f); });
        row("variables", "kinds", 0, [](Frame f, Number) { return CvlUtilVarGetCountForFrame(f); });
        row("enabled zones", "kinds", 0,
            [](Frame, Number) { return countOf(CvlUtilZoneGetEnabled()); });
        row("enabled variables", "kinds", 0,
            [](Frame, Number) { return countOf(CvlUtilVarGetEnabled()); });
        row("zone name", "kinds", 1,
            [](Frame f, Number n) { return isText(CvlUtilZoneGetNameForFrame(f, n)); });
        row("map of a zone", "kinds", 1, [](Frame, Number n) { return CvlUtilZoneGetFieldMap(n); });
        row("ordered zone", "kinds", 1,
            [](Frame f, Number n) { return CvlUtilZoneIsOrderedForFrame(f, n); });
        row("zone size", "kinds", 1, [](Frame f, Number n) {
            return CvlUtilZoneGetInfoForFrame(f, n, nullptr, nullptr, nullptr);
        });

        row("line maps", "xy", 0,
            [](Frame f, Number) { return CvlUtilLineMapGetCountForFrame(f); });
        row("active line map", "xy", 1,
            [](Frame f, Number n) { return CvlUtilLineMapIsActiveForFrame(f, n); });
        row("line map name", "xy", 1,
            [](Frame f, Number n) { return isText(CvlUtilLineMapGetNameForFrame(f, n)); });
        row("stored name", "xy", 1, [](Frame f, Number n) {
            return isText(
                reinterpret_cast<char*>(CvlUtilLineMapStyleGetArbValueForFrame(f, n, "Name")));
        });

        row("picks", "xy", 0, [](Frame, Number) { return CvlUtilPickListGetCount(); });
        row("type of a pick", "xy", 1, [](Frame, Number n) { return CvlUtilPickListGetType(n); });
        row("picked zone", "xy", 1,
            [](Frame, Number n) { return CvlUtilPickListGetZoneNumber(n); });
        row("picked line map", "xy", 2,
            [](Frame, Number n) { return CvlUtilPickListGetLineMapNumber(n); });
    }

    void answersNothing()
    {
        const auto [demo, good, ask, nothing] = currentRow<QString, int, Ask, CvlInt64>();
        openDemo(qPrintable(demo));
        Document& document = Document::instance();
        document.execute(host::SetPicks {{{PickType_Zone, 1}, {PickType_LineMap, 1}}});
        const CvlUniqueId frame = document.activeFrameId();
        QVERIFY2(ask(frame, good) != nothing, "otherwise the rest says nothing");

        if (good > 0)
            for (const CvlInt64 bad :
                 {CvlInt64(0), CvlInt64(-1), CvlInt64(1000), kWrapsToOne, kLowest, kHighest})
                QCOMPARE(ask(frame, bad), nothing);
        QVERIFY(document.execute(host::DeleteFrame {}).isDone());
        for (const CvlUniqueId gone :
             {frame, CvlUniqueId(0), std::numeric_limits<CvlUniqueId>::max()})
            QCOMPARE(ask(gone, good), nothing);
    }

    void layersByName()
    {
        openDemo("field2d");
        const CvlUniqueId frame = CvlUtilFrameGetUniqueID();
        QVERIFY(CvlUtilFieldLayerIsActiveForFrame(frame, "ShowMesh"));
        QVERIFY(CvlUtilLinePlotLayerIsActiveForFrame(frame, "ShowLines"));
        for (const char* bad :
             {"ShowNothing", "", "FieldLayers", static_cast<const char*>(nullptr)}) {
            QVERIFY(!CvlUtilFieldLayerIsActiveForFrame(frame, bad));
            QVERIFY(!CvlUtilLinePlotLayerIsActiveForFrame(frame, bad));
        }
        openDemo("xy");
        for (const char* bad : {"Assign", "Nothing", "", static_cast<const char*>(nullptr)})
            QVERIFY(!CvlUtilLineMapStyleGetArbValueForFrame(CvlUtilFrameGetUniqueID(), 1, bad));
    }

    void refusesBadMaps_data()
    {
        const Rows<Command> row;
        row("rename", [](CvlSetHandle maps) { return CvlUtilLineMapSetName(maps, "name"); });
        row("rename to nothing",
            [](CvlSetHandle maps) { return CvlUtilLineMapSetName(maps, nullptr); });
        row("rename to no UTF-8",
            [](CvlSetHandle maps) { return CvlUtilLineMapSetName(maps, "\xff"); });
        row("delete", CvlUtilLineMapDelete);
        row("to the top", CvlUtilLineMapShiftToTop);
        row("to the bottom", CvlUtilLineMapShiftToBottom);
    }

    void refusesBadMaps()
    {
        const auto [command] = currentRow<Command>();
        openDemo("xy");
        CvlSetHandle maps = CvlUtilSetAlloc(0);
        EventLog log;
        QVERIFY(!command(nullptr));
        QVERIFY(!command(maps));
        QVERIFY(CvlUtilSetAddMember(maps, 6, 0) && CvlUtilSetAddMember(maps, 7, 0));
        QVERIFY(!command(maps)); // the last map, and one beyond it
        QCOMPARE(CvlUtilLineMapCreate(kWrapsToOne), CvlInt64(0));
        CvlUtilSetDealloc(&maps);
        QCOMPARE(log.take(), QString());
        QCOMPARE(Document::instance().undo().stepCount(), 0);
    }

    void countsOfUnorderedZones()
    {
        openDemo("field2d");
        CvlInt64 points = 0;
        CvlInt64 last = 0;
        QVERIFY(CvlUtilZoneGetInfoForFrame(CvlUtilFrameGetUniqueID(), 2, &points, nullptr, &last));
        QCOMPARE(points, CvlInt64(63));
        QCOMPARE(last, CvlInt64(1));
    }

    void setsByHandle()
    {
        CvlSetHandle set = CvlUtilSetAlloc(1);
        QVERIFY(CvlUtilSetIsEmpty(set));
        for (const CvlInt64 bad : {CvlInt64(0), CvlInt64(-1), kWrapsToOne, kLowest, kHighest})
            QVERIFY(!CvlUtilSetAddMember(set, bad, 1));
        for (const CvlInt64 member : {7, 3, 7})
            QVERIFY(CvlUtilSetAddMember(set, member, 1));
        QCOMPARE(CvlUtilSetGetMemberCount(set), CvlInt64(2));
        QCOMPARE(CvlUtilSetGetNextMember(set, 0), CvlInt64(3));
        QCOMPARE(CvlUtilSetGetNextMember(set, 3), CvlInt64(7));
        for (const CvlInt64 end : {CvlInt64(7), CvlInt64(-1), kWrapsToOne, kLowest, kHighest})
            QCOMPARE(CvlUtilSetGetNextMember(set, end), CvlInt64(0));
        CvlUtilSetDealloc(&set);
        QVERIFY(!set);

        CvlUtilSetDealloc(&set);
        CvlUtilSetDealloc(nullptr);
        CvlUtilStringDealloc(nullptr);
        QVERIFY(CvlUtilSetIsEmpty(nullptr));
        QVERIFY(!CvlUtilSetAddMember(nullptr, 1, 1));
        QCOMPARE(CvlUtilSetGetMemberCount(nullptr), CvlInt64(0));
        QCOMPARE(CvlUtilSetGetNextMember(nullptr, 0), CvlInt64(0));
    }
};

QTEST_GUILESS_MAIN(tst_Cvl)
#include "tst_cvl.moc"
