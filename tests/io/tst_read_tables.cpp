// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/io_support.h"
#include "tests/support/rows.h"

#include <QTextCodec>

using namespace corvala::host;
using namespace corvala::host::io;
using namespace corvala::tests;

/// Zones with their variables and values, such as "a: x=1,2 y=3,nan", or the reason of a failure.
static QString toldOf(const ReadResult& result)
{
    if (!result.data)
        return result.error.section(QStringLiteral(" could not be read: "), 1);
    QStringList zones;
    for (int zone = 1; zone <= result.data->zoneCount(); ++zone) {
        QStringList columns {QString::fromStdString(result.data->zone(zone).name) + ':'};
        for (const QString& name : variableNames(*result.data)) {
            QStringList numbers;
            for (const double value : values(*result.data, zone, name))
                numbers << QString::number(value, 'g', 12);
            if (!numbers.isEmpty())
                columns << name + '=' + numbers.join(',');
        }
        zones << columns.join(' ');
    }
    return zones.join("; ");
}

static QByteArray encoded(const QString& text, const char* codec)
{
    return QTextCodec::codecForName(codec)->fromUnicode(text);
}

/// Tables of text.
class TestReadTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<DataFolder>(); }

    void contents_data()
    {
        const Rows<QByteArray, QString, QString> row; // content, dialect, what is told
        const QString xy = "a: x=1,3 y=2,4";
        // Separators, decimal signs, quotes.
        row("commas", "x,y\n1,2\n3,4\n", "", xy);
        row("semicolons and decimal commas", "x;y\n1,5;2\n-3,25;+4E1\n", "",
            "a: x=1.5,-3.25 y=2,40");
        row("decimal commas in quotes", "x,y\n1,\"2,5\"\n2,\"-3,25\"\n", "",
            "a: x=1,2 y=2.5,-3.25");
        row("groups of digits", "x;y\n1.234,5;2\n-3,25;1.000.000\n", "",
            "a: x=1234.5,-3.25 y=2,1000000");
        row("tabs, one or two", "1.0\t2\n3.0\t\t4\n5\t6\n", "", "a: Column 1=1,3,5 Column 2=2,4,6");
        row("tabs round empty fields", "x\ty\tz\n1\t\t2\n3\t4\t5\n", "", "a: x=1,3 y=nan,4 z=2,5");
        row("blanks", "  x   y\n 1.5   2\n10   -.5\n", "", "a: x=1.5,10 y=2,-0.5");
        row("bars", "x|y\n1|2\n3|4\n", "", xy);
        row("colons", "x:y\n1:2\n3:4\n", "", xy);
        row("commas at the end of rows", "x,y,\n1,2,\n3,4,\n", "", xy);
        row("quotes, with separators, quotes and line ends in them",
            "\"x, \"\"1\"\"\",y\n\"1\",\"two\nlines\"\n3,plain\n", "",
            "a: Row=1,2 x, \"1\"=1,3 y=1,2");
        row("single quotes", "'x','y'\n'1','2'\n3,4\n", "", xy);
        row("vectors in brackets", "# t U\n0.1 (1 2 3)\n0.2 (4 5 6)\n", "",
            "a: t=0.1,0.2 U X=1,4 U Y=2,5 U Z=3,6");
        row("Fortran", "1.5D+01  2d0\n-1.D-1 ****\n", "", "a: Column 1=15,-0.1 Column 2=2,nan");
        // Headers, units, comments.
        row("comments", "# of today\n# x\ty\n1\t2\n# between\n3\t4\n", "", xy);
        row("units", "time,speed [m/s]\n(s),m/s\n0,1.5\n1,2.5\n", "",
            "a: time [s]=0,1 speed [m/s]=1.5,2.5");
        row("two rows of names", "flow,flow,wall\nspeed,temperature,temperature\n1,2,3\n4,5,6\n",
            "", "a: flow speed=1,4 flow temperature=2,5 wall temperature=3,6");
        row("numbered columns", "#  Probe  0  1\n#  Time\n 0.1  5  6\n 0.2  7  8\n", "",
            "a: Time=0.1,0.2 Probe 0=5,7 Probe 1=6,8");
        row("names that occur twice, or not at all", "x,x,\n1,2,3\n4,5,6\n", "",
            "a: x=1,4 x 2=2,5 Column 3=3,6");
        row("lines above the table", "Measured by Ada\n\nx,y,z\n1,2,3\n4,5,6\n", "",
            "a: x=1,4 y=2,5 z=3,6");
        row("blanks in names", "x [m]\ty 1\n1\t2\n3\t4\n", "", "a: x [m]=1,3 y 1=2,4");
        row("rows that have names", "x y\n1 2.5 3\n2 4.5 5\n", "",
            "a: Column 1=1,2 x=2.5,4.5 y=3,5");
        row("header that is chosen", "1,2\n3,4\n", "header=1,data=2", "a: 1=3 2=4");
        // Times, words, missing values.
        row("dates", "day,v\n2012-01-02,1\n2012-01-03,2\n", "",
            "a: day=1325462400,1325548800 v=1,2");
        row("dates with times", "t,v\n1970-01-01T00:01:00Z,1\n1970-01-01 02:00:30.5+01:00,2\n", "",
            "a: t=60,3630.5 v=1,2");
        row("dates beside times", "day;hour;v\n02.01.1970;00:10;1\n13.01.1970;12:00:01;2\n", "",
            "a: day hour=87000,1080001 v=1,2");
        row("month first", "t,v\n01/13/1970,1\n02/01/70,2\n", "", "a: t=1036800,2678400 v=1,2");
        row("names of months", "t,v\n1-Feb-1970,1\n02-Mar-1970,2\n", "",
            "a: t=2678400,5184000 v=1,2");
        row("words", "x,state\n1,on\n2,off\n3,on\n", "", "a: Row=1,2,3 x=1,2,3 state=1,2,1");
        row("missing values", "x,y,z\n1,,NA\n-999,nan,2\n3,-,n/a\n", "missing=-999",
            "a: x=1,nan,3 y=nan,nan,nan z=nan,2,nan");
        row("numbers without end", "x,y\n1,inf\n2,-Infinity\n3,1e999\n", "",
            "a: x=1,2,3 y=inf,-inf,inf");
        row("columns that are chosen", "at,day,n,x\n1,20120102,007,5\n2,20120103,008,6\n",
            "columns=1:skip 2:dates 3:words", "a: day=1325462400,1325548800 n=1,2 x=5,6");
        // Encodings and line ends.
        const QString text = QStringLiteral("x;\u00e4\n1;2\n3;4\n");
        const QString told = QStringLiteral("a: x=1,3 \u00e4=2,4");
        row("UTF-8", text.toUtf8(), "", told);
        row("UTF-8 with its mark", "\xEF\xBB\xBF" + text.toUtf8(), "", told);
        row("Latin-1", text.toLatin1(), "", told);
        row("UTF-16 with its mark", encoded(text, "UTF-16"), "", told);
        row("UTF-16, big-endian", encoded(text, "UTF-16BE"), "", told);
        row("UTF-16, little-endian", encoded(text, "UTF-16LE"), "", told);
        row("mixed line ends", "x,y\r\n1,2\r3,4\n\r\n", "", xy);
        // Zones.
        row("blank lines", "x y\n1.5 2\n3 4\n\n\n5 6\n7 8\n", "",
            "Block 1: x=1.5,3 y=2,4; Block 2: x=5,7 y=6,8");
        row("blank lines between all rows", "x y\n\n1.5 2\n\n3 4\n", "", "a: x=1.5,3 y=2,4");
        row("repeated headers", "x,y\n1,2\nx,y\n3,4\n5,6\n", "",
            "Block 1: x=1 y=2; Block 2: x=3,5 y=4,6");
        row("words that divide", "at,t,v\nhome,1,5\nhome,2,6\naway,1,7\naway,2,8\n", "",
            "home: at=1,1 t=1,2 v=5,6; away: at=2,2 t=1,2 v=7,8");
        row("words that tell a state", "t,v,state\n1,5,cold\n2,6,cold\n3,7,warm\n", "",
            "a: t=1,2,3 v=5,6,7 state=1,1,2");
        row("data far down", QByteArray("junk, more\n").repeated(40'000) + "\nx,y\n1,2\n3,4\n",
            "data=40003", xy);
        row("data below others", "n,x,y\na,7,2\nb,3,4\nc,5,6\n", "data=3", "a: n=1,2 x=3,5 y=4,6");
        row("data below the end", "x,y\n1,2\n", "data=9",
            "its data cannot begin in line 9, since it has 2 lines");
        // What is bad, or little.
        row("rows of unequal length", "x,y\n1,2\n3\n4,5,6\n7,8\n", "",
            "2 of its 4 rows are bad. line 3, column 2: the row has 1 fields, not 2");
        row("more bad rows than good ones", "x,y,z\n1,2,3\n2,3\n3,4,5,6\n4\n5,6,7\n", "",
            "3 of its 5 rows are bad. line 3, column 3: the row has 2 fields, not 3");
        row("rows of unequal length, left out", "x,y\n1,2\n3\n4,5,6\n3,4\n", "bad=skip", xy);
        row("text among numbers", "x,y\n1,2\n3,4\n5,six\n7,8\n", "",
            "1 of its 4 rows are bad. line 4, column 2 (y): \"six\" is no number");
        row("words where numbers are chosen", "x,y\n1,a\n2,b\n", "columns=2-9:numbers",
            "2 of its 2 rows are bad. line 2, column 2 (y): \"a\" is no number");
        row("a quote without end", "x,y\n1,2\n3,\"4\n5,6\n", "",
            "1 of its 3 rows are bad. line 3, column 2: a quote is not closed");
        row("one column", "x\n5\n7\n", "", "a: Row=1,2 x=5,7");
        row("one row", "x,y\n1,2\n", "", "a: x=1 y=2");
        row("one number", "5", "", "a: Row=1 Column 1=5");
        row("no rows", "x,y,z\n", "", "there are no rows of data in it");
        row("prose", "Once upon a time,\nthere was, I think,\na king\nwho had\none, two, three\n",
            "",
            "it has no rows of equally many fields, so it is no table, or one that is written in "
            "an "
            "unusual way");
        row("an endless line", QByteArray("1,2,").repeated(2'000'000), "",
            "line 1 is longer than 4 MiB, so it is no table");
        row("bytes", QByteArray("x,y\n1,2\n\0\1\2\3\0\0\0", 14).repeated(9), "", "it is no text");
        row("compressed bytes", QByteArray("\x1f\x8b\b\x01\x02\x03\x04\x05 abc").repeated(50), "",
            "it is no text");
    }

    void contents()
    {
        const auto [content, dialect, told] = currentRow<QByteArray, QString, QString>();
        ReadRequest request;
        request.files << m_folder->write("a.csv", content);
        QCOMPARE(parseTextDialect(dialect, request.text), QString());
        QCOMPARE(toldOf(DataReader::read(request)), told);
    }

    void severalFilesShareNames()
    {
        const ReadResult result = read({m_folder->write("one.dat", "1.5 2\n3 4\n"),
                                        m_folder->write("two.dat", "# x y\n5 6\n")});
        QCOMPARE(toldOf(result), QString("one: x=1.5,3 y=2,4; two: x=5 y=6"));
        QCOMPARE(result.data->suggestedPlotType(), PlotType_LineXY);
    }

    void previews_data()
    {
        const Rows<QByteArray, QString> row; // content, what is previewed
        row("clear", "Report\n\n# x,y\n1.5,2\n3,4\n,b\n",
            "sure: x y: Above, Header, Data, Data, Bad");
        row("one row of words", "one,two,three\n", "unsure: Column 1 Column 2 Column 3: Data");
        row("numbers that look missing", "x,y\n1,2\n2,-999\n3,-999\n",
            "sure: x y: Header, Data, Data, Data, missing: -999");
        row("ambiguous numbers", "1,2\n3,4\n", "unsure: Column 1 Column 2: Data, Data");
        row("ambiguous dates", "t,v\n1/2/2003,1.5\n3/4/2003,2.5\n",
            "unsure: t v: Header, Data, Data");
    }

    /// What is not sure is previewed when it is opened by hand.
    void previews()
    {
        const auto [content, previewed] = currentRow<QByteArray, QString>();
        ReadRequest request;
        request.files << m_folder->write("a.csv", content);
        request.purpose = ReadPurpose::Preview;
        const ReadResult result = DataReader::read(request);
        QVERIFY2(result.preview && !result.data, qPrintable(result.error));
        static const char* const kRoles[] = {"Above", "Header", "Data", "Bad"};
        QStringList roles;
        for (const TextPreview::Row& line : result.preview->rows)
            roles << kRoles[static_cast<int>(line.role)];
        for (const std::string& word : result.preview->sentinels)
            roles << "missing: " + QString::fromStdString(word);
        QStringList columns;
        for (const std::string& name : result.preview->columns)
            columns << QString::fromStdString(name);
        QCOMPARE((result.preview->isSure ? "sure: " : "unsure: ") + columns.join(' ') + ": "
                     + roles.join(", "),
                 previewed);
        request.purpose = ReadPurpose::DataIfSure;
        QCOMPARE(DataReader::read(request).preview.has_value(), !result.preview->isSure);
    }

    void badRowsCanBeSkipped()
    {
        const ReadResult result = read({m_folder->write("a.csv", "x,y\n1,2\n3\n4,z\n5,6\n7,8\n")});
        QVERIFY(!result.data);
        QCOMPARE(result.badRowCount, 2);
        QCOMPARE(result.badRows,
                 (QStringList {"line 3, column 2: the row has 1 fields, not 2",
                               "line 4, column 2 (y): \"z\" is no number"}));
    }

    void wideTable()
    {
        QByteArray content;
        for (int line = 0; line < 3; ++line) {
            for (int column = 0; column < 10'000; ++column)
                content += (column > 0 ? "," : "") + QByteArray::number(line + column);
            content += '\n';
        }
        const auto data = dataOf({m_folder->write("a.csv", content)});
        QCOMPARE(int(data->variableCount()), 10'000);
        QCOMPARE(values(*data, 1, "Column 10000"), (QVector<double> {9999, 10000, 10001}));
    }

private:
    std::unique_ptr<DataFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestReadTables)
#include "tst_read_tables.moc"
