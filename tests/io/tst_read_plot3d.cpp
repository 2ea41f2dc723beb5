// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/io_support.h"
#include "tests/support/rows.h"

#include <QtEndian>

using namespace corvala::host;
using namespace corvala::host::io;
using namespace corvala::tests;

/// Writes the numbers of a Plot3D file in a layout.
class Plot3DText
{
public:
    explicit Plot3DText(const Plot3DLayout& layout)
        : m_layout(layout)
    {
    }

    void integer(int value) { m_layout.ascii.value() ? text(value) : number(qint32(value)); }

    void real(double value)
    {
        if (*m_layout.ascii)
            text(value);
        else if (*m_layout.doublePrecision)
            number(bitsOf<quint64>(value));
        else
            number(bitsOf<quint32>(static_cast<float>(value)));
    }

    void endRecord()
    {
        const auto size = static_cast<qint32>(m_record.size());
        const QByteArray content = std::exchange(m_record, {});
        const bool isMarked = *m_layout.byteCount;
        if (isMarked)
            number(size);
        m_content += std::exchange(m_record, {}) + content;
        if (isMarked)
            number(size);
        m_content += std::exchange(m_record, {});
    }

    QByteArray content() const { return m_content; }

private:
    template<class Bits, class Real>
    static Bits bitsOf(Real value)
    {
        Bits bits;
        static_assert(sizeof bits == sizeof value);
        memcpy(&bits, &value, sizeof bits);
        return bits;
    }

    template<class T>
    void number(T value)
    {
        const T swapped = *m_layout.bigEndian ? qToBigEndian(value) : qToLittleEndian(value);
        m_record.append(reinterpret_cast<const char*>(&swapped), sizeof swapped);
    }

    template<class T>
    void text(T value)
    {
        m_record += QByteArray::number(value) + '\n';
    }

    Plot3DLayout m_layout;
    QByteArray m_record;
    QByteArray m_content;
};

struct Size
{
    int i, j, k;
    int points() const { return i * j * k; }
};

static std::vector<Size> sizesFor(const Plot3DLayout& layout)
{
    const bool flat = *layout.twoDimensional;
    std::vector<Size> sizes {{3, 4, flat ? 1 : 2}};
    if (*layout.multiGrid)
        sizes.push_back({2, 5, flat ? 1 : 3});
    return sizes;
}

static void writeSizes(Plot3DText& file, const Plot3DLayout& layout, int functions = 0,
                       std::initializer_list<int> atEnd = {})
{
    const std::vector<Size> sizes = sizesFor(layout);
    if (*layout.multiGrid) {
        file.integer(static_cast<int>(sizes.size()));
        file.endRecord();
    }
    for (const Size& size : sizes) {
        file.integer(size.i);
        file.integer(size.j);
        if (!*layout.twoDimensional)
            file.integer(size.k);
        if (functions > 0)
            file.integer(functions);
    }
    for (const int count : atEnd)
        file.integer(count);
    file.endRecord();
}

/// Point n of grid g is at (n + 0.5, 100 g, -n).
static QByteArray gridFile(const Plot3DLayout& layout)
{
    Plot3DText file(layout);
    writeSizes(file, layout);
    int grid = 0;
    for (const Size& size : sizesFor(layout)) {
        for (int axis = 0; axis < (*layout.twoDimensional ? 2 : 3); ++axis)
            for (int n = 0; n < size.points(); ++n)
                file.real(axis == 0 ? n + 0.5 : axis == 1 ? 100.0 * grid : -1.0 * n);
        for (int n = 0; *layout.iblank && n < size.points(); ++n)
            file.integer(n == 0 ? 0 : 1);
        file.endRecord();
        ++grid;
    }
    return file.content();
}

/// Value n of equation e in grid g is 1000 g + 10 e + 0.25 n.
static QByteArray valueFile(const Plot3DLayout& layout, int equations, bool isFunction)
{
    Plot3DText file(layout);
    writeSizes(file, layout, isFunction ? equations : 0);
    int grid = 0;
    for (const Size& size : sizesFor(layout)) {
        for (int i = 0; !isFunction && i < 4; ++i)
            file.real(i);
        if (!isFunction)
            file.endRecord();
        for (int e = 0; e < equations; ++e)
            for (int n = 0; n < size.points(); ++n)
                file.real(1000.0 * grid + 10.0 * e + 0.25 * n);
        file.endRecord();
        ++grid;
    }
    return file.content();
}

