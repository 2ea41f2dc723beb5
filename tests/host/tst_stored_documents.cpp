// SPDX-License-Identifier: BSD-3-Clause
#include "host/storage/document_file.h"
#include "host/storage/fitting.h"
#include "host/storage/taking.h"
#include "tests/host/document_driver.h"
#include "tests/host/event_log.h"
#include "tests/support/rows.h"

#include <QLocale>
#include <QtTest>

#include <clocale>
#include <csignal>

#include <sys/resource.h>
#include <unistd.h>

using namespace corvala;
using namespace corvala::host;
using namespace corvala::host::storage;
using namespace corvala::tests;

static const QString kFolder = QStringLiteral("/somewhere/else");

static QString present()
{
    return QString::fromStdString(toText(storedDocument(document()), kFolder));
}

/// Data of any number of zones, whatever the origin says.
static DataLoader demos(std::int64_t otherScale = 0)
{
    return [=](const DataOrigin& origin, QString& problem) {
        std::string reason;
        auto data = samples::demoData(origin.demo, otherScale ? otherScale : origin.scale, reason);
        problem = QString::fromStdString(reason);
        return data.data;
    };
}

static void executeAll(const QStringList& operations)
{
    for (const QString& text : operations)
        QVERIFY2(execute(text.toUtf8()) == StyleWrite_Ok, qPrintable(text));
}

/// Gives a value that is not the default one; false when none of some is taken.
static bool change(const Attribute& attribute)
{
    const bool isOfMap = attribute.scope == Scope::FieldMap || attribute.scope == Scope::LineMap;
    SetStyle set {attribute.names, std::string("B")};
    if (isOfMap)
        set.maps = NumberSet::bitmapOf(3, 1, 2, 4);
    if (attribute.indexCount > 0)
        set.index = attribute.indexCount;
    const double usual = attribute.defaultNumber;
    for (const double number : {usual + 1, usual / 3 + 0.1, usual - 1, usual + 2, 0.0, 1.0, 7.0}) {
        if (!attribute.isText())
            set.value = number;
        const QString before = present();
        if (document().execute(set).result == StyleWrite_Ok && present() != before)
            return true;
    }
    return false;
}

