// SPDX-License-Identifier: BSD-3-Clause
#include "event_log.h"
#include "samples/demo_data.h"
#include "sdk/base/cvl.h"

#include <QtTest>

using namespace corvala;
using namespace corvala::host;

using Steps = std::function<void()>;
Q_DECLARE_METATYPE(Steps)

class tst_UndoHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void changesOutsideGesturesAreSteps();
    void aGestureIsOneStep();
    void bracketsNestAndJoin();
    void discardTakesBack();
    void withoutCommitNothingIsJoined();
    void emptyBracketsLeaveNothing();
    void undoInsideABracketIsRefused();
    void announcesWhatCameBack_data();
    void announcesWhatCameBack();
    void aLargeStepIsAnnouncedOnce();
    void undoGoesToItsFrame();
    void openingForgets();

private:
    static int group(CvlInt64 map);
    static void setGroup(const std::string& maps, int value)
    {
        QCOMPARE(writeStyle({"FieldMap", "Group"}, maps, double(value)), StyleWrite_Ok);
    }
    static UndoHistory& undo() { return Document::instance().undo(); }
};

void tst_UndoHistory::init()
{
    Document::instance().clear();
    undo().endGesture();
    std::string error;
    QVERIFY(samples::openDemo("field2d", 12, error));
}

int tst_UndoHistory::group(CvlInt64 map)
{
    static const AttributeId attribute = Schema::instance().find({"FieldMap", "Group"});
    return Document::instance().activeFrame()->fieldInteger(attribute, map);
}

void tst_UndoHistory::changesOutsideGesturesAreSteps()
{
    setGroup("1", 2);
    setGroup("2", 3);
    QCOMPARE(undo().stepCount(), 2);
    QVERIFY(undo().undo());
    QCOMPARE(group(1), 2);
    QCOMPARE(group(2), 1);
    QVERIFY(undo().redo());
    QCOMPARE(group(2), 3);
    QVERIFY(!undo().redo());
}

void tst_UndoHistory::aGestureIsOneStep()
{
    setGroup("4", 9);
    undo().beginGesture();
    setGroup("1", 2);
    setGroup("2", 3);
    undo().beginGesture();
    setGroup("3", 4);
    undo().endGesture();
    setGroup("5", 5);
    QCOMPARE(undo().stepCount(), 4);
    for (int i = 0; i < 3; ++i)
        undo().undo();
    QCOMPARE(group(1) + group(2) + group(3) + group(5), 4);
    QCOMPARE(group(4), 9);
    undo().redo();
    QCOMPARE(group(1), 2);
    QCOMPARE(group(2), 3);
    QCOMPARE(undo().undoText(),
             QStringLiteral("Group number = 2 (1 field map); Group number = 3 (1 field map)"));
}

void tst_UndoHistory::bracketsNestAndJoin()
{
    CvlUtilUndoStateBegin(UndoKind_StyleGroup);
    setGroup("1", 2);
    CvlUtilUndoStateBegin(UndoKind_StyleGroup);
    setGroup("2", 2);
    CvlUtilUndoStateEnd(0, 1);
    setGroup("3", 2);
    QCOMPARE(undo().stepCount(), 0);
    CvlUtilUndoStateEnd(0, 1);
    QCOMPARE(undo().stepCount(), 1);
    undo().undo();
    QCOMPARE(group(1) + group(2) + group(3), 3);
}

void tst_UndoHistory::discardTakesBack()
{
    setGroup("1", 7);
    EventLog log;
    CvlUtilUndoStateBegin(UndoKind_StyleGroup);
    setGroup("1,2", 2);
    setGroup("1", 3);
    CvlUtilUndoStateEnd(1, 0);
    QCOMPARE(group(1), 7);
    QCOMPARE(group(2), 1);
    QCOMPARE(undo().stepCount(), 1);
    QVERIFY(log.take().endsWith(QStringLiteral("44")));
}

void tst_UndoHistory::withoutCommitNothingIsJoined()
{
    CvlUtilUndoStateBegin(UndoKind_StyleGroup);
    setGroup("1", 2);
    setGroup("1", 3);
    CvlUtilUndoStateEnd(0, 0);
    QCOMPARE(undo().stepCount(), 2);
    QVERIFY(undo().undo());
    QCOMPARE(group(1), 2);
    QVERIFY(undo().redo());
    QCOMPARE(group(1), 3);
}

