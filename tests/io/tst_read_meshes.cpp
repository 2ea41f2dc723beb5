// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/damage.h"
#include "tests/io/mesh_files.h"
#include "tests/support/rows.h"

#include <QProcess>

#include <vtk_cgns.h>

#include VTK_CGNS(cgns_io.h)

using namespace corvala::host;
using namespace corvala::host::io;
using namespace corvala::tests;

using Times = std::vector<double>;
using Change = std::function<QByteArray(QByteArray)>;

/// The first values of a variable in each zone; NaN where it has none.
static QVector<double> firstValues(const DataSet& data, const QString& variable)
{
    QVector<double> result;
    for (std::int64_t zone = 1; zone <= data.zoneCount(); ++zone)
        result << values(data, zone, variable).value(0, -1);
    return result;
}

/// Sound data of which nothing else was said.
static void verify(const ReadResult& result, const Times& times, const QVector<double>& first,
                   const QString& note, const QString& variable)
{
    QVERIFY2(result.data, qPrintable(result.error));
    QCOMPARE(result.data->solutionTimes(), times);
    const QVector<double> shown = firstValues(*result.data, variable);
    QString text;
    QDebug(&text) << shown;
    QVERIFY2(shown == first, qPrintable(text));
    const QString notes = result.noteGroups.join('\n');
    QVERIFY2(note.isEmpty() ? notes.isEmpty() : notes.contains(note), qPrintable(notes));
}