class tst_StoredDocuments : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString m_file;

    QString save() { return saveDocument(document(), m_file); }
    QString savedText()
    {
        QFile file(m_file);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private Q_SLOTS:
    void init()
    {
        document().clear();
        m_file = m_folder.filePath("a.cvdoc");
    }

    void comesBack_data()
    {
        const Rows<QStringList> row;
        row("empty", {});
        row("no frames", {R"({"frame": "delete"})"});
        for (const std::string& name : samples::demoNames())
            row(name.c_str(), {QStringLiteral(R"({"demo": "%1"})").arg(name.c_str())});
        row("names, deleted zones and sets",
            {R"({"demo": "field3d", "zones": 9})",
             R"({"rename": "first \u0022Ö\u0022 \n", "zone": 1})",
             R"({"rename": "gone", "zone": 3})", R"({"rename": "p", "variable": 7})",
             R"({"set": ["FieldMap", "Shade", "Color"], "maps": "4-6", "value": 5})",
             R"({"deleteMaps": "3,8"})", R"({"rename": "last", "zone": 7})",
             R"({"active": "FieldMaps", "maps": "1,4", "op": "assign"})",
             R"({"enableZones": "2-5"})", R"({"enableVariables": "1-3,7"})",
             R"({"pick": [{"zone": 2}, {"other": 4}]})",
             R"({"paletteColor": 63, "rgb": [1, 2, 255]})", R"({"createMaps": 2})",
             R"({"active": "LineMaps", "maps": "1", "op": "remove"})"});
        row("numbers of what went",
            {R"({"demo": "field2d", "zones": 9})", R"({"createMaps": 2})",
             R"({"set": ["LineMap", "Assign", "Zone"], "maps": "1-2", "value": 9})",
             R"({"set": ["ContourGroups", "Var", 2], "value": 4})", R"({"time": 7})",
             R"({"deleteMaps": "8-9", "of": "FieldMaps"})", R"({"frame": "new"})",
             R"({"demo": "xy", "maps": 3})", R"({"data": "none"})"});
        row("several origins",
            {R"({"demo": "transient"})", R"({"rename": "p", "variable": 5})",
             R"({"rename": "gone", "zone": 2})", R"({"deleteMaps": "1"})",
             R"({"demo": "kinds", "add": true})", R"({"deleteMaps": "4"})",
             R"({"rename": "new", "zone": 8})", R"({"demo": "transient", "add": true})",
             R"({"set": ["FieldMap", "Shade", "Color"], "maps": "9-12", "value": 5})"});
        row("frames and time",
            {R"({"demo": "transient"})", R"({"time": 2.5})", R"({"deleteMaps": "1"})",
             R"({"frame": "new"})", R"({"frame": "new"})", R"({"demo": "polar", "maps": 3})",
             R"({"plotType": 3})", R"({"frame": 2})"});
    }
    void comesBack()
    {
        const auto [operations] = currentRow<QStringList>();
        for (const QString& text : operations) {
            std::string ignored;
            Operation operation = operationOf(text.toUtf8());
            if (auto* const addition = std::get_if<AddData>(&operation))
                addition->data = samples::demoData(addition->origin.demo, 0, ignored).data;
            if (const auto* const attach = std::get_if<AttachData>(&operation))
                QVERIFY(samples::openDemo(attach->origin.demo, attach->origin.scale, ignored));
            else
                QVERIFY2(document().execute(operation).isDone(), qPrintable(text));
        }
        staysTheSame();
    }
    void everyValueComesBack()
    {
        openOnly("field3d", 5);
        executeAll({R"({"createMaps": 4})"});
        for (const Attribute& attribute : Schema::instance().all())
            if (attribute.type != ValueType::Numbers && attribute.id != style::plotType)
                QVERIFY2(change(attribute), pathText(attribute).c_str());
        staysTheSame();
    }
    void viewsComeBack()
    {
        openOnly("field2d", 2);
        const auto connection =
            document().viewsWanted().connect([view = std::string(R"({"b":[0.1,1e-7],"a":"x"})")] {
                document().keepView(frame().id(), 2, view);
            });
        save();
        connection.disconnect();
        loadDocument(document(), m_file, demos());
        QCOMPARE(frame().views().at(2), std::string(R"({"a":"x","b":[0.1,1e-07]})"));
    }

    void loadingIsAnnounced()
    {
        openOnly("field2d", 2);
        save();
        const CvlUniqueId before = frame().id();
        executeAll({R"({"layer": "ShowMesh", "on": false})"});
        EventLog log;
        loadDocument(document(), m_file, demos());
        QCOMPARE(log.take(), QStringLiteral("51 50 1"));
        QCOMPARE(document().undo().stepCount(), 0);
        QVERIFY(frame().id() != before);
    }

    void damageIsTold_data()
    {
        const Rows<QString, QString, QString> row; // text, what replaces it, problem
        row("newer", "\"version\": 1", "\"version\": 2",
            "version: the document has version 2 of the format");
        row("version", "\"version\": 1", "\"version\": \"1\"",
            "version: must be a number, not \"1\"");
        row("no version", "\"version\"", "\"versions\"", "\"version\" is missing");
        row("other file", "corvala document", "recipe", "format: this is no document");
        row("unknown name", "\"variables\"", "\"variable\"", "frames[1].variable: unknown name");
        row("unknown path", "Mesh.MeshType", "Mesh.MeshTipe",
            "frames[1].fieldStyle.FieldMap.Mesh.MeshTipe: no such style value");
        row("group", "FieldMap.Mesh.MeshType", "FieldMap.Mesh", "no such style value");
        row("wrong scope", "FieldMap.Mesh.MeshType", "LineMap.Name", "does not belong here");
        row("wrong type", "\"value\": 2}", "\"value\": true}",
            "frames[1].fieldStyle.FieldMap.Mesh.MeshType[1].value: must be a number, not true");
        row("text", "\"value\": 2}", "\"value\": \"2\"}", "must be a number, not \"2\"");
        row("out of range", "\"value\": 2}", "\"value\": 3}", "the value is out of range: 3");
        row("no value", ", \"value\": 2}", "}", "maps or value are missing");
        row("map out of range", "\"1-3\"", "\"1-13\"",
            "[1].maps: \"1-13\" goes beyond 12, the last number");
        row("no set", "\"1-3\"", "\"1-\"", "is no set of numbers");
        row("map with two values", "\"5\"", "\"3,5\"",
            "FieldMap.Mesh.MeshType: map 3 has two values");
        row("index", "Var[1]", "Var[17]", "there is no such index");
        row("key twice", "\"zones\": [", "\"data\": [",
            "frames[1].data: \"data\" stands twice in one object");
        row("huge number", "\"value\": 2}", "\"value\": 1e999}",
            "frames[1].fieldStyle.FieldMap.Mesh.MeshType[1].value: the number is too large");
        row("pick", "{\"zone\":2}", "{\"zone\":13}",
            "frames[1].picks[1].zone: 13 is beyond 12, the last number");
        row("empty pick", "{\"zone\":2}", "{}", "frames[1].picks[1]: must be one of ");
        row("pick of no kind", "{\"zone\":2}", "{\"other\":true}",
            "frames[1].picks[1].other: must be a number, not true");
        row("time", "\"variables\"", "\"time\": 0, \"variables\"",
            "frames[1].time: no zone belongs to a strand");
        row("plot type of a view", "\"picks\"", "\"views\": {\"01\": {}}, \"picks\"",
            "frames[1].views.01: the name must be a number from 1 to 5");
        row("active frame", "\"activeFrame\": 1", "\"activeFrame\": 2",
            "activeFrame: must be a whole number from 1 to 1, not 2");
        row("origin", "\"demo\"", "\"demos\"", "frames[1].data[1]: ");
        row("run of names", "\"Zone 12\"", "\"Zone x\"", "does not count on from the first");
        row("bad UTF-8", "Pressure", "", "line ");
    }
    void damageIsTold()
    {
        const auto [before, after, problem] = currentRow<QString, QString, QString>();
        openOnly("field2d", 12);
        executeAll({R"({"set": ["FieldMap", "Mesh", "MeshType"], "maps": "1-3", "value": 2})",
                    R"({"set": ["FieldMap", "Mesh", "MeshType"], "maps": "5", "value": 0})",
                    R"({"pick": [{"zone": 2}, {"zone": 13}]})"});
        save();
        QByteArray text = savedText().toUtf8();
        QVERIFY(text.contains(before.toUtf8()));
        text.replace(text.indexOf(before.toUtf8()), before.toUtf8().size(),
                     after.isEmpty() ? "\xff" : after.toUtf8());
        refuses(text, problem);
    }
    void cutFilesAreRefused()
    {
        openOnly("field2d", 3);
        save();
        const QByteArray text = savedText().toUtf8();
        for (int size = 0; size < text.size() - 2; size += 7)
            refuses(text.left(size), "line ");
        refuses(text + "}", "line ");
    }

    void oldFileStays_data()
    {
        const Rows<QString> row;
        for (const char* const name :
             {"read-only folder", "read-only file", "full disk", "a folder"})
            row(name, name);
    }
    void oldFileStays()
    {
        const auto [obstacle] = currentRow<QString>();
        if (::geteuid() == 0 && obstacle.startsWith("read-only"))
            QSKIP("everything is writable for root");
        const QString folder = m_folder.filePath(obstacle);
        m_file = folder + "/a.cvdoc";
        QVERIFY(QDir().mkpath(obstacle == "a folder" ? m_file : folder));
        openOnly("field2d", 3);
        QCOMPARE(save().isEmpty(), obstacle != "a folder");
        const QString before = savedText();
        executeAll({R"({"paletteColor": 3, "rgb": [1, 2, 3]})"});
        if (obstacle.startsWith("read-only"))
            QFile::setPermissions(obstacle.endsWith("file") ? m_file : folder,
                                  QFile::ReadOwner | QFile::ExeOwner);
        rlimit usual {};
        ::getrlimit(RLIMIT_FSIZE, &usual);
        rlimit small {100, usual.rlim_max};
        std::signal(SIGXFSZ, SIG_IGN);
        if (obstacle == "full disk")
            ::setrlimit(RLIMIT_FSIZE, &small);
        const QString problem = save();
        ::setrlimit(RLIMIT_FSIZE, &usual);
        QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
        QVERIFY2(problem.startsWith(m_file + " cannot be written: "), qPrintable(problem));
        QCOMPARE(savedText(), before);
        QCOMPARE(
            QDir(folder).entryList(QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList("a.cvdoc"));
    }
    void linksAndPermissionsStay()
    {
        const QString link = m_folder.filePath("link.cvdoc");
        QCOMPARE(save(), QString());
        QFile::setPermissions(m_file, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
        const auto permissions = QFile::permissions(m_file);
        QVERIFY(QFile::link(m_file, link));
        openOnly("field2d", 3);
        QCOMPARE(saveDocument(document(), link), QString());
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(QFile::permissions(m_file), permissions);
        QVERIFY(savedText().contains("field2d"));
    }

    void otherDataAreFitted()
    {
        openOnly("field2d", 6);
        executeAll({R"({"set": ["FieldMap", "Mesh", "MeshType"], "maps": "2,6", "value": 2})",
                    R"({"deleteMaps": "3"})", R"({"rename": "second", "zone": 2})",
                    R"({"active": "FieldMaps", "maps": "1,5", "op": "assign"})"});
        save();
        const LoadOutcome outcome = loadDocument(document(), m_file, demos(4));
        QCOMPARE(outcome.problem, QString());
        QCOMPARE(outcome.notes,
                 QStringList("Zones that are not in the data any more (2): Zone 5, Zone 6."));
        QCOMPARE(frame().data()->zoneCount(), std::int64_t(3));
        QCOMPARE(frame().data()->zone(2).name, std::string("second"));
        QCOMPARE(fieldValue({"FieldMap", "Mesh", "MeshType"}, 2), 2);
        QCOMPARE(fieldValue({"FieldMap", "Mesh", "Color"}, 3), 5); // as zone 4 had it
        QCOMPARE(text(frame().activeFieldMaps()), QStringLiteral("1"));
        loadDocument(document(), m_file, demos(8));
        QCOMPARE(frame().data()->zoneCount(), std::int64_t(7));
        QCOMPARE(fieldValue({"FieldMap", "Mesh", "MeshType"}, 5), 2);
        QCOMPARE(text(frame().activeFieldMaps()), QStringLiteral("1,5-7"));
    }

    void changedNamesAreTold()
    {
        openOnly("transient");
        executeAll({R"({"rename": "second", "zone": 2})", R"({"time": 1})"});
        save();
        const auto changed = [](const DataOrigin& origin, QString& problem) {
            auto data = demos()(origin, problem);
            for (ZoneInfo& zone : data->zones)
                zone.time += 10;
            data->zones[1].name = "inlet";
            data->variables[3].name = "heat";
            return data;
        };
        QCOMPARE(loadDocument(document(), m_file, changed).notes,
                 QStringList({"Zones matched by number (1): 2 \"second\" = \"inlet\".",
                              "Variables matched by number (1): 4 \"V\" = \"heat\".",
                              "The data do not reach the solution time 1."}));
        QCOMPARE(frame().solutionTime(), frame().data()->solutionTimes().front());
    }

    void runsOfNamesAreTheNames()
    {
        const std::vector<std::string> names {
            "8", "9", "10", "a", "", "1", "Z 099", "Z 100", "999999999999999", "1000000000000000"};
        NameList list;
        for (const std::string& name : names)
            list.add(name);
        QCOMPARE(list.names(), names);
        QCOMPARE(list.runs().size(), std::size_t(7));
        for (const NameList::Run& run : list.runs())
            QCOMPARE(run.count == 1
                         ? 0
                         : placesBetween(run.first, countedName(run.first, run.count - 1)),
                     run.count - 1);
    }

    void stylesAreTaken()
    {
        openOnly("field3d", 6);
        executeAll({R"({"set": ["FieldMap", "Mesh", "MeshType"], "maps": "2,6", "value": 2})",
                    R"({"set": ["ContourGroups", "Var", 2], "value": 7})",
                    R"({"paletteColor": 3, "rgb": [1, 2, 3]})"});
        save();
        openOnly("field2d", 4);
        executeAll({R"({"set": ["FieldMap", "Mesh", "MeshType"], "maps": "1", "value": 0})",
                    R"({"rename": "other", "zone": 4})",
                    R"({"set": ["FieldMap", "Mesh", "MeshType"], "maps": "4", "value": 0})"});
        const QStringList before = documentState();
        const int steps = document().undo().stepCount();
        const LoadOutcome outcome = loadStyles(document(), m_file);
        QCOMPARE(outcome.notes,
                 QStringList({"Zones that the data lack (3): Zone 4, Zone 5, Zone 6.",
                              "Variables that the data lack (2): Z, W."}));
        QStringList types;
        for (int map = 1; map <= 4; ++map)
            types << QString::number(fieldValue({"FieldMap", "Mesh", "MeshType"}, map));
        QCOMPARE(types.join(' '), QStringLiteral("1 2 1 0"));
        QCOMPARE(frame().integer(style::contourGroups.var, 2), 5); // "Pressure"
        QCOMPARE(document().undo().stepCount(), steps + 1);
        QVERIFY(document().undo().undo());
        QCOMPARE(documentState(), before);
    }

private:
    /// Save, load, save gives the same bytes and values, in another language too.
    void staysTheSame()
    {
        const QStringList state = documentState();
        QCOMPARE(save(), QString());
        const QString first = savedText();
        document().clear();
        QLocale::setDefault(QLocale(QLocale::German));
        std::setlocale(LC_ALL, "de_DE.UTF-8");
        const LoadOutcome outcome = loadDocument(document(), m_file, demos());
        save();
        std::setlocale(LC_ALL, "C.UTF-8");
        QLocale::setDefault(QLocale::c());
        QCOMPARE(outcome.problem, QString());
        QCOMPARE(outcome.notes, QStringList());
        QCOMPARE(savedText(), first);
        QCOMPARE(documentState(), state);
    }

    void refuses(const QByteArray& text, const QString& problem)
    {
        QFile file(m_file);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
        file.close();
        const QStringList state = documentState();
        const LoadOutcome outcome = loadDocument(document(), m_file, demos());
        QVERIFY2(outcome.problem.startsWith(m_file + ": ") && outcome.problem.contains(problem),
                 qPrintable(outcome.problem));
        QCOMPARE(documentState(), state);
    }
};

QTEST_GUILESS_MAIN(tst_StoredDocuments)
#include "tst_stored_documents.moc"
