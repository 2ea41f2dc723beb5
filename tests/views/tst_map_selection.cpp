// SPDX-License-Identifier: BSD-3-Clause
#include "tests/support/rows.h"
#include "tests/views/dialog_fixture.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

using namespace corvala;
using namespace corvala::tests;
using dialogs::common::DialogInitialization_None;
using dialogs::common::DialogInitialization_SelectPickedObjects;

namespace {

constexpr const char* kApply = "mapSelectionByPattern_apply_button";
constexpr const char* kGroups = "mapSelectionByPattern_groups_button";
constexpr const char* kClear = "mapSelectionByPattern_clear_button";

host::NumberSet maps(const std::string& text)
{
    host::NumberSet set;
    host::fromText(text, 0, set);
    return set;
}

/// Every second row, in ranges of one row each.
void selectAlternateRows(StyleTableView& table)
{
    const QAbstractItemModel& model = *table.model();
    QItemSelection rows;
    for (int row = 0; row < model.rowCount(); row += 2)
        rows.append({model.index(row, 0), model.index(row, model.columnCount() - 1)});
    table.clearSelection();
    table.selectionModel()->select(rows, QItemSelectionModel::Select);
}

} // namespace

class tst_MapSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void losesRowsThatAreGone_data()
    {
        const Rows<QString, QString> row;
        row("one of them", "12", "2,5-6");
        row("before them", "1-8", "2");
        row("all but one", "2-12", "none");
    }

    void losesRowsThatAreGone()
    {
        const auto [deleted, selected] = currentRow<QString, QString>();
        DialogFixture fixture("field2d");
        fixture.select({2, 5, 6, 12});
        QVERIFY(host::Document::instance()
                    .execute(host::DeleteMaps {maps(deleted.toStdString())})
                    .isDone());
        runUntilIdle();
        QCOMPARE(fixture.selected(), selected);
        fixture.clickTab("Contour");
        QCOMPARE(fixture.selected(), selected);
        fixture.clickTab("Mesh");
    }

    void isWidenedToWholeRows()
    {
        DialogFixture fixture("field2d");
        fixture.table().selectionModel()->select(fixture.model().index(3, 5),
                                                 QItemSelectionModel::ClearAndSelect);
        QVERIFY(fixture.table().selectionModel()->selectedRows().isEmpty());
        change("FieldMap.Group", "1", 2);
        QCOMPARE(fixture.selected(), "4");
    }

    /// The row that was selected first is the one that prompts start from.
    void keepsItsOrder()
    {
        DialogFixture fixture("field2d");
        fixture.select({7, 2, 9, 12});
        const auto rows = [&fixture] {
            QList<int> firstRows;
            for (const QItemSelectionRange& range : fixture.table().selectionModel()->selection())
                firstRows << range.top() + 1;
            return firstRows;
        };
        change("FieldMap.Group", "1", 2);
        QCOMPARE(rows(), (QList<int> {7, 2, 9, 12}));
        fixture.clickTab("Contour");
        QCOMPARE(rows(), (QList<int> {7, 2, 9, 12}));
        QVERIFY(host::Document::instance().execute(host::DeleteMaps {maps("12")}).isDone());
        runUntilIdle();
        QCOMPARE(rows(), (QList<int> {7, 2, 9}));
        fixture.clickTab("Mesh");
        QCOMPARE(rows(), (QList<int> {7, 2, 9}));
    }

    /// With this many ranges anything that compares all pairs takes minutes.
    void isCarriedHoweverScattered()
    {
        static constexpr int kMaps = 40000;
        DialogFixture fixture("field2d", kMaps);
        selectAlternateRows(fixture.table());
        const auto isAlternate = [&fixture] {
            const QItemSelection ranges = fixture.table().selectionModel()->selection();
            return ranges.size() == kMaps / 2 && ranges.first().model() == &fixture.model()
                && ranges.last().top() == kMaps - 2 && ranges.last().bottom() == kMaps - 2;
        };
        fixture.clickTab("Contour");
        QVERIFY(isAlternate());
        change("FieldMap.Group", "1-" + std::to_string(kMaps), 2);
        QVERIFY(isAlternate());
        fixture.clickTab("Mesh");
        QVERIFY(isAlternate());
        QVERIFY(host::Document::instance()
                    .execute(host::DeleteMaps {maps(std::to_string(kMaps))})
                    .isDone());
        runUntilIdle();
        QVERIFY(isAlternate());
        fixture.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(fixture.table().selectionModel()->selection().size(), 1);
        selectAlternateRows(fixture.table());
        fixture.clickCell(1, 1);
        fixture.key(Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(fixture.table().selectionModel()->selection().size(), 1);
    }

    void takesPickedObjects_data()
    {
        const Rows<QList<QPoint>, QString, int>
            row; // picks (type and number), selected, top (map, 0 for no scrolling)
        row("zones", {{15, 40}, {15, 7}, {15, 8}}, "7-8,40", 7);
        row("the same zone twice", {{15, 40}, {15, 40}}, "40", 40);
        row("others between", {{4, 1}, {15, 50}, {5, 2}}, "50", 50);
        row("others only", {{4, 1}, {3, 2}}, "none", 0);
        row("none", {}, "none", 0);
        row("no such zone", {{15, 1000}}, "none", 0);
    }

    void takesPickedObjects()
    {
        const auto [picks, selected, top] = currentRow<QList<QPoint>, QString, int>();
        DialogFixture fixture("field2d", 200);
        fixture.select({1, 2});
        fixture.table().scrollTo(fixture.model().index(99, 0), QAbstractItemView::PositionAtTop);
        std::vector<host::Pick> list;
        for (const QPoint& pick : picks)
            list.push_back({pick.x(), pick.y()});
        host::Document::instance().execute(host::SetPicks {list});
        ZoneStyleDialog::getInstance(fixture.mainWindow(), DialogInitialization_None);
        runUntilIdle();
        QCOMPARE(fixture.selected(), "1-2");
        ZoneStyleDialog::getInstance(fixture.mainWindow(),
                                     DialogInitialization_SelectPickedObjects);
        QCOMPARE(fixture.selected(), "1-2"); // not before the idle moment
        runUntilIdle();
        QCOMPARE(fixture.selected(), selected);
        QCOMPARE(fixture.table().selectionModel()->selection().size(),
                 fixture.table().selectionModel()->selectedRows().size());
        QCOMPARE(fixture.table().rowAt(0), top > 0 ? top - 1 : 99);
        if (top > 0)
            QCOMPARE(fixture.table().currentIndex(), fixture.model().index(top - 1, 0));
        QCOMPARE(fixture.dialog().focusWidget(), &fixture.table());
    }

    void takesPickedLineMaps_data()
    {
        const Rows<bool> row;
        row("launched at once", true);
        row("launched later", false);
    }

    /// The table that the rows are of is not shown yet.
    void takesPickedLineMaps()
    {
        const auto [launchAtOnce] = currentRow<bool>();
        DialogFixture fixture("xy");
        change("PlotType", "", PlotType_Field2D);
        fixture.dialog().close();
        setStyle("PlotType", "", PlotType_LineXY);
        host::Document::instance().execute(
            host::SetPicks {{{PickType_LineMap, 5}, {PickType_LineMap, 2}}});
        ZoneStyleDialog& dialog = ZoneStyleDialog::getInstance(
            fixture.mainWindow(), DialogInitialization_SelectPickedObjects);
        if (launchAtOnce)
            dialog.launch();
        runUntilIdle();
        dialog.launch();
        QCOMPARE(fixture.selected(), "2,5");
    }

    void asksForAPatternOnlyWhenItMatters()
    {
        DialogFixture fixture("field2d");
        const auto canApply = [&fixture] {
            QString buttons;
            for (const char* name : {kApply, kGroups, kClear})
                buttons += fixture.button(name).isEnabled() ? '+' : '-';
            return buttons;
        };
        QCOMPARE(canApply(), "--+");
        QTest::keyClicks(&fixture.patternField(), "zone 1*");
        QCOMPARE(canApply(), "+++");
        fixture.button(kGroups).click();
        QCOMPARE(canApply(), "+-+"); // the names are another question
        fixture.button(kApply).click();
        QCOMPARE(canApply(), "-++");
        setStyle("FieldMap.Group", "1", 2); // a refresh is nothing that the user did
        runUntilIdle();
        fixture.clickTab("Contour");
        QCOMPARE(canApply(), "-++");
        fixture.clickCell(2, 0);
        QCOMPARE(canApply(), "+++");
        fixture.button(kApply).click();
        QCOMPARE(canApply(), "-++");
        fixture.button(kClear).click();
        QCOMPARE(canApply(), "--+");
        fixture.clickTab("Mesh");
    }
};

QTEST_MAIN(tst_MapSelection)
#include "tst_map_selection.moc"
