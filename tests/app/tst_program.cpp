// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/program_run.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <nlohmann/json.hpp>

#include <fstream>

using namespace corvala::test;
using Json = nlohmann::json;

class tst_Program : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersAtOnce_data();
    void answersAtOnce();
    void namesWhatCannotBeRead_data();
    void namesWhatCannotBeRead();
    void wrongScriptsNameTheirLine_data();
    void wrongScriptsNameTheirLine();
    void wrongLinesStopBeforeAnythingHappens();
    void reportsWhatTheDialogShows();
    void sameDataGiveTheSameReport();
    void needsNoScreenForAScript();

private:
    QTemporaryDir m_folder;
};

void tst_Program::answersAtOnce_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("variable"); // of the environment, "NAME=value"
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("errors");

    const QString none;
    QTest::newRow("help") << "--help" << none << 0 << "--render" << none;
    QTest::newRow("version") << "--version" << none << 0 << "corvala " << none;
    QTest::newRow("unknown option") << "--hlep" << none << 2 << none << "'hlep'";
    QTest::newRow("unknown demo") << "--demo=none" << none << 2 << none << "\"none\"";
    QTest::newRow("no screen") << "--demo" << none << 1 << none << "no screen";
    QTest::newRow("no X server") << "--demo"
                                 << "QT_QPA_PLATFORM=xcb" << 1 << none << "no screen";
    QTest::newRow("Wayland alone")
        << "--demo"
        << "WAYLAND_DISPLAY=wayland-0" << 1 << none << "install the package xwayland";
}

void tst_Program::answersAtOnce()
{
    QFETCH(QString, argument);
    QFETCH(QString, variable);
    QFETCH(QString, output);
    QFETCH(QString, errors);
    QProcessEnvironment environment = environmentWithoutDisplay();
    if (!variable.isEmpty())
        environment.insert(variable.section(QLatin1Char('='), 0, 0),
                           variable.section(QLatin1Char('='), 1));
    const ProgramRun run = runProgram({argument}, environment);
    QTEST(run.exitCode, "exitCode");
    QVERIFY2(run.output.contains(output), qPrintable(run.output));
    QVERIFY2(run.errors.contains(errors), qPrintable(run.errors));
    QCOMPARE(run.errors.isEmpty(), errors.isEmpty());
}

void tst_Program::namesWhatCannotBeRead_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("named");

    const QString cut = m_folder.filePath(QStringLiteral("cut.vtu"));
    std::ofstream(cut.toStdString()) << "<?xml version=\"1.0\"?>\n<VTKFile type=\"Unstructured";
    const QString unwritable = QStringLiteral("/nowhere/report.json");

    QTest::newRow("missing data") << QStringList {"--report", "r.json", "nowhere.vtu"}
                                  << "nowhere.vtu";
    QTest::newRow("broken data") << QStringList {"--report", "r.json", cut} << "cut.vtu";
    QTest::newRow("missing script") << QStringList {"--play", "nowhere.jsonl"} << "nowhere.jsonl";
    QTest::newRow("unwritable report")
        << QStringList {"--demo", "kinds", "--report", unwritable} << unwritable;
}

void tst_Program::namesWhatCannotBeRead()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const ProgramRun run = runProgram(arguments);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(named), qPrintable(run.errors));
    QCOMPARE(run.errors.count(QLatin1Char('\n')), 1);
}

