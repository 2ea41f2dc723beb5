// SPDX-License-Identifier: BSD-3-Clause
#include "tests/support/rows.h"
#include "tests/views/dialog_fixture.h"
#include "zonestyle/models/columns/column_kinds.h"
#include "zonestyle/models/columns/described_model.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QToolTip>
#include <QtTest>

using namespace corvala;
using namespace corvala::tests;
namespace models = corvala::sdk::ui::dialogs::zonestyle::intern::models;
namespace views = corvala::sdk::ui::dialogs::zonestyle::intern::views;

namespace {

constexpr int kNumber = 0;
constexpr int kName = 1;
constexpr int kGroup = 2;
constexpr int kShowZone = 3;
constexpr int kShowMesh = 4;
constexpr int kMeshType = 5;
constexpr int kMeshColor = 6;

bool isNotTheSecond(const models::Cell& cell)
{
    return cell.map != 2;
}

/// A check box that the second map has not.
class PartlyModel : public models::DescribedModel<models::FieldModelAbstract>
{
public:
    using DescribedModel::DescribedModel;

protected:
    const models::ColumnTable& columnTable() const override
    {
        static constexpr models::ColumnDescriptor kColumns[] = {
            models::kinds::checkBox("Mesh", style::fieldMap.mesh.show).existsWhere(isNotTheSecond)};
        static constexpr models::ColumnTable kTable {kColumns};
        return kTable;
    }
};

} // namespace

