// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/command_line.h"
#include "app/plot3d_layout.h"

#include <QTest>

using namespace corvala::app;

class tst_CommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void understands_data();
    void understands();
    void refuses_data();
    void refuses();
    void readsPlot3DLayouts();
    void refusesPlot3DLayouts_data();
    void refusesPlot3DLayouts();
};

static QString summary(const Options& options)
{
    QStringList parts;
    const auto add = [&parts](const char* name, const QString& value) {
        if (!value.isEmpty())
            parts << QLatin1String(name) + QLatin1Char(':') + value;
    };
    add("files", options.files.join(QLatin1Char(',')));
    add("demo", options.demo);
    add("script", options.script);
    add("report", options.report);
    add("picture", options.picture);
    add("plot3d", plot3DLayoutText(options.plot3d));
    add("help", options.help ? QStringLiteral("yes") : QString());
    add("version", options.version ? QStringLiteral("yes") : QString());
    return parts.join(QLatin1Char(' '));
}

void tst_CommandLine::understands_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("understood");
    QTest::addColumn<bool>("isBatch");

    QTest::newRow("nothing") << ""
                             << "" << false;
    QTest::newRow("files") << "a.vtu b.vtu"
                           << "files:a.vtu,b.vtu" << false;
    QTest::newRow("usual demo") << "--demo"
                                << "demo:field2d" << false;
    QTest::newRow("named demo") << "--demo kinds"
                                << "demo:kinds" << false;
    QTest::newRow("demo with equals sign") << "--demo=xy"
                                           << "demo:xy" << false;
    QTest::newRow("demo before an option") << "--demo --report r.json"
                                           << "demo:field2d report:r.json" << true;
    QTest::newRow("script, picture and file in any order")
        << "--play s.jsonl --render p.png d.cgns"
        << "files:d.cgns script:s.jsonl picture:p.png" << true;
    QTest::newRow("value that begins with a dash") << "--render -p.png"
                                                   << "picture:-p.png" << true;
    QTest::newRow("file that looks like an option") << "-- --demo"
                                                    << "files:--demo" << false;
    QTest::newRow("plot3d") << "--plot3d format=ascii,grids=many m.xyz"
                            << "files:m.xyz plot3d:format=ascii,grids=many" << false;
    QTest::newRow("help") << "--help"
                          << "help:yes" << false;
    QTest::newRow("version") << "--version"
                             << "version:yes" << false;
}

void tst_CommandLine::understands()
{
    QFETCH(QString, line);
    Options options;
    QCOMPARE(parseCommandLine(line.split(QLatin1Char(' '), Qt::SkipEmptyParts), options),
             QString());
    QTEST(summary(options), "understood");
    QTEST(options.isBatch(), "isBatch");
}

void tst_CommandLine::refuses_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("named");

    QTest::newRow("unknown option") << "--fast"
                                    << "'fast'";
    QTest::newRow("missing value at the end") << "--play"
                                              << "--play";
    QTest::newRow("missing value before an option") << "--report --render p.png"
                                                    << "--report";
    QTest::newRow("empty value") << "--render="
                                 << "--render";
    QTest::newRow("given twice") << "--play a --play b"
                                 << "--play";
    QTest::newRow("unknown demo") << "--demo field4d"
                                  << "field4d";
    QTest::newRow("demo and files") << "--demo xy a.vtu"
                                    << "--demo";
    QTest::newRow("bad layout") << "--plot3d endian=middle a.xyz"
                                << "middle";
}

void tst_CommandLine::refuses()
{
    QFETCH(QString, line);
    QFETCH(QString, named);
    Options options;
    const QString error = parseCommandLine(line.split(QLatin1Char(' ')), options);
    QVERIFY2(error.contains(named), qPrintable(error));
}

void tst_CommandLine::readsPlot3DLayouts()
{
    corvala::host::io::Plot3DLayout layout;
    layout.iblank = true;
    const QString text = QStringLiteral("format=binary, endian=big,iblank=auto,dimensions=2");
    QCOMPARE(parsePlot3DLayout(text, layout), QString());
    QCOMPARE(layout.ascii, std::optional<bool>(false));
    QCOMPARE(layout.bigEndian, std::optional<bool>(true));
    QCOMPARE(layout.twoDimensional, std::optional<bool>(true));
    QVERIFY(!layout.iblank && !layout.multiGrid);
    QCOMPARE(plot3DLayoutText(layout), QStringLiteral("format=binary,endian=big,dimensions=2"));
    QCOMPARE(describePlot3DLayout(layout), QStringLiteral("binary, big endian, two dimensions"));
}

void tst_CommandLine::refusesPlot3DLayouts_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("named");

    QTest::newRow("unknown property") << "format=ascii,colour=red"
                                      << "colour";
    QTest::newRow("unknown word") << "format=ascii,grids=two"
                                  << "two";
    QTest::newRow("no value") << "format=ascii,records"
                              << "records";
}

void tst_CommandLine::refusesPlot3DLayouts()
{
    QFETCH(QString, text);
    QFETCH(QString, named);
    corvala::host::io::Plot3DLayout layout;
    const QString error = parsePlot3DLayout(text, layout);
    QVERIFY2(error.contains(named), qPrintable(error));
    QVERIFY2(!layout.ascii, "a refused layout changes nothing");
}

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_command_line.moc"
