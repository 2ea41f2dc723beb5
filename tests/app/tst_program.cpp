// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/program_run.h"
#include "tests/support/rows.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <nlohmann/json.hpp>

#include <csignal>
#include <fstream>

using namespace corvala::tests;
using Json = nlohmann::json;

static Json readJson(const QString& file)
{
    std::ifstream stream(file.toStdString());
    return Json::parse(stream, nullptr, false);
}

static QString text(const Json& value)
{
    return QString::fromStdString(value.dump());
}

class tst_Program : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersAtOnce_data()
    {
        const Rows<QString, QString, int, QString, QString>
            row; // argument, variable (of the environment, "NAME=value"), exitCode, output, errors

        const QString none;
        row("help", "--help", none, 0, "--render", none);
        row("all help", "--help-all", none, 0, "--render", none);
        row("version", "--version", none, 0, "corvala ", none);
        row("unknown option", "--hlep", none, 2, none, "'hlep'");
        row("unknown demo", "--demo=none", none, 2, none, "\"none\"");
        row("no screen", "--demo", none, 1, none, "no screen");
        row("no X server", "--demo", "QT_QPA_PLATFORM=xcb", 1, none, "no screen");
        row("Wayland alone", "--demo", "WAYLAND_DISPLAY=wayland-0", 1, none,
            "install the package xwayland");
    }

    void answersAtOnce()
    {
        const auto [argument, variable, exitCode, output, errors] =
            currentRow<QString, QString, int, QString, QString>();
        QProcessEnvironment environment = environmentWithoutDisplay();
        if (!variable.isEmpty())
            environment.insert(variable.section(QLatin1Char('='), 0, 0),
                               variable.section(QLatin1Char('='), 1));
        const ProgramRun run = runProgram({argument}, environment);
        QCOMPARE(run.exitCode, exitCode);
        QVERIFY2(run.output.contains(output), qPrintable(run.output));
        QVERIFY2(run.errors.contains(errors), qPrintable(run.errors));
        QCOMPARE(run.errors.isEmpty(), errors.isEmpty());
    }

    void savesWhatItOpens()
    {
        const QString table = m_folder.filePath("t.csv");
        std::ofstream(table.toStdString()) << "t,x\n0,1\n1,2\n";
        const QString script = writeScript(
            m_folder.path(),
            {R"({"paletteColor": 3, "rgb": [1, 2, 3]})",
             R"({"set": ["LineMap", "Lines", "LineThickness"], "maps": "1", "value": 0.75})"});
        // Where numbers have a comma, if the machine knows such a place.
        QProcessEnvironment german = environmentWithoutDisplay();
        german.insert("LOCPATH", m_folder.path());
        german.insert("LC_ALL", "de_DE.UTF-8");
        QProcess::execute("localedef",
                          {"-i", "de_DE", "-f", "UTF-8", m_folder.filePath("de_DE.UTF-8")});
        const auto save = [&](const QString& data, const char* name,
                              const QProcessEnvironment& environment) {
            const QString file = m_folder.filePath(name);
            const ProgramRun run =
                runProgram({data, "--play", script, "--save", file}, environment);
            if (run.exitCode != 0)
                qWarning("%s", qPrintable(run.errors));
            return file;
        };
        const Json saved =
            readJson(save(save(table, "a.cvdoc", environmentWithoutDisplay()), "b.cvdoc", german));
        QCOMPARE(text(saved["frames"][0]["lineStyle"]["LineMap.Lines.LineThickness"]),
                 QStringLiteral(R"([{"maps":"1","value":0.75}])"));
        QCOMPARE(text(saved["frames"][0]["data"]), QStringLiteral(R"([{"open":["t.csv"]}])"));
        QCOMPARE(text(saved), text(readJson(m_folder.filePath("a.cvdoc"))));
    }

    void namesWhatCannotBeRead_data()
    {
        const Rows<QStringList, QString> row;

        const QString cut = m_folder.filePath(QStringLiteral("cut.vtu"));
        std::ofstream(cut.toStdString()) << "<?xml version=\"1.0\"?>\n<VTKFile type=\"Unstructured";
        const QString unwritable = QStringLiteral("/nowhere/report.json");

        row("missing data", {"--report", "r.json", "nowhere.vtu"}, "nowhere.vtu");
        row("broken data", {"--report", "r.json", cut}, "cut.vtu");
        const QString blind = m_folder.filePath(QStringLiteral("blind.cvdoc"));
        std::ofstream(blind.toStdString()) << R"({"format": "corvala document", "version": 1,
            "activeFrame": 1, "frames": [{"views": {"1": {"position": [0, 0, 0]}}}]})";
        row("view", {blind, "--save", "s.cvdoc"},
            "blind.cvdoc: frames[1].views.1: the camera has no direction");
        row("missing script", {"--play", "nowhere.jsonl"}, "nowhere.jsonl");
        row("unwritable report", {"--demo", "kinds", "--report", unwritable}, unwritable);
    }

    void namesWhatCannotBeRead()
    {
        const auto [arguments, named] = currentRow<QStringList, QString>();
        const ProgramRun run = runProgram(arguments);
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.errors.contains(named), qPrintable(run.errors));
        QCOMPARE(run.errors.count(QLatin1Char('\n')), 1);
    }

    void endsInGoodOrderWhenAskedTo()
    {
        const QTemporaryDir temporary;
        QProcessEnvironment environment = environmentWithoutDisplay();
        environment.insert(QStringLiteral("TMPDIR"), temporary.path());
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(
            QStringLiteral(CORVALA_PROGRAM),
            {"--report", m_folder.filePath("never.json"),
             QStringLiteral(CORVALA_SAMPLES "/exodus_biplane/biplane_rms_pressure_bs.exo")});
        const auto folders = [&temporary] {
            return QDir(temporary.path()).entryList({"corvala-*"}, QDir::Dirs);
        };
        QTRY_VERIFY_WITH_TIMEOUT(!folders().isEmpty(), 60000);
        program.terminate();
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.exitCode(), 128 + SIGTERM);
        QCOMPARE(folders(), QStringList());
    }

    void wrongScriptsNameTheirLine_data()
    {
        const Rows<QString, QString> row;
        row("canvas without a screen", R"({"screenshot": "c.png", "of": "canvas"})", "X screen");
        row("missing data", R"({"open": "nowhere.cgns"})", "nowhere.cgns");
    }

    void wrongScriptsNameTheirLine()
    {
        const auto [line, reason] = currentRow<QString, QString>();
        const QString script = writeScript(
            m_folder.path(), {"# wrong", R"({"demo": "field2d"})", R"({"dialog": "open"})", line});
        const ProgramRun run = runProgram({"--play", script});
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.errors.startsWith(script + QLatin1String(":4: ")), qPrintable(run.errors));
        QVERIFY2(run.errors.contains(reason), qPrintable(run.errors));
    }

    void wrongLinesStopBeforeAnythingHappens()
    {
        const QString script = writeScript(m_folder.path(),
                                           {R"({"demo": "field2d"})", R"({"dialog": "open"})",
                                            R"({"report": "early.json"})", R"({"nonsense": 1})"});
        const ProgramRun run = runProgram({"--play", script});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.errors.contains(QLatin1String(":4: ")));
        QVERIFY(!QDir(m_folder.path()).exists(QStringLiteral("early.json")));
    }

    void reportsWhatTheDialogShows()
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

    void sameDataGiveTheSameReport()
    {
        const QString first = m_folder.filePath(QStringLiteral("first.json"));
        const QString second = m_folder.filePath(QStringLiteral("second.json"));
        const QString data = QStringLiteral(CORVALA_SAMPLES "/cgns_hexa/cgnslib_vers-4400.cgns");
        QCOMPARE(runProgram({"--report", first, data}).exitCode, 0);
        const QString script =
            writeScript(m_folder.path(),
                        {QStringLiteral(R"({"open": "%1"})").arg(data), R"({"dialog": "open"})",
                         R"({"report": "second.json"})"});
        QCOMPARE(runProgram({"--play", script}).exitCode, 0);
        QVERIFY(!readJson(first).is_discarded());
        QCOMPARE(text(readJson(first)), text(readJson(second)));
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_Program)
#include "tst_program.moc"