class tst_TableGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void checkBoxSwitchesSelectedRows_data()
    {
        const Rows<QList<int>, int, int, QString, QString> row;
        // The mesh of map 3 is hidden at first.
        row("all to the opposite of the clicked one", {2, 3, 5}, 2, 0, "1 0 0 1 0 1", "2-3,5");
        row("the clicked one is off", {2, 3, 5}, 3, 0, "1 1 1 1 1 1", "2-3,5");
        row("one row", {4}, 4, 0, "1 1 0 0 1 1", "4");
        row("a row that is not selected", {1, 2}, 6, 0, "1 1 0 1 1 0", "6");
        row("up to there", {4, 5}, 2, Qt::ShiftModifier, "1 0 0 0 0 1", "2-5");
        row("one more row", {1, 2}, 6, Qt::ControlModifier, "0 0 0 1 1 0", "1-2,6");
    }

    void checkBoxSwitchesSelectedRows()
    {
        const auto [selected, clicked, modifiers, shown, selectedAfter] =
            currentRow<QList<int>, int, int, QString, QString>();
        DialogFixture fixture("field2d");
        setStyle("FieldMap.Mesh.Show", "1-12", 1);
        change("FieldMap.Mesh.Show", "3", 0);
        fixture.select(selected);
        takeWrites();
        fixture.clickCheckBox(clicked, kShowMesh, Qt::KeyboardModifiers(modifiers));
        QCOMPARE(styleValues("FieldMap.Mesh.Show", 6), shown);
        QCOMPARE(fixture.selected(), selectedAfter);
        QVERIFY(!takeWrites().contains(';')); // one write for all
        QCOMPARE(fixture.table().currentIndex(), fixture.model().index(clicked - 1, kShowMesh));
    }

    void checkBoxNeedsPressAndReleaseOnIt()
    {
        DialogFixture fixture("field2d");
        QWidget* viewport = fixture.table().viewport();
        const auto center = [&fixture](int map, int column) {
            return fixture.table().visualRect(fixture.model().index(map - 1, column)).center();
        };
        takeWrites();
        QTest::mousePress(viewport, Qt::LeftButton, {}, center(2, kShowMesh));
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, center(3, kShowMesh));
        QTest::mousePress(viewport, Qt::LeftButton, {}, center(2, kShowMesh));
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, center(2, kShowMesh) + QPoint(15, 0));
        QTest::mousePress(viewport, Qt::LeftButton, {}, center(2, kShowZone));
        QTest::mouseRelease(viewport, Qt::LeftButton, {}, center(2, kShowMesh));
        QTest::mousePress(viewport, Qt::RightButton, {}, center(2, kShowMesh));
        QTest::mouseRelease(viewport, Qt::RightButton, {}, center(2, kShowMesh));
        fixture.clickCell(2, kShowMesh); // beside the box
        QCOMPARE(takeWrites(), "");
    }

    void checkBoxIsMissingWhereTheModelSaysSo()
    {
        QVERIFY(openDemo("field2d", 3));
        PartlyModel model(nullptr);
        views::StyleTableView view;
        view.setModel(&model, 0);
        view.show();
        const auto picture = [&](int row) {
            const QRect cell = view.visualRect(model.index(row, 0));
            return view.viewport()->grab(cell).toImage();
        };
        QImage empty = picture(1);
        empty.fill(empty.pixel(0, 0));
        QVERIFY(picture(1) != empty && picture(1) != picture(2)); // a text
        takeWrites();
        for (const int row : {1, 2}) {
            view.setCurrentIndex(model.index(row, 0));
            view.selectRow(row);
            QTest::keyClick(&view, Qt::Key_Space);
            runUntilIdle();
            QTest::mouseClick(view.viewport(), Qt::LeftButton, {},
                              view.visualRect(model.index(row, 0)).center());
            runUntilIdle();
        }
        QCOMPARE(takeWrites(), "FieldMap.Mesh.Show 3 = false; FieldMap.Mesh.Show 3 = true");
    }

    void keysOpenTheMenuAtTheCurrentCell_data()
    {
        const Rows<int, int> row;
        row("Menu", Qt::Key_Menu, 0);
        row("Shift+F10", Qt::Key_F10, Qt::ShiftModifier);
        row("Alt+Down", Qt::Key_Down, Qt::AltModifier);
        row("Return", Qt::Key_Return, 0); // not editable in place
    }

    void keysOpenTheMenuAtTheCurrentCell()
    {
        const auto [key, modifiers] = currentRow<int, int>();
        DialogFixture fixture("field2d", 200);
        fixture.select({1, 150});
        fixture.table().selectionModel()->setCurrentIndex(fixture.model().index(149, kMeshType),
                                                          QItemSelectionModel::NoUpdate);
        fixture.table().scrollToTop();
        QPoint position;
        PopupResponder menus([&position](QWidget& menu) {
            position = menu.pos();
            QTest::keyClick(&menu, Qt::Key_Down);
            QTest::keyClick(&menu, Qt::Key_Return);
        });
        fixture.key(key, Qt::KeyboardModifiers(modifiers));
        QCOMPARE(menus.shown(), 1);
        const QRect cell = fixture.table().visualRect(fixture.table().currentIndex());
        QVERIFY(fixture.table().viewport()->rect().contains(cell));
        QVERIFY(cell.contains(fixture.table().viewport()->mapFromGlobal(position)));
        QCOMPARE(styleValue("FieldMap.Mesh.MeshType", 1), 0);
        QCOMPARE(styleValue("FieldMap.Mesh.MeshType", 150), 0);
        QVERIFY(styleValue("FieldMap.Mesh.MeshType", 2) != 0);
        fixture.table().selectionModel()->setCurrentIndex(fixture.model().index(149, kNumber),
                                                          QItemSelectionModel::NoUpdate);
        fixture.key(key, Qt::KeyboardModifiers(modifiers));
        QCOMPARE(menus.shown(), 1);
        QVERIFY(fixture.dialog().isVisible());
    }

    void keysActOnTheSelection()
    {
        DialogFixture fixture("field2d");
        change("FieldMap.Mesh.Show", "1-12", 1);
        fixture.select({2, 4});
        fixture.clickCell(4, kShowMesh, Qt::ControlModifier);
        fixture.clickCell(4, kShowMesh, Qt::ControlModifier);
        QCOMPARE(fixture.selected(), "2,4");
        fixture.key(Qt::Key_Space);
        QCOMPARE(styleValues("FieldMap.Mesh.Show", 5), "1 0 1 0 1");
        fixture.key(Qt::Key_Space);
        QCOMPARE(styleValues("FieldMap.Mesh.Show", 5), "1 1 1 1 1");
        fixture.key(Qt::Key_Space, Qt::ControlModifier); // the row, not the box
        QCOMPARE(fixture.selected(), "2");
        fixture.key(Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(fixture.selected(), "2,4");
        QCOMPARE(styleValues("FieldMap.Mesh.Show", 5), "1 1 1 1 1");
        fixture.key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(fixture.selected(), "all");
        fixture.key(Qt::Key_Down);
        fixture.key(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(fixture.selected(), "5-6");
    }

    void tableIsOneTabStop()
    {
        DialogFixture fixture("field2d");
        fixture.clickCell(2, kGroup);
        fixture.table().setFocus();
        QTest::keyClick(&fixture.table(), Qt::Key_Tab);
        QVERIFY(!fixture.table().hasFocus());
        QVERIFY(fixture.dialog().isAncestorOf(fixture.dialog().focusWidget()));
        QCOMPARE(fixture.table().currentIndex(), fixture.model().index(1, kGroup));
    }

    void tabGoesThroughTheDialogInOrder()
    {
        DialogFixture fixture("field2d");
        host::Document::instance().execute(host::CreateLineMaps {3});
        runUntilIdle();
        const auto stops = [&fixture] {
            fixture.select({1}); // enables the buttons of the pattern
            QStringList texts;
            QWidget* const first = fixture.tabWidget().tabBar();
            QWidget* stop = first;
            stop->setFocus();
            do {
                const auto* button = qobject_cast<QAbstractButton*>(stop);
                texts << (button ? button->text().remove('&') : stop->accessibleName());
                QTest::keyClick(stop, Qt::Key_Tab);
                stop = fixture.dialog().focusWidget();
            } while (stop != first && texts.size() < 20);
            return texts.join('|');
        };
        const QString field = "|Style table|Selection criteria|Zones|Groups|Clear|Close";
        const QString line = "|Style table|Selection criteria|Select|Clear|Create Map...|Copy Map|"
                             "Delete Map|To Top|To Bottom|Close";
        QCOMPARE(stops(), field);
        change("PlotType", "", PlotType_LineXY);
        QCOMPARE(stops(), line);
        fixture.clickTab("Lines");
        QCOMPARE(stops(), line);
        change("PlotType", "", PlotType_Field3D);
        QCOMPARE(stops(), field);
    }

    void paintsTheSelection_data()
    {
        const Rows<QList<QRect>> row; // ranges (of columns and rows)
        row("whole rows", {{0, 1, 10, 2}, {0, 5, 10, 1}});
        row("single cells", {{2, 1, 1, 2}, {0, 5, 10, 1}});
        row("none", {});
    }

    void paintsTheSelection()
    {
        const auto [ranges] = currentRow<QList<QRect>>();
        DialogFixture fixture("field2d");
        QItemSelectionModel& selection = *fixture.table().selectionModel();
        fixture.key(Qt::Key_A, Qt::ControlModifier); // painted before, and outdated
        fixture.table().viewport()->grab();
        selection.clearSelection();
        for (const QRect& range : ranges) {
            selection.select({fixture.model().index(range.top(), range.left()),
                              fixture.model().index(range.bottom(), range.right())},
                             QItemSelectionModel::Select);
        }
        const QImage picture = fixture.table().viewport()->grab().toImage();
        const auto background = [&](int row, int column) {
            const QRect cell = fixture.table().visualRect(fixture.model().index(row, column));
            return picture.pixelColor(cell.bottomRight() - QPoint(2, 2));
        };
        const QColor plain = fixture.table().palette().color(QPalette::Base);
        for (int row = 0; row < 8; ++row) {
            for (const int column : {kNumber, kGroup, kShowMesh, kMeshType}) {
                const bool isSelected = selection.isSelected(fixture.model().index(row, column));
                QCOMPARE(background(row, column) != plain, isSelected);
            }
        }
    }

    void followsTheColorsOfTheDesktop()
    {
        DialogFixture fixture("field2d");
        const QPalette before = QApplication::palette();
        QPalette dark = before;
        dark.setColor(QPalette::Base, Qt::black);
        dark.setColor(QPalette::Text, Qt::white);
        dark.setColor(QPalette::Highlight, Qt::blue);
        QApplication::setPalette(dark);
        const QPalette colors = fixture.table().palette();
        QApplication::setPalette(before);
        QCOMPARE(colors.color(QPalette::Text), QColor(Qt::white));
        QCOMPARE(colors.color(QPalette::HighlightedText), QColor(Qt::white));
        QVERIFY(qGray(colors.color(QPalette::Highlight).rgb()) < 64);
        QVERIFY(fixture.table().palette().color(QPalette::Text) != QColor(Qt::white));
    }

    void hasRoomForSixRows()
    {
        DialogFixture fixture("field2d");
        const int rowHeight = fixture.table().rowHeight(0);
        const int rowWithGrid = rowHeight + 1;
        QCOMPARE(fixture.table().minimumSizeHint(), QSize(1, 6 * rowWithGrid + 34));
        QCOMPARE(fixture.table().rowHeight(11), rowHeight);
        StyleTableView empty;
        QCOMPARE(empty.minimumSizeHint(), QSize(1, 34));
    }

    void showsCutTextsAsToolTips()
    {
        DialogFixture fixture("field2d");
        const QString name = "<b>inlet</b>/" + QString(60, 'x');
        QVERIFY(
            host::Document::instance().execute(host::RenameZone {2, name.toStdString()}).isDone());
        runUntilIdle();
        const auto toolTip = [&fixture](int map) {
            const QPoint cell =
                fixture.table().visualRect(fixture.model().index(map - 1, kName)).center();
            QHelpEvent event(QEvent::ToolTip, cell, fixture.table().viewport()->mapToGlobal(cell));
            QCoreApplication::sendEvent(fixture.table().viewport(), &event);
            return QToolTip::text();
        };
        QCOMPARE(toolTip(1), QString());
        QVERIFY2(toolTip(2).contains(name.toHtmlEscaped()), qPrintable(toolTip(2)));
    }
};

QTEST_MAIN(tst_TableGestures)
#include "tst_table_gestures.moc"
