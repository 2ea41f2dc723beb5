// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/private_x_server.h"
#include "tests/app/program_run.h"
#include "tests/support/rows.h"

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <set>

using namespace corvala::tests;

static int colorsOf(const QImage& image)
{
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); y += 3) {
        for (int x = 0; x < image.width(); x += 3)
            colors.insert(image.pixel(x, y));
    }
    return static_cast<int>(colors.size());
}

class tst_ProgramPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawsWithoutAScreen_data()
    {
        const Rows<QStringList> row;

        row("field plot", {"--demo", "field3d"});
        row("line plot", {"--demo", "xy"});
        row("field without paper", {"--demo", "field3d", "--transparent"});
        row("lines without paper", {"--demo", "xy", "--transparent"});
        row("real data", {QStringLiteral(CORVALA_SAMPLES "/cgns_hexa/cgnslib_vers-4400.cgns")});
    }

    void drawsWithoutAScreen()
    {
        const auto [data] = currentRow<QStringList>();
        const QString file = m_folder.filePath(QStringLiteral("plot.png"));
        const ProgramRun run = runProgram(QStringList {"--render", file} + data);
        QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
        const QImage image(file);
        QVERIFY(!image.isNull());
        QVERIFY2(colorsOf(image) > 3, "the picture is not empty");
        QCOMPARE(qAlpha(image.pixel(0, 0)), data.contains("--transparent") ? 0 : 255);
    }

    void keepsLinesAndTexts_data()
    {
        const Rows<QStringList, QString, QByteArrayList, QByteArray> row;

        row("lines as PDF", {"--demo", "xy"}, "a.pdf",
            {"%PDF-", "/MediaBox [0.0000 -0.1575 453.5433 340.0000]", "/FontFile2"},
            "/Subtype /Image");
        row("lines as SVG", {"--demo", "xy", "--size", "80x60mm"}, "a.svg",
            {"<svg ", "width=\"80mm\"", "clip-path=\"url(#clip", ">Time</text>"}, "<image");
        row("a large page", {"--demo", "xy", "--size", "2000x900mm"}, "a.pdf",
            {"-0.1811 5669.2913 2551.0000]"}, "/Subtype /Image");
        row("lines as TIFF", {"--demo", "xy", "--transparent", "--size", "80x60"}, "a.tif",
            {QByteArray("II*\0", 4), QByteArray::fromHex("520103000100000002000000")},
            QByteArray::fromHex("31010200")); // who wrote it
        row("field as PDF", {"--demo", "field2d", "--size", "600x450"}, "a.pdf",
            {"%PDF-", "/FontFile2", "/Width 600"}, "CreationDate");
    }

    void keepsLinesAndTexts()
    {
        const auto [arguments, name, parts, lacking] =
            currentRow<QStringList, QString, QByteArrayList, QByteArray>();
        QByteArrayList written;
        for (int i = 0; i < 2; ++i) {
            QFile file(m_folder.filePath(name));
            const ProgramRun run =
                runProgram(arguments + QStringList {"--render", file.fileName()});
            QVERIFY2(run.exitCode == 0 && file.open(QIODevice::ReadOnly), qPrintable(run.errors));
            written << file.readAll();
        }
        for (const QByteArray& part : parts)
            QVERIFY2(written[0].contains(part), part.constData());
        QVERIFY2(!written[0].contains(lacking), lacking.constData());
        QVERIFY2(written[0] == written[1], "the same picture gives the same bytes");
    }

    void aScriptChangesThePicture()
    {
        const QString plain = m_folder.filePath(QStringLiteral("plain.png"));
        const QString styled = m_folder.filePath(QStringLiteral("styled.png"));
        const QString script =
            writeScript(m_folder.path(),
                        {R"({"dialog": "open"})", R"({"select": "all"})",
                         R"({"menu": 1, "column": "Mesh\nColor", "color": 2})",
                         R"({"set": ["FieldAxes", "Y", "RangeMin"], "value": 9})",
                         R"({"set": ["FieldAxes", "Y", "AutomaticRange"], "value": false})"});
        QCOMPARE(runProgram({"--demo", "field2d", "--render", plain}).exitCode, 0);
        const ProgramRun run =
            runProgram({"--demo", "field2d", "--play", script, "--render", styled});
        QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
        QVERIFY(QImage(plain) != QImage(styled));
        QVERIFY2(run.errors.contains("corvala: note: The Y axis"), qPrintable(run.errors));
        QCOMPARE(QImage(plain).size(), QImage(styled).size());
    }

    void namesTheMissingPackage()
    {
        QProcessEnvironment environment = environmentWithoutDisplay();
        environment.insert(QStringLiteral("PATH"), m_folder.path());
        const QString file = m_folder.filePath(QStringLiteral("none.png"));
        const ProgramRun run = runProgram({"--demo", "--render", file}, environment);
        QCOMPARE(run.exitCode, 1);
        QVERIFY2(run.errors.contains(QLatin1String("install the package xvfb")),
                 qPrintable(run.errors));
        QVERIFY(!QFile::exists(file));
    }

    void endsItsServer()
    {
        QString socket;
        {
            corvala::app::PrivateXServer server;
            QCOMPARE(server.launch(), QString());
            socket = QStringLiteral("/tmp/.X11-unix/X") + server.display().mid(1);
            QVERIFY2(QFile::exists(socket), qPrintable(server.display()));
        }
        QVERIFY(!QFile::exists(socket));
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_ProgramPictures)
#include "tst_program_pictures.moc"