class TestReadMeshes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<DataFolder>(); }

    void solutionsOfCgns_data()
    {
        const Rows<CgnsForm, Times, QVector<double>, QString> row;
        const Times all {0.5, 1.5, 2.5};
        const QVector<double> inOrder {100, 200, 300, 100, 200, 300};
        const QStringList three {"Sol#1", "Sol#2", "Sol#3"};
        row("as it should be", {three, three, true}, all, inOrder, {});
        row("pointers to nothing", {{"Sol#4", "Sol#20", "Sol#100"}, {"A", "B", "C"}, true}, all,
            inOrder, "they were taken in their order");
        row("no numbers", {{"Start", "Middle", "End"}, {"A", "B", "C"}, true}, all, inOrder,
            "they were taken in their order");
        row("no pointers", {three, {}, true}, all, inOrder, "they were taken in their order");
        row("pointers in one zone", {three, {"Sol#3", "Sol#2", "Sol#1"}, false}, all,
            {100, 200, 300, 300, 200, 100}, "they were taken in their order");
        row("one pointer to nothing", {three, {"Sol#1", "B", "Sol#3"}, true}, all,
            {100, -1, 300, 100, -1, 300},
            "a.cgns: the solution B of Z1 was left out: there is none. (and 1 more like it)");
        row("too few solutions", {{"Sol#1", "Sol#2"}, {"A", "B", "C"}, true}, {}, {100, 100},
            "the first ones are shown, without a time");
        row("of an early library", {three, three, true, false, true}, all, inOrder, {});
        row("of an early library, pointers to nothing", {three, {"A", "B", "C"}, true, false, true},
            all, inOrder, "they were taken in their order");
        row("steady", {three, {}, true, true}, {}, {100, 100},
            "a.cgns: of 3 solutions of Z1 without a time the first one, Sol#1, is shown. (and 1 ");
        row("one solution for all", {{"Sol"}, {}, true}, all, {100, 100, 100, 100, 100, 100}, {});
    }

    void solutionsOfCgns()
    {
        const auto [form, times, first, note] =
            currentRow<CgnsForm, Times, QVector<double>, QString>();
        for (const bool isHdf5 : {true, false}) {
            writeCgns(m_folder->path("a.cgns"), form, isHdf5);
            const ReadResult result = read({m_folder->path("a.cgns")});
            verify(result, times, first, note, "p");
            QCOMPARE(firstValues(*result.data, "q").last(), first.last());
        }
    }

    void cellsOfCgns()
    {
        writeCgnsCells(m_folder->path("a.cgns"));
        const ReadResult result = read({m_folder->path("a.cgns")});
        for (const char* const variable : {"p", "c"})
            verify(result, {0.5, 1.5, 2.5}, {100, 200, 300}, "they were taken in their order",
                   variable);
        QCOMPARE(result.data->zone(1).cellCount, std::int64_t(1));
        int file = 0;
        double root = 0;
        double version = 0;
        const float early = 3.0F;
        const QString path = m_folder->path("a.cgns");
        QVERIFY(cgio_open_file(qPrintable(path), CGIO_MODE_MODIFY, CGIO_FILE_NONE, &file) == 0
                && cgio_get_root_id(file, &root) == 0
                && cgio_get_node_id(file, root, "CGNSLibraryVersion", &version) == 0
                && cgio_write_all_data(file, version, &early) == 0 && cgio_close_file(file) == 0);
        const QString error = read({path}).error;
        QVERIFY2(error.contains("\"cells\" are numbered as in CGNS 3.0"), qPrintable(error));
    }

    void patchesOfCgns_data()
    {
        const Rows<bool> row;
        row("HDF5", true);
        row("ADF", false);
    }

    void patchesOfCgns()
    {
        const auto [isHdf5] = currentRow<bool>();
        ReadRequest request;
        request.files << m_folder->path("a.cgns");
        writeCgnsPatches(request.files[0], isHdf5);
        QProcess look;
        look.start(DataReader::readerProgram(), {"--reason-of-crash", request.files[0]});
        QVERIFY(look.waitForFinished()
                && look.readAllStandardOutput().contains("[\"CGNS\",\"MIXED\"]"));
        QCOMPARE(DataReader::read(request).offers.boundaryPatches, std::int64_t(6));
        request.choices.boundaryPatches = true;
        const ReadResult result = DataReader::read(request);
        QVERIFY2(result.data, qPrintable(result.error));
        QStringList patches;
        for (std::int64_t zone = 3; zone <= result.data->zoneCount(); ++zone) {
            patches << QString::fromStdString(result.data->zone(zone).name) + ':';
            for (const double value : values(*result.data, zone, "p"))
                patches.last() += QString(" %1").arg(value);
            for (const double value : values(*result.data, zone, "c"))
                patches.last() += QString(", %1").arg(value);
        }
        QCOMPARE(patches,
                 (QStringList {"Grid/Top: 6 7 8 9 10 11, 10, 20", "Grid/Out: 2 5 8 11, 20",
                               "Cells/Wall/Left: 0 3 6 9, 10", "Cells/Wall/Right: 2 5 11, 20",
                               "Cells/Bottom: 0 1 2 3 4 5, 10, 20"}));
        QCOMPARE(result.noteGroups,
                 QStringList("a.cgns: the boundary patch Lost of Cells was left out: it names "
                             "points or elements that are not there."));
    }

    void damagedFiles_data()
    {
        const Rows<QString> row;
        for (const char* const file :
             {"links.cgns", "adf.cgns", "patches.cgns", "a.e", "hdf5.e", "case/2.5/U", "case/1/p",
              "case/constant/polyMesh/faces", "case/constant/polyMesh/owner"})
            row(file, file);
    }

    void damagedFiles()
    {
        const auto [name] = currentRow<QString>();
        writeMeshes();
        const bool isText = name.contains('/');
        const QString opened = isText ? QString("case/case.foam") : name;
        const QByteArray content = contentOf(name);
        const MadeFile made = isText ? textFile(content) : plainFile(content);
        const Shown sound(*m_folder, {opened});
        QVERIFY2(sound.error.isEmpty(), qPrintable(sound.error));
        for (const Damage& damage : damages()) {
            const QByteArray damaged = damage.apply(made);
            QFile::remove(m_folder->path(name));
            if (!damaged.isNull())
                m_folder->write(name, damaged);
            const Shown shown(*m_folder, {opened});
            const QString problem =
                shown.problemAgainst(sound, {name, shown.error.isEmpty() ? name : opened});
            if (!problem.isEmpty())
                QTest::qFail(qPrintable(damage.name + QStringLiteral(": ") + problem), __FILE__,
                             __LINE__);
        }
    }

    void cutFiles_data()
    {
        const Rows<QString> row;
        for (const char* const file : {"hdf5.cgns", "adf.cgns", "a.e", "hdf5.e"})
            row(file, file);
    }

    void cutFiles()
    {
        const auto [name] = currentRow<QString>();
        writeMeshes();
        QFile file(m_folder->path(name));
        const qint64 half = file.size() / 2;
        QVERIFY(file.resize(half));
        const QString error = read({file.fileName()}).error;
        QVERIFY2(error.contains(QString("it is cut off: %1 of ").arg(half)), qPrintable(error));
    }

    void foam_data()
    {
        const Rows<std::function<void(const QDir&)>, int, QVector<int>, QString> row;
        const auto eachTime = [](const QDir& folder, auto change) {
            for (const QString& time : folder.entryList({"[0-2]*"}, QDir::Dirs))
                change(QDir(folder.filePath(time)));
        };
        const QStringList two {"processor0", "processor1"};
        const auto erase = [](QDir folder) { folder.removeRecursively(); };
        row("one case", [](auto&) {}, 1, {}, {});
        row("processors alone",
            [=](const QDir& folder) {
                split(two);
                erase(folder.filePath("constant"));
                eachTime(folder, erase);
            },
            2, {}, {});
        row("a part of a mesh in the case",
            [=](const QDir& folder) {
                split(two);
                eachTime(folder, erase);
                QDir(folder.filePath("constant/polyMesh")).remove("faces");
            },
            2, {}, {});
        row("a mesh in the case",
            [=](const QDir& folder) {
                split(two);
                eachTime(folder, erase);
            },
            2, {}, {});
        row("one field in the case",
            [=](const QDir& folder) {
                split(two);
                eachTime(folder, [](QDir time) { time.remove("p"); });
            },
            2, {}, {});
        row(
            "a copy of a field",
            [](const QDir& folder) {
                QFile::copy(folder.filePath("1/p"), folder.filePath("2.5/p.orig"));
            },
            1, {}, "2.5/p.orig says that it is p, as another file does; it is shown as p.orig.");
        row("all in the case", [=](auto&) { split(two); }, 1, {}, {});
        row(
            "one processor is behind",
            [=](const QDir& folder) {
                split(two);
                eachTime(folder, erase);
                erase(folder.filePath("processor1/2.5"));
            },
            2, {6}, "2.5 was left out: processor1 does not have it.");
        row(
            "one processor has no mesh",
            [=](const QDir& folder) {
                split({"processor0", "processor1", "processor2"});
                eachTime(folder, erase);
                erase(folder.filePath("processor1/constant"));
            },
            2, {}, "processor1 was left out: there is no mesh in it.");
        row("collated results",
            [=](const QDir& folder) {
                collate("processors2", "ascii");
                QProcess::execute("gzip", {"-r", folder.filePath("processors2")});
                erase(folder.filePath("2.5"));
            },
            2, {}, {});
        row(
            "collated files without the mesh of the case",
            [=](const QDir& folder) {
                collate("processors2_0-1", "binary");
                erase(folder.filePath("constant"));
                const QString p = "case/processors2_0-1/2.5/p";
                m_folder->write(p, contentOf(p).chopped(9));
            },
            2, {6}, "2.5/p was left out: processor1 does not have it.");
        row(
            "an unknown directive",
            [](const QDir& folder) {
                QFile file(folder.filePath("2.5/p"));
                QVERIFY(file.open(QIODevice::ReadWrite));
                const QByteArray all =
                    file.readAll().replace("boundaryField", "#calc boundaryField");
                file.seek(0);
                file.write(all);
            },
            1, {6}, "has the directive \"#calc\", which cannot be read.");
    }

    void foam()
    {
        const auto [change, parts, missing, note] =
            currentRow<std::function<void(const QDir&)>, int, QVector<int>, QString>();
        const auto sound = dataOf({DataFolder::sample("cavity_transient/case.foam")});
        QVector<double> first = firstValues(*sound, "p");
        const QDir folder(m_folder->copySample("cavity_transient", "case"));
        change(folder);
        const ReadResult result = read({m_folder->path("")}); // which holds one case
        QVERIFY2(result.data, qPrintable(result.error));
        QCOMPARE(result.data->zone(1).cellCount, std::int64_t(400 * parts));
        for (int time = 1; time <= 6; ++time)
            QCOMPARE(values(*result.data, time, "p").value(0, -1),
                     missing.contains(time) ? -1 : first[time - 1]);
        const QString notes = result.noteGroups.join('\n');
        QVERIFY2(note.isEmpty() ? notes.isEmpty() : notes.contains(note), qPrintable(notes));
        if (note.contains("p.orig"))
            QCOMPARE(values(*result.data, 6, "p.orig").value(0, -1), first[2]);
    }

    void collatedFoam()
    {
        const QDir folder(m_folder->copySample("cavity_transient", "case"));
        split({"processors2_0-1"});
        QDir(folder.filePath("constant")).removeRecursively();
        const QString error = read({folder.filePath("case.foam")}).error;
        QVERIFY2(error.contains("processors2_0-1 has the files of several processors in one"),
                 qPrintable(error));
    }

    void exodus_data()
    {
        const Rows<ExodusForm, int, Times, QVector<double>, QString> row;
        const Times all {0.5, 1.5, 2.5};
        const QVector<double> blocks {100, 200, 300, 100, 200, 300};
        const QString set = "a.e: the set \"7\" was left out: what it names is not there.";
        row("sound", {}, 0, all, blocks + QVector<double> {101, 201, 301}, {});
        row("cut in the last time", {}, 20, {0.5, 1.5}, {100, 200, 100, 200, 101, 201},
            "a.e: 1 of 3 times were left out: it is cut off: ");
        row("a set of no element", {all, 0, false, 9, "HEX8"}, 0, all, blocks, set);
        row("a set of no element, HDF5", {all, 0, true, 9, "HEX8"}, 0, all, blocks, set);
        row("unknown elements", {all, 0, false, 1, "BLOB"}, 0, all, {100, 200, 300, 101, 201, 301},
            "a.e: element block 2 was left out: its elements (BLOB of 8 points) cannot be read.");
        row("unknown points", {all, 0, false, 1, "TETRA"}, 0, all, {100, 200, 300, 101, 201, 301},
            "a.e: element block 2 was left out: its elements (TETRA of 8 points) cannot be read.");
    }

    void exodus()
    {
        const auto [form, cut, times, first, note] =
            currentRow<ExodusForm, int, Times, QVector<double>, QString>();
        writeExodus(m_folder->path("a.e"), form);
        m_folder->write("a.e", contentOf("a.e").chopped(cut));
        verify(read({m_folder->path("a.e")}), times, first, note, "T");
    }

    void runsOfExodus_data()
    {
        const Rows<QStringList, QStringList, Times, QVector<double>, QString> row;
        const QVector<double> stages {100,  1100, 2100, 2200, 100,  1100,
                                      2100, 2200, 101,  1101, 2101, 2201};
        const QVector<double> pieces {100,  200,  100,  200,  101,  201,
                                      1100, 1200, 1100, 1200, 1101, 1201};
        const QStringList run {"a.e", "a.e-s002", "a.e-s003"};
        row("a run", run, {"a.e-s002"}, {0.5, 1, 2, 4}, stages, {});
        row("a folder", run, {""}, {0.5, 1, 2, 4}, stages, {});
        row("pieces", {"a.e.2.0", "a.e.2.1"}, {"a.e.2.1", "a.e.2.0"}, {0.5, 1.5}, pieces, {});
        row("a piece is missing", {"a.e.03.00", "a.e.03.02"}, {"a.e.03.00"}, {0.5, 1.5}, pieces,
            "a.e.03.01 was left out: there is no such file.");
    }

    /// Each stage of a run has the times of the next one, too, which count.
    void runsOfExodus()
    {
        const auto [files, opened, times, first, note] =
            currentRow<QStringList, QStringList, Times, QVector<double>, QString>();
        for (int i = 0; i < files.size(); ++i) {
            const bool isRun = files[0] == "a.e";
            const Times own = isRun ? Times {0.5 * (1 << i), 1.0 * (1 << i)} : Times {0.5, 1.5};
            writeExodus(m_folder->write("run/" + files[i], {}),
                        {own, 1000.0 * i, false, 1, "HEX8"});
        }
        QStringList paths;
        for (const QString& file : opened)
            paths << m_folder->path("run/" + file);
        verify(read(paths), times, first, note, "T");
    }

