// SPDX-License-Identifier: BSD-3-Clause
#include "tests/views/dialog_fixture.h"

#include "sdk/base/cvl.h"
#include "sdk/dialogs_lineplot/line_map_create_dialog.h"
#include "tests/support/modal_responder.h"

#include <QHeaderView>
#include <QPushButton>
#include <QtTest>

using namespace corvala;
using namespace corvala::tests;

namespace {

constexpr const char* kCreate = "plotAttr_MaptoolsCreateMap_Button";
constexpr const char* kCopy = "plotAttr_MaptoolsCopyMap_Button";
constexpr const char* kDelete = "plotAttr_MaptoolsDeleteMap_Button";
constexpr const char* kTop = "plotAttr_MaptoolsMoveToTop_Button";
constexpr const char* kBottom = "plotAttr_MaptoolsMoveToBottom_Button";
constexpr const char* kQuestion =
    "Linemap Delete: Are you sure you want to\ndelete the selected mappings?";

/// The maps as they were numbered at first (their colour says), "-" before an inactive one.
QString order()
{
    QStringList texts;
    const CvlUniqueId frame = CvlUtilFrameGetUniqueID();
    for (int map = 1; map <= CvlUtilLineMapGetCountForFrame(frame); ++map) {
        const int color = styleValue("LineMap.Lines.Color", map);
        texts << (CvlUtilLineMapIsActiveForFrame(frame, map) ? "" : "-") + QString::number(color);
    }
    return texts.join(' ');
}

class Maps : public DialogFixture
{
public:
    Maps()
        : DialogFixture("xy")
    {
        for (int map = 1; map <= 6; ++map)
            setStyle("LineMap.Lines.Color", std::to_string(map), map);
        const QModelIndex inactive = model().index(3, 2);
        model().setData(inactive, Qt::Unchecked, Qt::CheckStateRole);
        runUntilIdle();
        takeWrites();
    }
    void press(const char* button)
    {
        QTest::mouseClick(&this->button(button), Qt::LeftButton);
        runUntilIdle();
    }
};

} // namespace

class tst_MapCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changesTheSelectedMaps_data();
    void changesTheSelectedMaps();
    void doesNothingWithoutASelection();
    void asksBeforeItDeletes();
    void deletesNothingOfAnotherTable();
    void opensTheDialogThatCreates();
};

void tst_MapCommands::changesTheSelectedMaps_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QList<int>>("selected");
    QTest::addColumn<QString>("after");
    const auto row = [](const char* name, const char* button, const QList<int>& selected,
                        const char* after) { QTest::newRow(name) << button << selected << after; };
    row("copy", kCopy, {5, 4}, "1 2 3 -4 5 6 -4 5");
    row("delete", kDelete, {2, 4, 6}, "1 3 5");
    row("delete all", kDelete, {1, 2, 3, 4, 5, 6}, "");
    row("to top", kTop, {5, 3}, "3 5 1 2 -4 6");
    row("to bottom", kBottom, {1, 4}, "2 3 5 6 1 -4");
}

void tst_MapCommands::changesTheSelectedMaps()
{
    QFETCH(QString, button);
    QFETCH(QList<int>, selected);
    Maps fixture;
    host::UndoHistory& undo = host::Document::instance().undo();
    const int steps = undo.stepCount();
    fixture.select(selected);
    fixture.takeRefreshes();
    ModalResponder responder;
    if (button == kDelete)
        responder.press(QMessageBox::Ok);
    fixture.press(button.toLatin1());
    QVERIFY(responder.isSettled());
    QTEST(order(), "after");
    QCOMPARE(fixture.takeRefreshes(), 1);
    QCOMPARE(fixture.table().verticalHeader()->count(), fixture.model().rowCount());
    QCOMPARE(undo.stepCount(), steps + 1);
    QVERIFY(undo.undo());
    runUntilIdle();
    QCOMPARE(order(), "1 2 3 -4 5 6");
    QVERIFY(undo.redo());
    QTEST(order(), "after");
}

void tst_MapCommands::doesNothingWithoutASelection()
{
    Maps fixture;
    fixture.table().clearSelection();
    const int steps = host::Document::instance().undo().stepCount();
    ModalResponder responder;
    for (const char* button : {kCopy, kDelete, kTop, kBottom})
        fixture.press(button);
    QCOMPARE(responder.takeSeen(), QStringList());
    QCOMPARE(order(), "1 2 3 -4 5 6");
    QCOMPARE(host::Document::instance().undo().stepCount(), steps);
}

void tst_MapCommands::asksBeforeItDeletes()
{
    Maps fixture;
    fixture.select({2, 3});
    ModalResponder responder;
    responder.answer([](QDialog& dialog) {
        auto& box = *qobject_cast<QMessageBox*>(&dialog);
        QCOMPARE(box.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
        QCOMPARE(box.standardButton(box.defaultButton()), QMessageBox::Cancel);
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QTest::keyClick(&box, Qt::Key_Return);
    });
    fixture.press(kDelete);
    QCOMPARE(responder.takeSeen(), QStringList {kQuestion});
    QVERIFY(responder.isSettled());
    QCOMPARE(order(), "1 2 3 -4 5 6");
    QCOMPARE(fixture.selected(), "2-3");
}

/// The rows selected when the answer comes may be those of another plot type.
void tst_MapCommands::deletesNothingOfAnotherTable()
{
    Maps fixture;
    setStyle("PlotType", "", PlotType_Field2D);
    runUntilIdle();
    fixture.select({1});
    setStyle("PlotType", "", PlotType_LineXY);
    runUntilIdle();
    fixture.select({2, 3});
    ModalResponder responder;
    responder.answer([](QDialog& box) {
        setStyle("PlotType", "", PlotType_Field2D);
        runUntilIdle();
        qobject_cast<QMessageBox*>(&box)->button(QMessageBox::Ok)->click();
    });
    fixture.press(kDelete);
    QVERIFY(responder.isSettled());
    QCOMPARE(order(), "1 2 3 -4 5 6");
    QCOMPARE(takeWrites(), "");
}

void tst_MapCommands::opensTheDialogThatCreates()
{
    Maps fixture;
    fixture.press(kCreate);
    auto* create = fixture.dialog().findChild<dialogs::lineplot::LineMapCreateDialog*>();
    QVERIFY(create && create->isVisible());
    QVERIFY(!create->isModal());
    fixture.takeRefreshes();
    CvlUtilLineMapCreate(2);
    runUntilIdle();
    QCOMPARE(fixture.takeRefreshes(), 1);
    QCOMPARE(fixture.model().rowCount(), 8);
}

QTEST_MAIN(tst_MapCommands)
#include "tst_map_commands.moc"