void tst_UndoHistory::emptyBracketsLeaveNothing()
{
    CvlUtilUndoStateBegin(UndoKind_StyleGroup);
    CvlUtilUndoStateEnd(0, 1);
    CvlUtilUndoStateEnd(0, 1); // none is open
    QCOMPARE(undo().stepCount(), 0);
    setGroup("1", 2);
    QCOMPARE(undo().stepCount(), 1);
}

void tst_UndoHistory::undoInsideABracketIsRefused()
{
    setGroup("1", 2);
    CvlUtilUndoStateBegin(UndoKind_StyleGroup);
    QVERIFY(!undo().undo());
    CvlUtilUndoStateEnd(0, 1);
    QVERIFY(undo().undo());
}

void tst_UndoHistory::announcesWhatCameBack_data()
{
    QTest::addColumn<Steps>("make");
    QTest::addColumn<QString>("events");
    QTest::addColumn<QString>("again"); // of undo and redo, if another order
    const auto document = []() -> Document& { return Document::instance(); };
    QTest::newRow("style") << Steps([] { setGroup("3-5", 2); }) << "7:FieldMap"
                           << "";
    QTest::newRow("contour group") << Steps([] {
        writeStyle({"ContourGroups", "Var"}, "", 4.0, 255, 3);
    }) << "7:ContourGroups 21"
                                   << "";
    QTest::newRow("zone name") << Steps([=] { document().renameZone(2, "x"); }) << "14"
                               << "";
    QTest::newRow("variable name") << Steps([=] { document().renameVariable(2, "x"); }) << "16"
                                   << "";
    QTest::newRow("fewer field maps")
        << Steps([=] { document().deleteFieldMaps(allUpTo(2)); }) << "2 10"
        << "";
    QTest::newRow("more line maps")
        << Steps([=] { document().createLineMaps(2); }) << "7:ActiveLineMaps 3"
        << "";
    QTest::newRow("a plot type comes first") << Steps([] {
        setGroup("1", 2);
        writeStyle({"PlotType"}, "", double(PlotType_LineXY));
    }) << "7:FieldMap 7:PlotType"
                                             << "7:PlotType 7:FieldMap";
}

void tst_UndoHistory::announcesWhatCameBack()
{
    QFETCH(Steps, make);
    QFETCH(QString, events);
    QFETCH(QString, again);
    EventLog log;
    undo().begin(UndoKind_StyleGroup);
    make();
    undo().end(UndoHistory::Closing::OneStep);
    QCOMPARE(log.take(), events);
    undo().undo();
    QCOMPARE(log.take(), (again.isEmpty() ? events : again) + QStringLiteral(" 44"));
    undo().redo();
    QCOMPARE(log.take(), (again.isEmpty() ? events : again) + QStringLiteral(" 56"));
}

void tst_UndoHistory::aLargeStepIsAnnouncedOnce()
{
    undo().begin(UndoKind_StyleGroup);
    setGroup("5", 3);
    Document::instance().deleteFieldMaps(allUpTo(10));
    for (int i = 0; i < 1000; ++i)
        setGroup(std::to_string(i % 2 + 1), i + 2);
    undo().end(UndoHistory::Closing::OneStep);
    EventLog log;
    undo().undo();
    QCOMPARE(log.take(), QStringLiteral("7:FieldMap 2 10 44"));
    undo().redo();
    QCOMPARE(toText(log.lastStyle().styleChanges[0].maps, 12), std::string("1-2")); // of those left
}

void tst_UndoHistory::undoGoesToItsFrame()
{
    const CvlUniqueId first = Document::instance().activeFrameId();
    setGroup("1", 2);
    Document::instance().addFrame();
    EventLog log;
    undo().undo();
    QCOMPARE(log.take(), QStringLiteral("51 7:FieldMap 44"));
    QCOMPARE(Document::instance().activeFrameId(), first);
    QCOMPARE(group(1), 1);
}

void tst_UndoHistory::openingForgets()
{
    setGroup("1", 2);
    std::string error;
    QVERIFY(samples::openDemo("field3d", 4, error));
    QCOMPARE(undo().stepCount(), 0);
}

QTEST_GUILESS_MAIN(tst_UndoHistory)
#include "tst_undo_history.moc"
