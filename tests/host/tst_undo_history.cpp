// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/base/cvl.h"
#include "tests/host/document_driver.h"
#include "tests/host/event_log.h"
#include "tests/support/rows.h"

#include <QtTest>

using namespace corvala;
using namespace corvala::host;
using namespace corvala::tests;

class tst_UndoHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        openOnly("field2d", 12);
        undo().endGesture();
    }

    void steps_data()
    {
        const Rows<QString, int, QString>
            row; // script (see play), steps, groups (of maps 1 to 5, which were 1)
        row("each is a step", "12", 2, "23111");
        row("undone", "12u", 1, "21111");
        row("redone, and nothing else is", "12urr", 2, "23111");
        row("a gesture is one step", "4g12g3.5", 4, "34526");
        row("and undone as one", "4g12g3.5uuu", 1, "11121");
        row("and redone as one", "4g12g3.5uuur", 2, "34121");
        row("an open bracket", "(1(2)3", 0, "23411");
        row("brackets nest and join", "(1(2)3)", 1, "23411");
        row("and are undone as one", "(1(2)3)u", 0, "11111");
        row("discarded", "1(121!", 1, "21111");
        row("not joined", "(11/", 2, "31111");
        row("not joined, undone", "(11/u", 1, "21111");
        row("empty brackets, and one too many", "())1", 1, "21111");
        row("no undo in a bracket", "1(u)", 1, "21111");
        row("opening forgets", "1o", 0, "11111");
    }

    void steps()
    {
        const auto [script, stepCount, wanted] = currentRow<QString, int, QString>();
        int value = 1;
        for (const char command : script.toStdString())
            play(command, std::isdigit(command) ? ++value : 0);
        QString groups;
        for (CvlInt64 map = 1; map <= 5; ++map)
            groups += QString::number(fieldValue({"FieldMap", "Group"}, map));
        QCOMPARE(groups, wanted);
        QCOMPARE(undo().stepCount(), stepCount);
    }

    void textsOfSteps()
    {
        undo().beginGesture();
        setGroup("1", 2);
        setGroup("2", 2); // the same text
        setGroup("2", 3);
        const QString two = "Group number = 2 (1 field map); Group number = 3 (1 field map)";
        QCOMPARE(undo().undoText(), two);
        setGroup("1-2", 4);
        setGroup("1-2", 5);
        QCOMPARE(undo().undoText(), two + "; Group number = 4 (2 field maps); ...");
        QCOMPARE(undo().stack().undoText(), "Group number = 2 (1 field map) and 3 more");
    }

    void announcesWhatCameBack_data()
    {
        const Rows<QStringList, QString, QString, QString> add;
        const auto row = [&add](const char* name, const QStringList& operations, const char* events,
                                const char* undone = nullptr, const char* redone = nullptr) {
            add(name, operations, events, (undone ? undone : events), (redone ? redone : events));
        };
        const QString style = R"({"set": ["FieldMap", "Group"], "maps": "3-5", "value": 2})";
        row("style", {style}, "7:FieldMap");
        row("active maps", {R"({"active": "FieldZones", "maps": "3", "op": "remove"})"},
            "7:ActiveFieldZones");
        row("contour group", {R"({"set": ["ContourGroups", "Var", 3], "value": 4})"},
            "7:ContourGroups 21");
        row("zone name", {R"({"rename": "x", "zone": 2})"}, "14");
        row("variable name", {R"({"rename": "x", "variable": 2})"}, "16");
        row("enabled zones", {R"({"enableZones": "2"})"}, "10");
        row("enabled variables", {R"({"enableVariables": "2"})"}, "11");
        row("colour", {R"({"paletteColor": 5, "rgb": [1, 2, 3]})"}, "22");
        row("fewer field maps", {R"({"deleteMaps": "1-2"})"}, "2 10");
        row("more line maps", {R"({"createMaps": 2})"}, "7:ActiveLineMaps 3");
        row("name of line maps", {R"({"createMaps": 2})", R"({"rename": "x", "lineMap": 2})"},
            "7:ActiveLineMaps 3 17", "17 7:ActiveLineMaps 3");
        row("a plot type comes first", {style, R"({"plotType": 3})"}, "7:FieldMap 7:PlotType",
            "7:PlotType 7:FieldMap", "7:PlotType 7:FieldMap");
    }

    void announcesWhatCameBack()
    {
        const auto [operations, events, undone, redone] =
            currentRow<QStringList, QString, QString, QString>();
        EventLog log;
        undo().begin(UndoKind_StyleGroup);
        for (const QString& operation : operations)
            QCOMPARE(execute(operation.toUtf8()), StyleWrite_Ok);
        undo().end(UndoHistory::Closing::OneStep);
        QCOMPARE(log.take(), events);
        undo().undo();
        QCOMPARE(log.take(), undone + QStringLiteral(" 44"));
        undo().redo();
        QCOMPARE(log.take(), redone + QStringLiteral(" 56"));
    }

    void aLargeStepIsAnnouncedOnce()
    {
        undo().begin(UndoKind_StyleGroup);
        setGroup("5", 3);
        document().execute(DeleteMaps {allUpTo(10)});
        for (int i = 0; i < 1000; ++i)
            setGroup(i % 2 ? "1" : "2", i + 2);
        undo().end(UndoHistory::Closing::OneStep);
        EventLog log;
        undo().undo();
        QCOMPARE(log.take(), QStringLiteral("7:FieldMap 2 10 44"));
        undo().redo();
        QCOMPARE(toText(log.lastStyle().styleChanges[0].maps, 12),
                 std::string("1-2")); // of those left
    }

    void undoGoesToItsFrame()
    {
        const CvlUniqueId first = document().activeFrameId();
        setGroup("1", 2);
        document().execute(AddFrame {});
        EventLog log;
        undo().undo();
        QCOMPARE(log.take(), QStringLiteral("51 7:FieldMap 44"));
        QCOMPARE(document().activeFrameId(), first);
        QCOMPARE(fieldValue({"FieldMap", "Group"}, 1), 1);
    }

private:
    static UndoHistory& undo() { return document().undo(); }
    static void setGroup(const char* maps, int value)
    {
        const NumberSet set = numbersFromText(maps, 0);
        QVERIFY(document().execute(SetStyle {{"FieldMap", "Group"}, double(value), set}).isDone());
    }
    /// A digit gives the map of that number a group; u, r: undo, redo; g, .: a gesture begins,
    /// ends;
    /// (: a bracket; ), /, !: it ends as one step, separate steps, discarded; o: data are opened.
    static void play(char command, int value)
    {
        std::string error;
        switch (command) {
        case 'u': undo().undo(); break;
        case 'r': undo().redo(); break;
        case 'g': undo().beginGesture(); break;
        case '.': undo().endGesture(); break;
        case '(': CvlUtilUndoStateBegin(UndoKind_StyleGroup); break;
        case ')': CvlUtilUndoStateEnd(0, 1); break;
        case '/': CvlUtilUndoStateEnd(0, 0); break;
        case '!': CvlUtilUndoStateEnd(1, 0); break;
        case 'o': QVERIFY(samples::openDemo("field2d", 12, error)); break;
        default: setGroup(std::string(1, command).c_str(), value);
        }
    }
};

QTEST_GUILESS_MAIN(tst_UndoHistory)
#include "tst_undo_history.moc"
