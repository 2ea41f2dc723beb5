// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"
#include "play/arguments.h"
#include "play/player.h"
#include "tests/play/bare_stage.h"
#include "tests/support/rows.h"

#include <QTemporaryFile>
#include <QTest>

using namespace corvala::play;
using Json = nlohmann::json;
using namespace corvala::tests;

class tst_Script : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void skipsBlankLinesAndComments()
    {
        std::vector<ScriptLine> lines;
        const QByteArray text = "\xEF\xBB\xBF# a comment\r\n\n{\"tab\": \"Mesh\"}\r\n  \t\n"
                                "{\"rename\": \"Gr\xC3\xB6\xC3\x9F\x65\", \"zone\": 1}";
        QVERIFY(readLines(text, lines).isEmpty());
        QCOMPARE(lines.size(), std::size_t(2));
        QCOMPARE(lines[0].number, 3);
        QCOMPARE(lines[1].number, 5);
        QCOMPARE(lines[1].object["rename"].get<std::string>(),
                 std::string("Gr\xC3\xB6\xC3\x9F\x65"));
    }

    void namesTheWrongLine_data()
    {
        const Rows<QByteArray, QString> row;

        row("no JSON", "tab Mesh", "not valid JSON");
        row("cut off", "{\"tab\": \"Mesh\"", "not valid JSON");
        row("text behind", "{\"tab\": \"Mesh\"} x", "not valid JSON");
        row("comment not at the start", " # later", "not valid JSON");
        row("no object", "[\"tab\"]", "not a JSON object");
        row("key twice", "{\"tab\": \"A\", \"tab\": \"B\"}", "\"tab\"");
        row("key twice inside", "{\"expect\": {\"map\": 1, \"map\": 2}}", "\"map\"");
        row("NUL in a text", QByteArray("{\"tab\": \"a\0b\"}", 14), "not valid JSON");
        row("no UTF-8", "{\"tab\": \"\xFF\"}", "not valid JSON");
    }

    void namesTheWrongLine()
    {
        const auto [line, reason] = currentRow<QByteArray, QString>();
        std::vector<ScriptLine> lines;
        const ScriptProblem problem =
            readLines("# first\n{\"undo\": 1}\n" + line + "\n{\"undo\": 1}\n", lines);
        QCOMPARE(problem.line, 3);
        QVERIFY2(problem.message.contains(reason), qPrintable(problem.message));
        QCOMPARE(lines.size(), std::size_t(1));
    }

    void filesLieRelativeToTheScript()
    {
        const Arguments arguments({{"near", "a/b.png"}, {"far", "/c.png"}},
                                  QStringLiteral("/plays"));
        QCOMPARE(arguments.file("near"), QStringLiteral("/plays/a/b.png"));
        QCOMPARE(arguments.file("far"), QStringLiteral("/c.png"));
    }

    void playerComplains_data()
    {
        const Rows<QByteArray, QString> row;
        row("unknown verb", R"({"sit": 1})", "3: unknown verb \"sit\"");
        row("two verbs", R"({"undo": 1, "redo": 1})", "3: two verbs");
        row("key of another verb", R"({"undo": 1, "map": 1})", "3: \"undo\" has no key \"map\"");
        row("bad line inside", R"({"menu": 1, "column": 4, "during": [{"sit": 1}]})",
            "3: unknown verb");
        row("no verb", R"({"column": 1, "map": 2})", "no verb");
        row("unknown key inside", R"({"expect": {"map": 1, "column": 0, "colour": "red"}})",
            "\"colour\"");
        row("missing argument", R"({"check": 1})", "\"column\" is missing");
        row("wrong kind", R"({"tab": 3})", "\"tab\" must be a text");
        row("no such tab", R"({"tab": "Meshes"})", "no tab \"Meshes\"");
        row("no such column", R"({"check": 1, "column": "Show"})", "no column \"Show\"");
        row("no such map", R"({"check": 99, "column": 3})", "no map 99");
        row("no check box", R"({"check": 1, "column": 0})", "no check box");
        row("no set of numbers", R"({"select": "3-1"})", "\"3-1\" is no set of numbers");
        row("no such button", R"({"button": "Delete Map"})", "\"Delete Map\"");
        row("disabled button", R"({"button": "Groups"})", "\"Groups\" is disabled");
        row("unused reply", R"({"answers": ["OK"]})", "no prompt asked");
        row("no reply at all", R"({"answers": [null]})", "null");
        row("two choices", R"({"menu": 1, "column": "Mesh\nColor", "choose": null, "color": 3})",
            "exclude each other");
        row("map for a value of the frame", R"({"get": ["PlotType"], "map": 1, "is": 2})",
            "no value of a map");
        row("picture of no format", R"({"screenshot": "d.foo", "of": "dialog"})", "picture format");
        row("no steps", R"({"undo": 0})", "must be 1 or more");
        row("nothing to undo", R"({"undo": 1})", "nothing to undo");
        row("refused by the engine", R"({"set": ["FieldMap", "Group"], "maps": "1", "value": 0})",
            "3: ");
        row("wrong value", R"({"get": ["FieldMap", "Group"], "map": 1, "is": 2})", "is 1, not 2");
        row("wrong cell", R"({"expect": {"map": 1, "column": 2, "display": "2"}})",
            "is 1, not \"2\"");
        row("no editor", R"({"popup": 1, "column": 1, "type": "x"})", "3: no editor opened");
        row("an editor", R"({"popup": 1, "column": 2, "opens": false})", "3: an editor opened");
        row("no menu", R"({"menu": 1, "column": 1, "choose": 1})", "3: the cell has no menu");
        row("no such entry", R"({"menu": 1, "column": 5, "choose": "Thick"})",
            "no entry \"Thick\"");
        row("prompt without a reply", R"({"menu": 1, "column": 9, "choose": "Enter..."})",
            "no reply is queued");
        row("reply without a prompt", R"({"answers": ["OK"]})", "3: replies are left");
        row("no reply", R"({"answers": [{"place": 3}]})", "is no reply to a prompt");
        row("taken against expectation", R"({"answers": [{"refused": 50}]}
{"menu": 1, "column": 9, "choose": "Enter..."})",
            "4: the prompt \"Enter the value for the line thickness\" accepts 50");
        row("too many fields", R"({"answers": [[2, 3]]}
{"menu": 1, "column": 9, "choose": "Enter..."})",
            "has 1 fields, not 2");
        row("not dropped", R"({"menu": 1, "column": 5, "dropped": true, "during": []})",
            "was not dropped");
        row("closed meanwhile",
            R"({"popup": 1, "column": 2, "type": "2", "during": [{"dialog": "destroy"}]})",
            "3: what was open is closed");
    }

    /// A check that cannot fail would be worthless.
    void playerComplains()
    {
        const auto [lines, problem] = currentRow<QByteArray, QString>();
        corvala::host::Document::instance().clear();
        QTemporaryFile script;
        QVERIFY(script.open());
        script.write(R"({"demo": "field2d"})"
                     "\n"
                     R"({"dialog": "open"})"
                     "\n"
                     + lines + '\n');
        script.close();
        corvala::tests::BareStage stage;
        const QString seen = playScript(script.fileName(), stage);
        QVERIFY2(seen.startsWith(script.fileName()) && seen.contains(problem), qPrintable(seen));
    }
};

QTEST_MAIN(tst_Script)
#include "tst_script.moc"