static QByteArray solutionFile(const Plot3DLayout& layout)
{
    return valueFile(layout, *layout.twoDimensional ? 4 : 5, false);
}

/// Five equations, a sixth and a gas, as OVERFLOW writes them; values as in any solution file.
static QByteArray overflowFile(const Plot3DLayout& layout)
{
    constexpr int kEquations = 7;
    Plot3DText file(layout);
    writeSizes(file, layout, 0, {kEquations, 1});
    int grid = 0;
    for (const Size& size : sizesFor(layout)) {
        for (int i = 0; i < 16; ++i)
            i == 7 ? file.integer(2) : file.real(i);
        file.endRecord();
        for (int e = 0; e < kEquations; ++e)
            for (int n = 0; n < size.points(); ++n)
                file.real(1000.0 * grid + 10.0 * e + 0.25 * n);
        file.endRecord();
        ++grid;
    }
    return file.content();
}

/// Bit 0 iblank, 1 several grids, 2 two-dimensional, 3 double, 4 big-endian, 5 record marks.
static Plot3DLayout layoutOf(int bits, bool ascii)
{
    Plot3DLayout layout;
    layout.ascii = ascii;
    layout.iblank = (bits & 1) != 0;
    layout.multiGrid = (bits & 2) != 0;
    layout.twoDimensional = (bits & 4) != 0;
    layout.doublePrecision = ascii || (bits & 8) != 0;
    layout.bigEndian = (bits & 16) != 0;
    layout.byteCount = (bits & 32) != 0;
    return layout;
}

static Plot3DLayout usualLayout()
{
    return layoutOf(2, false);
}

