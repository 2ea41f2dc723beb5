// SPDX-License-Identifier: BSD-3-Clause
#include "play/arguments.h"
#include "play/script.h"

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

QTEST_GUILESS_MAIN(tst_Script)
#include "tst_script.moc"
