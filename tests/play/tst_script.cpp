// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"
#include "play/arguments.h"
#include "play/player.h"
#include "tests/play/bare_stage.h"

#include <QTemporaryFile>
#include <QTest>

using namespace corvala::play;
using Json = nlohmann::json;

class tst_Script : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void skipsBlankLinesAndComments();
    void namesTheWrongLine_data();
    void namesTheWrongLine();
    void argumentsRefuseOtherKinds_data();
    void argumentsRefuseOtherKinds();
    void filesLieRelativeToTheScript();
    void playerComplains_data();
    void playerComplains();
};

void tst_Script::skipsBlankLinesAndComments()
{
    std::vector<ScriptLine> lines;
    const QByteArray text = "\xEF\xBB\xBF# a comment\r\n\n{\"tab\": \"Mesh\"}\r\n  \t\n"
                            "{\"rename\": \"Gr\xC3\xB6\xC3\x9F\x65\", \"zone\": 1}";
    QVERIFY(readLines(text, lines).isEmpty());
    QCOMPARE(lines.size(), std::size_t(2));
    QCOMPARE(lines[0].number, 3);
    QCOMPARE(lines[1].number, 5);
    QCOMPARE(lines[1].object["rename"].get<std::string>(), std::string("Gr\xC3\xB6\xC3\x9F\x65"));
}

void tst_Script::namesTheWrongLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("reason");

    QTest::newRow("no JSON") << QByteArray("tab Mesh") << "not valid JSON";
    QTest::newRow("cut off") << QByteArray("{\"tab\": \"Mesh\"") << "not valid JSON";
    QTest::newRow("text behind") << QByteArray("{\"tab\": \"Mesh\"} x") << "not valid JSON";
    QTest::newRow("comment not at the start") << QByteArray(" # later") << "not valid JSON";
    QTest::newRow("no object") << QByteArray("[\"tab\"]") << "not a JSON object";
    QTest::newRow("key twice") << QByteArray("{\"tab\": \"A\", \"tab\": \"B\"}") << "\"tab\"";
    QTest::newRow("key twice inside")
        << QByteArray("{\"expect\": {\"map\": 1, \"map\": 2}}") << "\"map\"";
    QTest::newRow("NUL in a text") << QByteArray("{\"tab\": \"a\0b\"}", 14) << "not valid JSON";
    QTest::newRow("no UTF-8") << QByteArray("{\"tab\": \"\xFF\"}") << "not valid JSON";
}

void tst_Script::namesTheWrongLine()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, reason);
    std::vector<ScriptLine> lines;
    const ScriptProblem problem =
        readLines("# first\n{\"undo\": 1}\n" + line + "\n{\"undo\": 1}\n", lines);
    QCOMPARE(problem.line, 3);
    QVERIFY2(problem.message.contains(reason), qPrintable(problem.message));
    QCOMPARE(lines.size(), std::size_t(1));
}

void tst_Script::argumentsRefuseOtherKinds_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("refused");

    QTest::newRow("text") << R"("a")"
                          << "boolean number integer";
    QTest::newRow("fraction") << "1.5"
                              << "text boolean integer";
    QTest::newRow("whole number") << "3.0"
                                  << "text boolean";
    QTest::newRow("huge number") << "1e300"
                                 << "text boolean integer";
    QTest::newRow("truth value") << "true"
                                 << "text number integer";
    QTest::newRow("null") << "null"
                          << "text boolean number integer";
    QTest::newRow("list") << "[1]"
                          << "text boolean number integer";
}

void tst_Script::argumentsRefuseOtherKinds()
{
    QFETCH(QString, value);
    const Arguments arguments({{"key", Json::parse(value.toStdString())}}, {});
    QStringList refused;
    const auto attempt = [&refused](const char* kind, const auto& get) {
        try {
            get();
        } catch (const ScriptError& error) {
            QVERIFY2(error.message().contains(QLatin1String("\"key\"")),
                     qPrintable(error.message()));
            refused << QLatin1String(kind);
        }
    };
    attempt("text", [&] { arguments.text("key"); });
    attempt("boolean", [&] { arguments.boolean("key"); });
    attempt("number", [&] { arguments.number("key"); });
    attempt("integer", [&] { arguments.integer("key"); });
    QTEST(refused.join(QLatin1Char(' ')), "refused");
}

void tst_Script::filesLieRelativeToTheScript()
{
    const Arguments arguments({{"near", "a/b.png"}, {"far", "/c.png"}}, QStringLiteral("/plays"));
    QCOMPARE(arguments.file("near"), QStringLiteral("/plays/a/b.png"));
    QCOMPARE(arguments.file("far"), QStringLiteral("/c.png"));
}

void tst_Script::playerComplains_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* name, const char* lines, const char* problem) {
        QTest::newRow(name) << QByteArray(lines) << problem;
    };
    row("unknown verb", R"({"sit": 1})", "3: unknown verb \"sit\"");
    row("two verbs", R"({"undo": 1, "redo": 1})", "3: two verbs");
    row("key of another verb", R"({"undo": 1, "map": 1})", "3: \"undo\" has no key \"map\"");
    row("bad line inside", R"({"menu": 1, "column": 4, "during": [{"sit": 1}]})",
        "3: unknown verb");
    row("refused by the engine", R"({"set": ["FieldMap", "Group"], "maps": "1", "value": 0})",
        "3: ");
    row("wrong value", R"({"get": ["FieldMap", "Group"], "map": 1, "is": 2})", "is 1, not 2");
    row("wrong cell", R"({"expect": {"map": 1, "column": 2, "display": "2"}})", "is 1, not \"2\"");
    row("no editor", R"({"popup": 1, "column": 1, "type": "x"})", "3: no editor opened");
    row("an editor", R"({"popup": 1, "column": 2, "opens": false})", "3: an editor opened");
    row("no menu", R"({"menu": 1, "column": 1, "choose": 1})", "3: the cell has no menu");
    row("no such entry", R"({"menu": 1, "column": 5, "choose": "Thick"})", "no entry \"Thick\"");
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
void tst_Script::playerComplains()
{
    QFETCH(QByteArray, lines);
    QFETCH(QString, problem);
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

QTEST_MAIN(tst_Script)
#include "tst_script.moc"