class TestReadPlot3D : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<DataFolder>(); }

    void layoutIsDetected_data()
    {
        const Rows<int, bool> row;
        for (int bits = 0; bits < 8; ++bits)
            row(QString::asprintf("text %d", bits), bits, true);
        for (int bits = 0; bits < 64; ++bits)
            row(QString::asprintf("binary %d", bits), bits, false);
    }

    void layoutIsDetected()
    {
        const auto [bits, ascii] = currentRow<int, bool>();
        const Plot3DLayout layout = layoutOf(bits, ascii);
        const QString grid = m_folder->write("flow.xyz", gridFile(layout));
        m_folder->write("flow.q", solutionFile(layout));
        m_folder->write("flow.f", valueFile(layout, 2, true));
        const ReadResult result = read({grid});
        QVERIFY2(result.data, qPrintable(result.error));
        QVERIFY(result.detectedPlot3D);
        QCOMPARE(describe(*result.detectedPlot3D), describe(layout));
        QCOMPARE(result.data->notes, std::vector<std::string>());
        checkValues(*result.data, layout);
    }

    void fortranNumbersInText()
    {
        const QString grid =
            m_folder->write("flow.xyz", "1\n2, 2, 1\r\n1.5D0 2*-2.5d+1,\t1e2\n 4*0.1D-2 3*0 +7");
        const auto result = dataOf({grid});
        QCOMPARE(values(*result, 1, "X"), (QVector<double> {1.5, -25, -25, 100}));
        QCOMPARE(values(*result, 1, "Y"), QVector<double>(4, 0.001));
        QCOMPARE(values(*result, 1, "Z"), (QVector<double> {0, 0, 0, 7}));
        QCOMPARE(zoneNames(*result), QStringList {"flow"});
    }

    void layoutCanBeChosen()
    {
        const Plot3DLayout layout = usualLayout();
        const QString grid = m_folder->write("flow.xyz", gridFile(layout));
        Plot3DLayout wanted;
        wanted.multiGrid = true;
        wanted.bigEndian = false;
        QVERIFY(read({grid}, wanted).data);
        QCOMPARE(describe(*read({grid}, layout).detectedPlot3D), describe(layout));
        wanted.bigEndian = true;
        const ReadResult wrong = read({grid}, wanted);
        QVERIFY(!wrong.data);
        QVERIFY2(wrong.error.contains("flow.xyz") && wrong.error.contains("layout"),
                 qPrintable(wrong.error));
    }

    void companions_data()
    {
        const Rows<QStringList, QStringList,
                   QString>
            row; // present, opened, outcome (zones and values, or a part of the error)
        row("grid alone", {"a.xyz"}, {"a.xyz"}, "2 -");
        row("beside the grid", {"a.xyz", "a.q", "b.q"}, {"a.xyz"}, "2 q");
        row("letter case", {"A.XYZ", "A.Q"}, {"A.XYZ"}, "2 q");
        row("named in the base", {"axyz.bin", "aq.bin"}, {"axyz.bin"}, "2 q");
        row("solution brings its grid", {"a.x", "a.q"}, {"a.q"}, "2 q");
        row("solution brings its grid by the base", {"axyz.bin", "aq.bin"}, {"aq.bin"}, "2 q");
        row("both opened", {"a.xyz", "a.q"}, {"a.q", "a.xyz"}, "2 q");
        row("two grids", {"a.xyz", "b.xyz", "b.q"}, {"a.xyz", "b.xyz"}, "4 q");
        row("solution without grid", {"b.xyz", "a.q"}, {"a.q"}, "no grid file");
    }

    void companions()
    {
        auto [present, opened, outcome] = currentRow<QStringList, QStringList, QString>();
        for (const QString& name : present) {
            const bool isSolution =
                name.contains(QRegularExpression("q", QRegularExpression::CaseInsensitiveOption));
            m_folder->write(name,
                            isSolution ? solutionFile(usualLayout()) : gridFile(usualLayout()));
        }
        for (QString& name : opened)
            name = m_folder->path(name);
        const ReadResult result = read(opened);
        if (!result.data) {
            QVERIFY2(result.error.contains(outcome), qPrintable(result.error));
            return;
        }
        const bool hasSolution = variableNames(*result.data).contains("Density");
        QCOMPARE(QString("%1 %2").arg(result.data->zoneCount()).arg(hasSolution ? "q" : "-"),
                 outcome);
    }

    void companionOfOtherGridsIsLeftOut()
    {
        const QString grid = m_folder->write("a.xyz", gridFile(usualLayout()));
        const QString other = m_folder->write("a.q", solutionFile(layoutOf(0, false)));
        const auto guessed = dataOf({grid});
        QVERIFY(!variableNames(*guessed).contains("Density"));
        QVERIFY(guessed->notes.at(0).find("a.q was left out") == 0);
        const ReadResult asked = read({grid, other});
        QVERIFY(!asked.data);
        QVERIFY2(asked.error.contains("a.q could not be read: it does not belong to the grid file"),
                 qPrintable(asked.error));
    }

    void overflowSolutions_data()
    {
        const Rows<int> row;
        for (const int bits : {0, 2, 16, 26, 32, 34, 40, 58})
            row(QString::asprintf("binary %d", bits), bits);
    }

    void overflowSolutions()
    {
        const auto [bits] = currentRow<int>();
        const Plot3DLayout layout = layoutOf(bits, false);
        const QString grid = m_folder->write("flow.xyz", gridFile(layout));
        const QByteArray content = overflowFile(layout);
        const QString solution = m_folder->write("flow.q", content);
        const auto result = dataOf({grid});
        if (*layout.byteCount) {
            QCOMPARE(result->notes.size(), std::size_t(0));
            const auto zone = static_cast<int>(result->zoneCount());
            QCOMPARE(values(*result, zone, "Species Density #1").value(1),
                     1000.0 * (zone - 1) + 60.25);
            m_folder->write("flow.q", content.chopped(8));
            QVERIFY(read({grid}).error.contains("flow.q could not be read: it is cut off"));
        } else {
            QCOMPARE(result->notes.size(), std::size_t(1));
            QVERIFY(values(*result, 1, "Density").isEmpty());
            QVERIFY(read({grid, solution}).error.contains("without record marks"));
        }
    }

    void cutFilesAreRefused_data()
    {
        const Rows<bool, QString> row;
        row("binary grid", false, "a.xyz");
        row("text grid", true, "a.xyz");
        row("binary solution", false, "a.q");
        row("text solution", true, "a.q");
        row("binary function", false, "a.f");
    }

    void cutFilesAreRefused()
    {
        const auto [ascii, cut] = currentRow<bool, QString>();
        const Plot3DLayout layout = layoutOf(ascii ? 3 : 2, ascii);
        m_folder->write("a.xyz", gridFile(layout));
        m_folder->write("a.q", solutionFile(layout));
        m_folder->write("a.f", valueFile(layout, 1, true));
        QFile file(m_folder->path(cut));
        QVERIFY(file.resize(file.size() - 8));
        const ReadResult result = read({m_folder->path("a.xyz")});
        QVERIFY(!result.data);
        QVERIFY2(result.error.contains(cut) && result.error.contains("cut off"),
                 qPrintable(result.error));
    }

    void indexFileListsTimes()
    {
        const Plot3DLayout layout = layoutOf(0, true);
        m_folder->write("grid.txt", gridFile(layout));
        m_folder->write("one.q", solutionFile(layout));
        m_folder->write("two.f", valueFile(layout, 1, true));
        const QString index = m_folder->write("run.p3d", R"({
            "format" : "ascii", // the rest is detected
            "filenames" : [
                { "time" : 4.5, "xyz" : "grid.txt", "function" : "two.f" },
                { "time" : 3.5, "xyz" : "grid.txt", "q" : "one.q" } ],
            "function-names" : ["swirl"] })");
        const auto result = dataOf({index});
        QCOMPARE(result->solutionTimes(), (std::vector<double> {3.5, 4.5}));
        QCOMPARE(zoneNames(*result), (QStringList {"run", "run"}));
        QVERIFY(values(*result, 1, "swirl").isEmpty());
        QCOMPARE(values(*result, 2, "swirl").value(1), 0.25);
        QCOMPARE(values(*result, 1, "Density").value(1), 0.25);
    }

    void brokenIndexFiles_data()
    {
        const Rows<QByteArray, QString> row;
        row("no json", "{ \"filenames\" : [", "run.p3d");
        row("no list", "{}", "filenames");
        row("empty list", "{ \"filenames\" : [] }", "lists no files");
        row("missing grid", "{ \"filenames\" : [ { \"xyz\" : \"none.xyz\" } ] }",
            "none.xyz could not be read: there is no such file");
    }

    void brokenIndexFiles()
    {
        const auto [content, reason] = currentRow<QByteArray, QString>();
        const ReadResult result = read({m_folder->write("run.p3d", content)});
        QVERIFY(!result.data);
        QVERIFY2(result.error.contains(reason), qPrintable(result.error));
    }

