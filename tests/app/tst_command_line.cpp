// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/command_line.h"
#include "app/plot3d_layout.h"
#include "tests/support/rows.h"

#include <QTest>

using namespace corvala::app;
using namespace corvala::tests;

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
    add("document", options.document);
    add("picture", options.picture);
    if (!options.picture.isEmpty()) {
        const QSize size = options.pictureSize.pixels();
        add("size", QStringLiteral("%1x%2").arg(size.width()).arg(size.height()));
    }
    add("plot3d", plot3DLayoutText(options.plot3d));
    add("choices",
        QString(options.choices.boundaryPatches ? "patches " : "")
            + (options.choices.numberedTimes ? "times" : ""));
    add("help", options.help ? QStringLiteral("yes") : QString());
    add("version", options.version ? QStringLiteral("yes") : QString());
    return parts.join(QLatin1Char(' '));
}

class tst_CommandLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void understands_data()
    {
        const Rows<QString, QString, bool> row;

        row("nothing", "", "", false);
        row("files", "a.vtu b.vtu", "files:a.vtu,b.vtu", false);
        row("usual demo", "--demo", "demo:field2d", false);
        row("named demo", "--demo kinds", "demo:kinds", false);
        row("demo with equals sign", "--demo=xy", "demo:xy", false);
        row("demo before an option", "--demo --report r.json", "demo:field2d report:r.json", true);
        row("script, picture and file in any order", "--play s.jsonl --render p.png d.cgns",
            "files:d.cgns script:s.jsonl picture:p.png size:1200x900", true);
        row("value that begins with a dash", "--render -p.png", "picture:-p.png size:1200x900",
            true);
        row("page", "--render p.PDF", "picture:p.PDF size:1890x1417", true);
        row("resolution", "--render p.svg --size 25.4x12.7mm --dpi 600",
            "picture:p.svg size:600x300", true);
        row("pixels", "--render p.svg --size 640x480", "picture:p.svg size:640x480", true);
        row("file that looks like an option", "-- --demo", "files:--demo", false);
        row("plot3d", "--plot3d format=ascii,grids=many m.xyz",
            "files:m.xyz plot3d:format=ascii,grids=many", false);
        row("save", "a.vtu --save a.cvdoc", "files:a.vtu document:a.cvdoc", true);
        row("choices of reading", "--numbered-times --boundary-patches a_1.cgns",
            "files:a_1.cgns choices:patches times", false);
        row("begun again by a session manager", "-session 1_2 a.vtu", "files:a.vtu", false);
        row("options of Qt", "-style fusion a.vtu -platform=xcb", "files:a.vtu", false);
        row("help", "--help", "help:yes", false);
        row("version", "--version", "version:yes", false);
    }

    void understands()
    {
        const auto [line, understood, isBatch] = currentRow<QString, QString, bool>();
        Options options;
        QCOMPARE(parseCommandLine(line.split(QLatin1Char(' '), Qt::SkipEmptyParts), options),
                 QString());
        QCOMPARE(summary(options), understood);
        QCOMPARE(options.isBatch(), isBatch);
    }

    void refuses_data()
    {
        const Rows<QString, QString> row;

        row("unknown option", "--fast", "'fast'");
        row("missing value at the end", "--play", "--play");
        row("missing value before an option", "--report --render p.png", "--report");
        row("empty value", "--render=", "--render");
        row("given twice", "--play a --play b", "--play");
        row("unknown demo", "--demo field4d", "field4d");
        row("demo and files", "--demo xy a.vtu", "--demo");
        row("document and files", "a.cvdoc a.vtu", "alone");
        row("picture of no format", "--render p.foo", "p.foo");
        row("bad size", "--render p.png --size 160mm", "160mm");
        row("size of nothing", "--render p.png --size 0x10", "0x10");
        row("too large a picture", "--render p.png --size 2000x2000mm", "23622");
        row("too large a page", "--render p.pdf --size 6000x90mm", "6000");
        row("bad resolution", "--render p.pdf --dpi -1", "-1");
        row("no transparent pixels", "--render p.jpg --transparent", "--transparent");
        row("bad layout", "--plot3d endian=middle a.xyz", "middle");
    }

    void refuses()
    {
        const auto [line, named] = currentRow<QString, QString>();
        Options options;
        const QString error = parseCommandLine(line.split(QLatin1Char(' ')), options);
        QVERIFY2(error.contains(named), qPrintable(error));
    }

    void readsPlot3DLayouts()
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
        QCOMPARE(describePlot3DLayout(layout),
                 QStringLiteral("binary, big endian, two dimensions"));
    }

    void refusesPlot3DLayouts_data()
    {
        const Rows<QString, QString> row;

        row("unknown property", "format=ascii,colour=red", "colour");
        row("unknown word", "format=ascii,grids=two", "two");
        row("no value", "format=ascii,records", "records");
    }

    void refusesPlot3DLayouts()
    {
        const auto [text, named] = currentRow<QString, QString>();
        corvala::host::io::Plot3DLayout layout;
        const QString error = parsePlot3DLayout(text, layout);
        QVERIFY2(error.contains(named), qPrintable(error));
        QVERIFY2(!layout.ascii, "a refused layout changes nothing");
    }
};

QTEST_GUILESS_MAIN(tst_CommandLine)
#include "tst_command_line.moc"