void tst_Program::wrongScriptsNameTheirLine_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("reason");

    // wrong by themselves
    QTest::newRow("no JSON") << "tab Mesh"
                             << "not valid JSON";
    QTest::newRow("unknown verb") << R"({"tabb": "Mesh"})"
                                  << "unknown verb \"tabb\"";
    QTest::newRow("unknown key") << R"({"tab": "Mesh", "speed": 1})"
                                 << "no key \"speed\"";
    QTest::newRow("two verbs") << R"({"tab": "Mesh", "select": "1"})"
                               << "two verbs";
    QTest::newRow("no verb") << R"({"column": 1, "map": 2})"
                             << "no verb";

    // wrong when their turn comes
    QTest::newRow("unknown key inside") << R"({"expect": {"map": 1, "column": 0, "colour": "red"}})"
                                        << "\"colour\"";
    QTest::newRow("missing argument") << R"({"check": 1})"
                                      << "\"column\" is missing";
    QTest::newRow("wrong kind") << R"({"tab": 3})"
                                << "\"tab\" must be a text";
    QTest::newRow("no such tab") << R"({"tab": "Meshes"})"
                                 << "no tab \"Meshes\"";
    QTest::newRow("no such column") << R"({"check": 1, "column": "Show"})"
                                    << "no column \"Show\"";
    QTest::newRow("no such map") << R"({"check": 99, "column": 3})"
                                 << "no map 99";
    QTest::newRow("no check box") << R"({"check": 1, "column": 0})"
                                  << "no check box";
    QTest::newRow("no set of numbers") << R"({"select": "3-1"})"
                                       << "\"3-1\" is no set of numbers";
    QTest::newRow("no such button") << R"({"button": "Delete Map"})"
                                    << "\"Delete Map\"";
    QTest::newRow("disabled button") << R"({"button": "Groups"})"
                                     << "\"Groups\" is disabled";
    QTest::newRow("no such menu entry")
        << R"({"menu": 1, "column": "Mesh\nType", "choose": "Dotted"})"
        << "no entry \"Dotted\"";
    QTest::newRow("no menu") << R"({"menu": 1, "column": 0, "choose": "Yes"})"
                             << "the cell has no menu";
    QTest::newRow("no editor") << R"({"popup": 1, "column": 0, "type": "a", "end": "Return"})"
                               << "no editor";
    QTest::newRow("an editor that was not to come")
        << R"({"popup": 1, "column": 2, "opens": false})"
        << "an editor opened";
    QTest::newRow("prompt without a reply")
        << R"({"menu": 1, "column": "Line\nThickness", "choose": "Enter..."})"
        << "no reply is queued for the prompt \"Enter the value for the line thickness\"";
    QTest::newRow("unused reply") << R"({"answers": ["OK"]})"
                                  << "no prompt asked";
    QTest::newRow("no reply at all") << R"({"answers": [null]})"
                                     << "null";
    QTest::newRow("unknown style value")
        << R"({"set": ["FieldMap", "Mash"], "maps": "1", "value": 1})"
        << "no such style value";
    QTest::newRow("value out of range")
        << R"({"set": ["FieldMap", "Mesh", "MeshType"], "maps": "1", "value": 9})"
        << "out of range";
    QTest::newRow("unexpected cell")
        << R"({"expect": {"map": 1, "column": "Mesh\nType", "display": "Dots"}})"
        << "not \"Dots\"";
    QTest::newRow("unexpected value") << R"({"get": ["FieldMap", "Group"], "map": 1, "is": 2})"
                                      << "is 1, not 2";
    QTest::newRow("canvas without a screen") << R"({"screenshot": "c.png", "of": "canvas"})"
                                             << "X screen";
    QTest::newRow("no pick") << R"({"pick": [3]})"
                             << "3 is no pick";
    QTest::newRow("value of another kind")
        << R"({"set": ["FieldMap", "Mesh", "Show"], "maps": "1", "value": {"on": 1}})"
        << "no style value";
    QTest::newRow("missing data") << R"({"open": "nowhere.cgns"})"
                                  << "nowhere.cgns";
    QTest::newRow("no list") << R"({"pick": {"zone": 3}})"
                             << "\"pick\" must be a list";
    QTest::newRow("two choices")
        << R"({"menu": 1, "column": "Mesh\nColor", "choose": null, "color": 3})"
        << "exclude each other";
    QTest::newRow("map for a value of the frame") << R"({"get": ["PlotType"], "map": 1, "is": 2})"
                                                  << "no value of a map";
    QTest::newRow("nothing to rename") << R"({"rename": "wing"})"
                                       << "takes one of";
    QTest::newRow("scale of another kind") << R"({"demo": "xy", "zones": 3})"
                                           << "scaled by \"maps\"";
    QTest::newRow("picture of no format") << R"({"screenshot": "d.foo", "of": "dialog"})"
                                          << "picture format";
    QTest::newRow("no steps") << R"({"undo": 0})"
                              << "must be 1 or more";
    QTest::newRow("nothing to undo") << R"({"undo": 1})"
                                     << "nothing to undo";
}