private:
    static void checkValues(const DataSet& data, const Plot3DLayout& layout)
    {
        const std::vector<Size> sizes = sizesFor(layout);
        QCOMPARE(data.zoneCount(), static_cast<std::int64_t>(sizes.size()));
        for (std::int64_t zone = 1; zone <= data.zoneCount(); ++zone) {
            const Size& size = sizes[static_cast<std::size_t>(zone - 1)];
            QCOMPARE(data.zone(zone).dimensions,
                     (std::array<std::int64_t, 3> {size.i, size.j, size.k}));
            const int last = size.points() - 1;
            const double grid = static_cast<double>(zone - 1);
            QCOMPARE(values(data, zone, "X").value(last), last + 0.5);
            QCOMPARE(values(data, zone, "Y").value(last), 100 * grid);
            QCOMPARE(values(data, zone, "Z").value(last), *layout.twoDimensional ? 0.0 : -last);
            QCOMPARE(values(data, zone, "Density").value(last), 1000 * grid + 0.25 * last);
            QCOMPARE(values(data, zone, "Momentum Y").value(last), 1000 * grid + 20 + 0.25 * last);
            QCOMPARE(values(data, zone, "StagnationEnergy").value(last),
                     1000 * grid + (*layout.twoDimensional ? 30 : 40) + 0.25 * last);
            QCOMPARE(values(data, zone, "Function1").value(last), 1000 * grid + 10 + 0.25 * last);
            if (*layout.iblank)
                QCOMPARE(values(data, zone, "IBlank").mid(0, 2), (QVector<double> {0, 1}));
        }
    }

    std::unique_ptr<DataFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestReadPlot3D)
#include "tst_read_plot3d.moc"