private:
    void writeMeshes() const
    {
        const QStringList three {"Sol#1", "Sol#2", "Sol#3"};
        writeCgns(m_folder->path("links.cgns"), {three, {"A", "B", "C"}, true}, true);
        writeCgns(m_folder->path("hdf5.cgns"), {three, three, true}, true);
        writeCgns(m_folder->path("adf.cgns"), {three, three, true}, false);
        writeCgnsPatches(m_folder->path("patches.cgns"), false);
        writeExodus(m_folder->path("a.e"), {});
        writeExodus(m_folder->path("hdf5.e"), {{0.5, 1.5, 2.5}, 0.0, true, 1, "HEX8"});
        m_folder->copySample("cavity_transient", "case");
    }

    /// Gives the case these folders, each with all of the case.
    void split(const QStringList& names) const
    {
        for (const QString& name : names)
            m_folder->copySample("cavity_transient", "case/" + name);
    }

    /// Gives the case a folder in which each of its files is there for two processors.
    void collate(const QString& name, const QByteArray& format) const
    {
        const QDir source(DataFolder::sample("cavity_transient"));
        QDirIterator files(source.path(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = source.relativeFilePath(files.next());
            const QByteArray first = contentOf("case/" + file);
            const QByteArray second = first.mid(first.indexOf('}') + 1);
            const auto block = [](const QByteArray& content) {
                return QByteArray::number(content.size()) + "\n(" + content + ")\n";
            };
            m_folder->write("case/" + name + '/' + file,
                            "FoamFile\n{\n    format " + format
                                + ";\n    class decomposedBlockData;\n}\n\n// Processor0\n"
                                + block(first) + "\n// Processor1\n" + block(second));
        }
    }

    QByteArray contentOf(const QString& name) const
    {
        QFile file(m_folder->path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<DataFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestReadMeshes)
#include "tst_read_meshes.moc"
