// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/ensight_files.h"

#include <QtEndian>

#include <functional>

namespace corvala::host::io {

using Numbers = QVector<double>;

/// Writes lines and lists of numbers in a coding.
class EnSightWriter
{
public:
    explicit EnSightWriter(EnSightForm::Coding coding)
        : m_coding(coding)
    {
    }

    bool isText() const { return m_coding == EnSightForm::Text; }
    bool isFortran() const { return m_coding >= EnSightForm::Fortran; }

    void part(int number) { line("part " + QByteArray::number(number)); }
    void line(const QByteArray& text)
    {
        begin();
        add(isText() ? text + '\n' : record(text.leftJustified(80, isFortran() ? ' ' : '\0')));
    }

    void count(int number)
    {
        const int start = m_file.content.size();
        ints({number});
        const MadeFile sound = m_file;
        ints({number + 1});
        m_file.counts = sound.counts;
        m_file.counts.push_back({start, m_file.content.mid(sound.content.size())});
        m_file.content = sound.content;
        m_file.sections = sound.sections;
    }

    void ints(const QVector<int>& numbers, int perLine = 1)
    {
        QByteArray bytes;
        for (int i = 0; i < numbers.size(); ++i)
            bytes += isText() ? QByteArray::number(numbers[i]).rightJustified(10)
                    + (i % perLine == perLine - 1 ? "\n" : "")
                              : word(static_cast<quint32>(numbers[i]));
        list(bytes);
    }

    void floats(const Numbers& numbers, int perLine = 1)
    {
        QByteArray bytes;
        for (int i = 0; i < numbers.size(); ++i) {
            const auto number = static_cast<float>(numbers[i]);
            quint32 bits;
            memcpy(&bits, &number, sizeof bits);
            const bool isLast = i % perLine == perLine - 1 || i + 1 == numbers.size();
            bytes += isText()
                ? QByteArray::number(numbers[i], 'e', 5).rightJustified(12) + (isLast ? "\n" : "")
                : word(bits);
        }
        list(bytes);
    }

    /// The first line of binary geometry.
    void coding()
    {
        if (!isText())
            line(isFortran() ? "Fortran Binary" : "C Binary");
    }

    MadeFile file() const { return m_file; }

private:
    void begin() { m_file.sections.push_back(m_file.content.size()); }
    void add(const QByteArray& bytes) { m_file.content += bytes; }

    void list(const QByteArray& bytes)
    {
        if (bytes.isEmpty())
            return;
        begin();
        add(isText() ? bytes : record(bytes));
    }

    QByteArray word(quint32 value) const
    {
        const bool isBig =
            m_coding == EnSightForm::BinaryBigEndian || m_coding == EnSightForm::FortranBigEndian;
        const quint32 stored = isBig ? qToBigEndian(value) : qToLittleEndian(value);
        return {reinterpret_cast<const char*>(&stored), sizeof stored};
    }

    QByteArray record(const QByteArray& bytes) const
    {
        const QByteArray mark =
            isFortran() ? word(static_cast<quint32>(bytes.size())) : QByteArray();
        return mark + bytes + mark;
    }

