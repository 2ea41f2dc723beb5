// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/ensight_files.h"
#include "tests/support/rows.h"

using namespace corvala::host;
using namespace corvala::host::io;
using namespace corvala::tests;

static QVector<double> numbers(int count, double first)
{
    QVector<double> result;
    for (int i = 0; i < count; ++i)
        result << static_cast<double>(static_cast<float>(first + i));
    return result;
}

class TestReadDamaged : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<DataFolder>(); }

    void ensight_data()
    {
        const Rows<EnSightForm> row;
        for (const bool isGold : {true, false})
            for (const bool isOneFile : {false, true})
                for (const auto coding :
                     {EnSightForm::Text, EnSightForm::Binary, EnSightForm::BinaryBigEndian,
                      EnSightForm::Fortran, EnSightForm::FortranBigEndian})
                    row(QString::asprintf("%s, coding %d%s", isGold ? "Gold" : "6", coding,
                                          isOneFile ? ", in one file" : ""),
                        EnSightForm {coding, isGold, isOneFile});
    }

    void ensight()
    {
        const auto [form] = currentRow<EnSightForm>();
        const MadeData made = ensightCase(form);
        write(made);
        const auto data = dataOf({m_folder->path("a.case")});
        QStringList zones {"solid", "solid", "block", "block"};
        if (form.isGold)
            for (const char* const name : {"polygons", "polyhedron", "stretched", "uniform"})
                zones << name << name;
        QCOMPARE(zoneNames(*data), zones + QStringList({"Particles", "Particles"}));
        QCOMPARE(data->solutionTimes(), (std::vector<double> {0.5, 1.5}));
        QCOMPARE(values(*data, 2, "p"), numbers(8, 115));
        QCOMPARE(values(*data, 2, "v Z"), numbers(form.isGold ? 3 : 2, 115.2));
        QCOMPARE(values(*data, 3, "v Y"), numbers(2, 205.1));
        QCOMPARE(values(*data, 4, "X"),
                 (QVector<double> {1.5, 2, 2.5, 3, 3.5, 4, 4.5, 5, 5.5, 6, 6.5, 7}));
        QCOMPARE(values(*data, data->zoneCount(), "dust"), numbers(3, 15));
        QCOMPARE(data->notes.size(), std::size_t(form.isGold ? 1 : 0)); // the empty part
    }

    void damagedEnSight_data()
    {
        const Rows<EnSightForm> row;
        row("Gold, text", {EnSightForm::Text, true, true});
        row("Gold, C", {EnSightForm::Binary, true, false});
        row("Gold, Fortran", {EnSightForm::FortranBigEndian, true, true});
        row("6, text", {EnSightForm::Text, false, false});
        row("6, C", {EnSightForm::BinaryBigEndian, false, true});
    }

    void damagedEnSight()
    {
        const auto [form] = currentRow<EnSightForm>();
        const MadeData made = ensightCase(form);
        checkDamages(made, {form.isOneFile ? "geo" : "geo1"});
        checkDamages(made,
                     form.isOneFile ? QStringList {"p_", "v_", "dust"}
                                    : QStringList {"p_1", "v_1", "places1", "dust0"});
    }

private:
    void write(const MadeData& data) const
    {
        for (auto file = data.files.begin(); file != data.files.end(); ++file)
            m_folder->write(file.key(), file->content);
    }

    /// Damages all of the files in each of the ways.
    void checkDamages(const MadeData& made, const QStringList& damaged) const
    {
        write(made);
        const Shown sound(*m_folder, made.opened);
        QVERIFY2(sound.error.isEmpty(), qPrintable(sound.error));
        for (const Damage& damage : damages()) {
            for (const QString& file : damaged)
                m_folder->write(file, damage.apply(made.files[file]));
            const QString problem = Shown(*m_folder, made.opened).problemAgainst(sound, damaged);
            if (!problem.isEmpty())
                QTest::qFail(qPrintable(damage.name + QStringLiteral(": ") + problem), __FILE__,
                             __LINE__);
        }
        write(made);
    }

    std::unique_ptr<DataFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestReadDamaged)
#include "tst_read_damaged.moc"
