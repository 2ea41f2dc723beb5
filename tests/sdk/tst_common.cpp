// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/base/cvl.h"
#include "sdk/common/app_lock.h"
#include "sdk/common/common.h"
#include "tests/support/document_fixture.h"
#include "tests/support/modal_responder.h"
#include "tests/support/rows.h"

#include <QtTest>

#include <vtkCellData.h>
#include <vtkDoubleArray.h>
#include <vtkImageData.h>
#include <vtkPointData.h>

using namespace corvala;
using namespace corvala::tests;
using host::Document;

namespace {

/// A line of three points.
class LineSource : public host::ZoneSource
{
public:
    vtkSmartPointer<vtkDataSet> zone(std::int64_t) const override
    {
        auto line = vtkSmartPointer<vtkImageData>::New();
        line->SetDimensions(3, 1, 1);
        const auto add = [](vtkFieldData* to, const char* name, int count) {
            auto values = vtkSmartPointer<vtkDoubleArray>::New();
            values->SetName(name);
            for (int i = 0; i < count; ++i)
                values->InsertNextValue(i);
            to->AddArray(values);
        };
        add(line->GetPointData(), "points", 3);
        add(line->GetCellData(), "cells", 2);
        return line;
    }
};

/// Line maps 1, 2 and 3 draw values at points, values in cells, and nothing, over the position.
void openCellData()
{
    auto data = std::make_shared<host::DataSet>();
    data->variables = {{"X", {}, {}, 0},
                       {"P", {}, "points", 0},
                       {"%1 in cells", {}, "cells", 0},
                       {"gone", {}, "gone", 0}};
    host::ZoneInfo zone;
    zone.ordered = true;
    zone.dimensions = {{3, 1, 1}};
    zone.pointCount = 3;
    data->zones = {zone};
    data->source = std::make_shared<LineSource>();
    Document::instance().execute(host::AttachData {{}, data, PlotType_LineXY, 3});
    for (const int map : {1, 2, 3}) {
        const host::NumberSet one = host::NumberSet::bitmapOf(1, map);
        Document::instance().execute(
            host::SetStyle {{"LineMap", "Assign", "YAxisVar"}, map + 1.0, one});
    }
}

} // namespace

class tst_Common : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Document::instance().clear(); }
    void names()
    {
        openDemo("kinds");
        const CvlUniqueId frame = CvlUtilFrameGetUniqueID();
        QCOMPARE(sdk::zoneNameWithIndexFormattedForFrame(frame, 5), std::string("5: wing [upper]"));
        QCOMPARE(sdk::variableNameWithIndexFormattedForAliasesForFrame(frame, 7),
                 std::string("7: Pressure"));
        QCOMPARE(sdk::variableNameFormattedForAliases(7), std::string("Pressure"));
        for (const CvlInt64 bad : {0, 9, -1}) {
            QCOMPARE(sdk::zoneNameWithIndexFormattedForFrame(frame, bad), std::string());
            QCOMPARE(sdk::variableNameFormattedForAliasesForFrame(frame, bad), std::string());
        }
        QCOMPARE(sdk::variableNameWithIndexFormattedForAliasesForFrame(frame + 1, 1),
                 std::string());
    }

    void activeZonesFollowTheirMaps()
    {
        openDemo("transient");
        QCOMPARE(sdk::getActiveZones().count(), CvlInt64(7));
        const host::NumberSet strand = host::NumberSet::bitmapOf(1, 2);
        Document::instance().execute(
            host::SetStyle {{"ActiveFieldMaps"}, strand, {}, -1, AssignOp_Remove});
        const toolbox::Set zones = sdk::getActiveZones();
        QCOMPARE(zones.count(), CvlInt64(3));
        QCOMPARE(zones.next(1), CvlInt64(6));
        QVERIFY(!sdk::isVolumeZone(1));
        openDemo("kinds");
        QVERIFY(sdk::isVolumeZone(1) && sdk::isVolumeZone(4) && !sdk::isVolumeZone(9));
    }

    void assignsTheScatterVariableOnce()
    {
        QVERIFY(!sdk::autoAssignScatterVariable()); // no data
        openDemo("field2d", 2);
        QVERIFY(sdk::autoAssignScatterVariable());
        QCOMPARE(frameValue("GlobalScatter", "Var"), 3);
        QCOMPARE(Document::instance().undo().stepCount(), 0); // undone, it would only come again
        int events = 0;
        const boost::signals2::scoped_connection counter =
            Document::instance().events().connect([&](const host::StateEvent&) { ++events; });
        QVERIFY(!sdk::autoAssignScatterVariable());
        QCOMPARE(events, 0);
    }

    void assignsContourVariablesInOneStep()
    {
        QVERIFY(!sdk::autoAssignAllContourGroupVariables(
            ContourLevelsInitializationMode_ResetIfVariableIsNew));
        openDemo("field2d", 2);
        QVERIFY(sdk::autoAssignAllContourGroupVariables(
            ContourLevelsInitializationMode_ResetIfVariableIsNew));
        QCOMPARE(frameValue("ContourGroups", "Var", 1), 5); // as it was
        QVERIFY(frameValue("ContourGroups", "Var", 8) > 2); // no coordinate
        QCOMPARE(Document::instance().undo().stepCount(), 1);
    }

    void confirmsZonesWithoutPointValues()
    {
        openCellData();
        ModalResponder responder;
        QVERIFY(sdk::confirmLineMapZoneSelection(1)); // for no map
        QVERIFY(sdk::confirmLineMapZoneSelection(1, setOf({1, 99})));
        responder.reject().accept();
        QVERIFY(!sdk::confirmLineMapZoneSelection(1, setOf({1, 2})));
        QVERIFY(sdk::confirmLineMapZoneSelection(1, setOf({3})));
        QVERIFY(responder.isSettled());
        const QString question = QStringLiteral("Zone: Zone 1 has no values at its points of %1.\n"
                                                "Do you want to use it anyway?");
        QCOMPARE(responder.takeSeen(),
                 (QStringList {question.arg("%1 in cells"), question.arg("gone")}));

        auto positions =
            std::make_shared<host::DataSet>(*Document::instance().activeFrame()->data());
        positions->variables.resize(1);
        Document::instance().execute(host::AttachData {{}, positions, PlotType_LineXY, 1});
        QVERIFY(sdk::confirmLineMapZoneSelection(1, setOf({1}))); // its second variable is nowhere
    }

    void lockIsRecursive()
    {
        {
            const sdk::AppLock outer;
            const sdk::AppLock inner(ImplicitMacroRecording_None);
            QVERIFY(Document::instance().isLocked());
        }
        QVERIFY(!Document::instance().isLocked());
    }

private:
    static int frameValue(const char* group, const char* name, CvlInt64 index = -1)
    {
        return toolbox::StyleValue(group, name).read<int>(0, index).value_or(-1);
    }
};

QTEST_MAIN(tst_Common)
#include "tst_common.moc"
