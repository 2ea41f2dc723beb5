// SPDX-License-Identifier: BSD-3-Clause
#include "tests/views/dialog_fixture.h"

#include "sdk/base/cvl.h"
#include "tests/support/rows.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QTabWidget>
#include <QtTest>

using namespace corvala;
using namespace corvala::tests;

namespace {

constexpr int kGroup = 2;
constexpr int kMeshType = 5;

void raise(int code, const std::vector<std::string>& parameters = {})
{
    host::StateEvent event;
    event.code = static_cast<StateCode_e>(code);
    event.parameters = parameters;
    event.frame = host::Document::instance().activeFrameId();
    host::Document::instance().raise(event);
}

} // namespace

class tst_DialogRefresh : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void followsRelevantChangesOnly_data()
    {
        const Rows<QString, QList<int>, QString, int> row;
        row("data, maps, frames", "field2d",
            {0, 1, 2, 3, 5, 8, 9, 10, 11, 14, 16, 19, 21, 22, 29, 44, 50, 51, 56}, "", 1);
        row("other codes", "field2d",
            {4, 6, 12, 13, 15, 18, 20, 23, 30, 43, 45, 49, 52, 57, 100, 101, 102}, "", 0);
        row("line map renamed, field plot", "field2d", {17}, "", 0);
        row("line map renamed, line plot", "xy", {17}, "", 1);
        for (const char* style :
             {"ActiveFieldMaps", "ActiveFieldZones", "ActiveLineMaps", "FieldMap", "FieldLayers",
              "GlobalScatter", "Linking", "LineMap", "LinePlotLayers", "PlotType", "FrameMode"})
            row(style, "field2d", {7}, style, 1);
        for (const char* style : {"Mesh", "fieldmap", "FieldMaps", "Blanking", "GlobalRGB",
                                  "RawArray", "ContourGroups"})
            row(style, "xy", {7}, style, 0);
    }

    void followsRelevantChangesOnly()
    {
        const auto [demo, codes, parameter, refreshes] =
            currentRow<QString, QList<int>, QString, int>();
        DialogFixture fixture(demo.toLatin1());
        for (const int code : codes) {
            raise(code,
                  parameter.isEmpty() ? std::vector<std::string>()
                                      : std::vector<std::string> {parameter.toStdString()});
            QCOMPARE(fixture.takeRefreshes(), 0);
            runUntilIdle();
            QVERIFY2(fixture.takeRefreshes() == refreshes, qPrintable(QString::number(code)));
        }
    }

    void showsWhatTheRefreshFound()
    {
        DialogFixture fixture("field2d");
        const auto cellPicture = [&fixture] {
            const QRect cell = fixture.table().visualRect(fixture.model().index(2, kMeshType));
            return fixture.table().viewport()->grab(cell).toImage();
        };
        const QImage before = cellPicture();
        change("FieldMap.Mesh.MeshType", "3", 2);
        QVERIFY(cellPicture() != before);
        QVERIFY(host::Document::instance().execute(host::DeleteMaps {host::allUpTo(4)}).isDone());
        runUntilIdle();
        QCOMPARE(fixture.table().verticalScrollBar()->maximum(), 0);
        QCOMPARE(fixture.table().rowAt(fixture.table().viewport()->height() - 1), -1);
    }

    void closesEvenWhileARefreshIsPending()
    {
        DialogFixture fixture("field2d");
        raise(StateCode_ZoneRenamed);
        host::Document::instance().execute(host::DetachData {});
        QVERIFY(fixture.dialog().isVisible());
        runUntilIdle();
        QVERIFY(!fixture.dialog().isVisible());
    }

    void readsNothingWhileClosed()
    {
        DialogFixture fixture("field2d", 1000);
        setStyle("FieldMap.Group", "1", 2); // the refresh for this is dropped
        fixture.dialog().close();
        const CvlInt64 before = CvlAppGetReadCount();
        runUntilIdle();
        setStyle("FieldMap.Mesh.MeshType", "1-1000", 2);
        raise(StateCode_ZoneRenamed);
        raise(StateCode_LineMapRenamed);
        runUntilIdle();
        QCOMPARE(CvlAppGetReadCount() - before, CvlInt64 {0});
        QCOMPARE(fixture.takeRefreshes(), 0);
        fixture.dialog().launch();
        QCOMPARE(fixture.takeRefreshes(), 1);
    }

    void catchesUpWhenShown()
    {
        DialogFixture fixture("field2d");
        fixture.select({2, 3, 11});
        fixture.dialog().close();
        QVERIFY(host::Document::instance().execute(host::DeleteMaps {host::allUpTo(2)}).isDone());
        raise(StateCode_PickList);
        runUntilIdle();
        fixture.dialog().launch();
        QCOMPARE(fixture.takeRefreshes(), 1);
        QCOMPARE(fixture.selected(), "2-3"); // 11 is gone
        runUntilIdle();
        QCOMPARE(fixture.takeRefreshes(), 0);
        fixture.dialog().close();
        raise(StateCode_PickList); // nothing that is shown
        fixture.dialog().launch();
        QCOMPARE(fixture.takeRefreshes(), 0);
    }

    void assignsTheScatterVariable()
    {
        DialogFixture fixture("field2d");
        QCOMPARE(styleValue("GlobalScatter.Var", 0), 0);
        fixture.clickTab("Scatter");
        const int assigned = styleValue("GlobalScatter.Var", 0);
        QVERIFY(assigned > 0);
        change("GlobalScatter.Var", "", 0);
        QCOMPARE(styleValue("GlobalScatter.Var", 0), assigned);
        fixture.takeRefreshes();
        runUntilIdle();
        QCOMPARE(fixture.takeRefreshes(), 0); // and no end of refreshes
        fixture.clickTab("Mesh");
    }

    void leavesAnOpenEditorAlone()
    {
        DialogFixture fixture("field2d");
        fixture.doubleClickCell(2, kGroup);
        auto* editor = fixture.table().viewport()->findChild<QLineEdit*>();
        QVERIFY(editor);
        QTest::keyClicks(editor, "7");
        setStyle("FieldMap.Group", "1-12", 4);
        raise(StateCode_ZoneRenamed);
        runUntilIdle();
        QCOMPARE(fixture.takeRefreshes(), 1);
        Q_EMIT fixture.model().dataChanged(fixture.model().index(1, kGroup),
                                           fixture.model().index(1, kGroup));
        QCOMPARE(fixture.table().viewport()->findChild<QLineEdit*>(), editor);
        QCOMPARE(editor->text(), "7");
        QTest::keyClick(editor, Qt::Key_Return);
        runUntilIdle();
        QCOMPARE(styleValues("FieldMap.Group", 4), "4 7 4 4");
        QVERIFY(fixture.dialog().isVisible());
    }

    void keepsTheCurrentCellAndTheScrollPosition()
    {
        DialogFixture fixture("field2d", 200);
        fixture.clickCell(60, kMeshType);
        const int scrolled = fixture.table().verticalScrollBar()->value();
        QVERIFY(scrolled > 0);
        change("FieldMap.Mesh.MeshType", "60", 2);
        QCOMPARE(fixture.table().currentIndex(), fixture.model().index(59, kMeshType));
        QCOMPARE(fixture.table().verticalScrollBar()->value(), scrolled);
        fixture.clickTab("Contour");
        QCOMPARE(fixture.table().verticalScrollBar()->value(), scrolled);
    }
};

QTEST_MAIN(tst_DialogRefresh)
#include "tst_dialog_refresh.moc"