    EnSightForm::Coding m_coding;
    MadeFile m_file;
};

/// Elements of one kind, and the lists that follow their number in the geometry.
struct MadeCells
{
    QByteArray kind;
    int count;
    QVector<QVector<int>> lists;
};

/// A part: a mesh or, with a function that writes what follows its first line, a block.
struct MadePart
{
    const char* name;
    int points;
    QVector<MadeCells> cells;
    QByteArray block; ///< its first line, or empty
    std::function<void(EnSightWriter&)> writeBlock;
};

static Numbers numbers(int count, double first, double step)
{
    Numbers result;
    for (int i = 0; i < count; ++i)
        result << first + step * i;
    return result;
}

static void writePlaces(EnSightWriter& file, int count, double x)
{
    file.floats(numbers(count, x, 0.5));
    file.floats(numbers(count, 1, 0.25));
    file.floats(numbers(count, -2, 2));
}

static QVector<int> idsFrom1(int count)
{
    QVector<int> ids;
    for (int i = 1; i <= count; ++i)
        ids << i;
    return ids;
}

static QVector<MadePart> goldParts(double time)
{
    const auto grid = [time](EnSightWriter& file) {
        file.ints({3, 2, 2}, 3);
        writePlaces(file, 12, time);
        file.ints({1, 1, 0, 1, 1, 1, 1, 1, 1, 1, 1, 1});
    };
    const auto rectilinear = [](EnSightWriter& file) {
        file.ints({3, 2, 1}, 3);
        file.floats({0, 1, 4});
        file.floats({0, 2});
        file.floats({5});
    };
    const auto uniform = [](EnSightWriter& file) {
        file.ints({2, 2, 2}, 3);
        file.floats({0, 0, 0});
        file.floats({1, 2, 3});
    };
    const MadeCells polyhedron {
        "nfaced", 1, {{4}, {3, 3, 3, 3}, {1, 2, 3, 1, 2, 4, 2, 3, 4, 3, 1, 4}}};
    return {
        {"solid",
         8,
         {{"hexa8", 1, {idsFrom1(8)}}, {"g_tria3", 1, {idsFrom1(3)}}, {"tetra4", 2, {idsFrom1(8)}}},
         {},
         {}},
        {"block", 12, {{"block", 2, {}}}, "block iblanked", grid},
        {"polygons", 5, {{"nsided", 2, {{5, 3}, {1, 2, 3, 4, 5, 1, 2, 3}}}}, {}, {}},
        {"nothing", 0, {}, {}, {}},
        {"polyhedron", 4, {polyhedron}, {}, {}},
        {"stretched", 6, {{"block", 2, {}}}, "block rectilinear", rectilinear},
        {"uniform", 8, {{"block", 1, {}}}, "block uniform", uniform}};
}

static void writeMesh(EnSightWriter& file, const MadePart& part, double time)
{
    file.line("coordinates");
    file.count(part.points);
    file.ints(idsFrom1(part.points)); // ids
    writePlaces(file, part.points, time);
    for (const MadeCells& cells : part.cells) {
        file.line(cells.kind);
        file.count(cells.count);
        for (const QVector<int>& list : cells.lists)
            file.ints(list);
    }
}

static void writeGoldGeometry(EnSightWriter& file, double time)
{
    for (const char* const text : {"made up", "", "node id given", "element id off", "extents"})
        file.line(text);
    file.floats({0, 1, 2, 3, 4, 5}, 2);
    int number = 0;
    for (const MadePart& part : goldParts(time)) {
        file.line("part");
        file.ints({++number});
        file.line(part.name);
        if (part.block.isEmpty()) {
            writeMesh(file, part, time);
        } else {
            file.line(part.block);
            part.writeBlock(file);
        }
    }
}

/// Points 1 to 8 have the ids 10 to 80.
static void writeEnSight6Geometry(EnSightWriter& file, double time)
{
    for (const char* const text :
         {"made up", "", "node id given", "element id given", "coordinates"})
        file.line(text);
    file.count(8);
    if (!file.isText())
        file.ints({10, 20, 30, 40, 50, 60, 70, 80});
    for (int i = 0; i < 8 && file.isText(); ++i) {
        file.ints({10 * (i + 1)}, 2);
        file.floats({time + 0.5 * i, 1 + 0.25 * i, -2 + 2.0 * i}, 3);
    }
    Numbers places;
    for (int i = 0; i < 8; ++i)
        places << time + 0.5 * i << 1 + 0.25 * i << -2 + 2.0 * i;
    if (!file.isText())
        file.floats(places);
    file.part(1);
    file.line("solid");
    file.line("tetra4");
    file.count(2);
    if (file.isText()) {
        file.ints({1, 10, 20, 30, 40, 2, 50, 60, 70, 80}, 5);
    } else {
        file.ints({1, 2});
        file.ints({10, 20, 30, 40, 50, 60, 70, 80});
    }
    file.part(2);
    file.line("block");
    file.line("block");
    file.ints({3, 2, 2}, 3);
    for (const auto& [first, step] : {QPair<double, double>(time, 0.5), {1, 0.25}, {-2, 2}})
        file.floats(numbers(12, first, step), 6);
}

static constexpr int kPartial = 3; ///< the part with values at some points only
static constexpr int kUndefined = 6; ///< the part with a value that says there is none

static void writeGoldValues(EnSightWriter& file, double time, bool isOfCells)
{
    file.line("values");
    const QVector<MadePart> parts = goldParts(time);
    for (int k = 1; k <= parts.size(); ++k) {
        const MadePart& part = parts[k - 1];
        file.line("part");
        file.ints({k});
        if (part.points == 0)
            continue;
        const double first = 100 * k + 10 * time;
        if (!isOfCells && k == kPartial) {
            file.line("coordinates partial");
            file.count(2);
            file.ints({1, 3});
            file.floats({first, first + 2});
        } else if (!isOfCells && k == kUndefined) {
            file.line("block undef");
            file.floats({-1});
            file.floats({first, first + 1, -1, first + 3, first + 4, first + 5});
        } else if (!isOfCells) {
            file.line(part.block.isEmpty() ? "coordinates" : "block");
            file.floats(numbers(part.points, first, 1));
        }
        int cell = 0;
        for (const auto& [kind, count, lists] : isOfCells ? part.cells : QVector<MadeCells>()) {
            file.line(kind);
            for (int c = 0; c < 3; ++c)
                file.floats(numbers(count, first + c / 10.0 + cell, 1));
            cell += kind.startsWith("g_") ? 0 : count;
        }
    }
}

static void writeEnSight6Values(EnSightWriter& file, double time, bool isOfCells)
{
    file.line("values");
    Numbers values;
    for (int n = 0; n < 2; ++n)
        for (int c = 0; c < 3; ++c)
            values << 100 + 10 * time + n + c / 10.0;
    if (!isOfCells)
        file.floats(numbers(8, 100 + 10 * time, 1), 6);
    else {
        file.part(1);
        file.line("tetra4");
        file.floats(values, 6);
    }
    file.part(2);
    file.line("block");
    if (!isOfCells)
        return file.floats(numbers(12, 200 + 10 * time, 1), 6);
    for (double& value : values)
        value += 100;
    if (!file.isText())
        return file.floats(values);
    for (int c = 0; c < 3; ++c)
        file.floats({values[c], values[3 + c]}, 6);
}

static void writeParticles(EnSightWriter& file, double time)
{
    file.line("made up");
    file.line("particle coordinates");
    file.count(3);
    if (!file.isText()) {
        file.ints({1, 2, 3});
        return file.floats({time, 0, 0, time, 1, 0, time, 2, 0});
    }
    for (int i = 0; i < 3; ++i) {
        file.ints({i + 1}, 2);
        file.floats({time, 1.0 * i, 0}, 3);
    }
}

static void writeParticleValues(EnSightWriter& file, double time)
{
    file.line("values");
    file.floats(numbers(3, 10 * time, 1), 6);
}

using WriteStep = std::function<void(EnSightWriter&, double time)>;

static void addFiles(MadeData& data, const EnSightForm& form, const char* name, bool hasCoding,
                     const WriteStep& write)
{
    EnSightWriter all(form.coding);
    for (const double time : {0.5, 1.5}) {
        EnSightWriter one(form.coding);
        EnSightWriter& file = form.isOneFile ? all : one;
        if (hasCoding && (!form.isOneFile || time < 1))
            file.coding();
        if (form.isOneFile)
            file.line("BEGIN TIME STEP");
        write(file, time);
        if (form.isOneFile)
            file.line("END TIME STEP");
        else
            data.files[QStringLiteral("%1%2").arg(name).arg(time < 1 ? 0 : 1)] = one.file();
    }
    if (form.isOneFile && !all.isText())
        all.line("FILE_INDEX"); // what follows the steps is not needed
    if (form.isOneFile)
        data.files[name] = all.file();
}

MadeData ensightCase(const EnSightForm& form)
{
    const QByteArray sets = form.isOneFile ? "1 1" : "1";
    const QByteArray end = form.isOneFile ? "\n" : "*\n";
    const QByteArray text = QByteArray("FORMAT\ntype: ensight ") + (form.isGold ? "gold" : "")
        + "\nGEOMETRY\nmodel: " + sets + " geo" + end + "measured: " + sets + " places" + end
        + "VARIABLE\nscalar per node: " + sets + " p p_" + end + "vector per element: " + sets
        + " v \"my data/v_" + end.chopped(1) + "\"\nscalar per measured node: " + sets
        + " dust dust" + end
        + "TIME\ntime set: 1\nnumber of steps: 2\nfilename start number: 0\n"
          "filename increment: 1\ntime values: 0.5\n1.5\n"
        + (form.isOneFile ? "FILE\nfile set: 1\nnumber of steps: 2\n" : "");
    MadeData data;
    data.opened << QStringLiteral("a.case");
    data.files[data.opened[0]] = textFile(text);
    addFiles(data, form, "geo", true, form.isGold ? writeGoldGeometry : writeEnSight6Geometry);
    addFiles(data, form, "places", true, writeParticles);
    addFiles(data, form, "dust", false, writeParticleValues);
    for (const bool isOfCells : {false, true})
        addFiles(data, form, isOfCells ? "my data/v_" : "p_", false,
                 [&](EnSightWriter& file, double time) {
                     form.isGold ? writeGoldValues(file, time, isOfCells)
                                 : writeEnSight6Values(file, time, isOfCells);
                 });
    return data;
}

} // namespace corvala::host::io