void tst_Program::wrongScriptsNameTheirLine()
{
    QFETCH(QString, line);
    QFETCH(QString, reason);
    const QString script = writeScript(
        m_folder.path(), {"# wrong", R"({"demo": "field2d"})", R"({"dialog": "open"})", line});
    const ProgramRun run = runProgram({"--play", script});
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.startsWith(script + QLatin1String(":4: ")), qPrintable(run.errors));
    QVERIFY2(run.errors.contains(reason), qPrintable(run.errors));
}

void tst_Program::wrongLinesStopBeforeAnythingHappens()
{
    const QString script = writeScript(m_folder.path(),
                                       {R"({"demo": "field2d"})", R"({"dialog": "open"})",
                                        R"({"report": "early.json"})", R"({"nonsense": 1})"});
    const ProgramRun run = runProgram({"--play", script});
    QCOMPARE(run.exitCode, 1);
    QVERIFY(run.errors.contains(QLatin1String(":4: ")));
    QVERIFY(!QDir(m_folder.path()).exists(QStringLiteral("early.json")));
}

static Json readJson(const QString& file)
{
    std::ifstream stream(file.toStdString());
    return Json::parse(stream, nullptr, false);
}

static QString text(const Json& value)
{
    return QString::fromStdString(value.dump());
}

void tst_Program::reportsWhatTheDialogShows()
{
    const QString file = m_folder.filePath(QStringLiteral("kinds.json"));
    const ProgramRun run = runProgram({"--demo", "kinds", "--report", file});
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.exitCode, 0);
    const Json report = readJson(file);
    QCOMPARE(text(report["plotType"]), text(1));
    QCOMPARE(text(report["title"]), text("Zone Style"));
    QCOMPARE(text(report["page"]), text("fieldMapPage"));
    QCOMPARE(text(report["tab"]), text("Mesh"));
    QCOMPARE(text(report["selected"]), text("none"));
    QCOMPARE(text(report["buttons"]), QStringLiteral(R"(["Close"])"));
    QCOMPARE(report["tabs"].size(), std::size_t(10));
    const Json& mesh = report["tables"]["Mesh"];
    QCOMPARE(mesh["rows"].size(), std::size_t(8));
    QCOMPARE(mesh["columns"].size(), std::size_t(10));
    QCOMPARE(text(mesh["columns"][4]["header"]), text("Show\nMesh"));
    QCOMPARE(text(mesh["rows"][4]["cells"][1]["display"]), text("wing [upper]"));
    QCOMPARE(text(mesh["menus"][4]),
             QStringLiteral(R"([{"enabled":true,"text":"Yes"},{"enabled":true,"text":"No"}])"));
    QCOMPARE(text(mesh["menus"][6]),
             QStringLiteral(R"([{"chooserFlag":true,"widget":"ColorChooserWidget"}])"));
    QVERIFY(mesh["rows"][0]["cells"][6]["color"].get<std::string>().size() == 7);
}

void tst_Program::sameDataGiveTheSameReport()
{
    const QString first = m_folder.filePath(QStringLiteral("first.json"));
    const QString second = m_folder.filePath(QStringLiteral("second.json"));
    const QString data = QStringLiteral(CORVALA_SAMPLES "/cgns_hexa/cgnslib_vers-4400.cgns");
    QCOMPARE(runProgram({"--report", first, data}).exitCode, 0);
    const QString script = writeScript(m_folder.path(),
                                       {QStringLiteral(R"({"open": "%1"})").arg(data),
                                        R"({"dialog": "open"})", R"({"report": "second.json"})"});
    QCOMPARE(runProgram({"--play", script}).exitCode, 0);
    QVERIFY(!readJson(first).is_discarded());
    QCOMPARE(text(readJson(first)), text(readJson(second)));
}

void tst_Program::needsNoScreenForAScript()
{
    const QString script = writeScript(m_folder.path(),
                                       {R"({"demo": "xy"})", R"({"dialog": "open"})",
                                        R"({"expect": {"visible": true, "page": "lineMapPage"}})"});
    const ProgramRun run = runProgram({"--play", script});
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.exitCode, 0);
}

QTEST_GUILESS_MAIN(tst_Program)
#include "tst_program.moc"
