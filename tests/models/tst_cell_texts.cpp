// SPDX-License-Identifier: BSD-3-Clause
#include "zonestyle/models/columns/edit_value.h"
#include "zonestyle/models/name_pattern.h"
#include "zonestyle/tables/line_names.h"
#include "zonestyle/tables/surface_names.h"
#include "zonestyle/tables/symbol_names.h"

#include <QTest>

using namespace corvala::sdk::ui::dialogs::zonestyle::intern;

Q_DECLARE_METATYPE(tables::ChoiceNames)

/// What texts that users type stand for: patterns of names, and values of cells.
class tst_CellTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void matchesNames_data();
    void matchesNames();
    void readsNumbers_data();
    void readsNumbers();
    void readsChoices_data();
    void readsChoices();
    void readsPositions();
};

void tst_CellTexts::matchesNames_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("matches");

    QTest::newRow("whole name") << "zone 1"
                                << "Zone 1" << true;
    QTest::newRow("begin only") << "zone"
                                << "Zone 1" << false;
    QTest::newRow("end only") << "1"
                              << "Zone 1" << false;
    QTest::newRow("star at the end") << "zone*"
                                     << "Zone 12" << true;
    QTest::newRow("star is anchored") << "zone*"
                                      << "My zone" << false;
    QTest::newRow("star for nothing") << "zone 1*"
                                      << "zone 1" << true;
    QTest::newRow("star over slashes") << "body*"
                                       << "body/left/wing" << true;
    QTest::newRow("star over line breaks") << "a*c"
                                           << "a\nb\nc" << true;
    QTest::newRow("several stars") << "*wing*upper*"
                                   << "left wing/upper side" << true;
    QTest::newRow("stars retry") << "*ab*b"
                                 << "aab abb" << true;
    QTest::newRow("stars fail") << "*ab*c"
                                << "aab abb" << false;
    QTest::newRow("stars in a row") << "a***b"
                                    << "ab" << true;
    QTest::newRow("question mark") << "zone ?"
                                   << "Zone 3" << true;
    QTest::newRow("question mark for a slash") << "a?b"
                                               << "a/b" << true;
    QTest::newRow("question mark needs one") << "zone 1?"
                                             << "Zone 1" << false;
    QTest::newRow("question mark takes one") << "zone ?"
                                             << "Zone 12" << false;
    QTest::newRow("question mark for a wide character")
        << "a?b" << QString::fromUtf8("a😀b") << true;
    QTest::newRow("brackets are literal") << "wing [upper]"
                                          << "wing [upper]" << true;
    QTest::newRow("brackets are no set") << "wing [u]"
                                         << "wing u" << false;
    QTest::newRow("backslash is literal") << "a\\*"
                                          << "a\\b" << true;
    QTest::newRow("dot is literal") << "a.b"
                                    << "axb" << false;
    QTest::newRow("case of other letters")
        << QString::fromUtf8("GRÖ*") << QString::fromUtf8("größe") << true;
    QTest::newRow("empty pattern") << ""
                                   << "x" << false;
    QTest::newRow("empty name") << "*"
                                << "" << true;
    QTest::newRow("slow pattern") << QString("a*").repeated(60) + "b" << QString("a").repeated(2000)
                                  << false;
}

void tst_CellTexts::matchesNames()
{
    QFETCH(QString, pattern);
    QFETCH(QString, name);
    QTEST(models::NamePattern(pattern, Qt::CaseInsensitive).matches(name), "matches");
    if (pattern != name && pattern.compare(name, Qt::CaseInsensitive) == 0)
        QVERIFY(!models::NamePattern(pattern, Qt::CaseSensitive).matches(name));
}

void tst_CellTexts::readsNumbers_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("number");

    QTest::newRow("whole number") << QVariant(3) << 3;
    QTest::newRow("half") << QVariant(0.5) << 1;
    QTest::newRow("real") << QVariant(2.5) << 3;
    QTest::newRow("huge real") << QVariant(1e300) << 2147483647;
    QTest::newRow("lowest real") << QVariant(-1e300) << -2147483647 - 1;
    QTest::newRow("no real") << QVariant(qQNaN()) << 0;
    QTest::newRow("switch") << QVariant(true) << 1;
    QTest::newRow("preset") << QVariant("2.00") << 2;
    QTest::newRow("half as text") << QVariant("0.50") << 1;
    QTest::newRow("as shown") << QVariant("0.30%") << 0;
    QTest::newRow("with blanks") << QVariant("  12.4 % ") << 12;
    QTest::newRow("group") << QVariant("7") << 7;
    QTest::newRow("no comma") << QVariant("1,5") << 0;
    QTest::newRow("no number") << QVariant("thick") << 0;
    QTest::newRow("infinite") << QVariant("inf") << 0;
    QTest::newRow("nothing") << QVariant() << 0;
}

void tst_CellTexts::readsNumbers()
{
    QFETCH(QVariant, value);
    QTEST(models::editedNumber(value), "number");
}

void tst_CellTexts::readsChoices_data()
{
    QTest::addColumn<tables::ChoiceNames>("choices");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("choice"); // -1: none

    const tables::ChoiceNames patterns = tables::kLinePatterns;
    QTest::newRow("name") << patterns << QVariant("Dash dot dot") << 5;
    QTest::newRow("exact before other case") << patterns << QVariant("Dash dot") << 2;
    QTest::newRow("other case") << patterns << QVariant("dotted") << 3;
    QTest::newRow("part of a name") << patterns << QVariant("Dash") << -1;
    QTest::newRow("whole number as text") << patterns << QVariant(" 4 ") << 4;
    QTest::newRow("fraction as text") << patterns << QVariant("1.5") << -1;
    QTest::newRow("empty text") << patterns << QVariant("") << -1;
    QTest::newRow("number") << patterns << QVariant(2) << 2;
    QTest::newRow("number out of range") << patterns << QVariant(99) << 99;
    QTest::newRow("not offered") << patterns.first(3) << QVariant("Dotted") << -1;
    const tables::ChoiceNames surfaces = tables::kSurfacesToPlot;
    QTest::newRow("value, not position") << surfaces << QVariant("None") << 10;
    QTest::newRow("number as it is") << surfaces << QVariant(0) << 0;
    QTest::newRow("second position") << surfaces << QVariant("Boundary cell faces") << 0;
    QTest::newRow("last value") << tables::ChoiceNames(tables::kGeomShapes) << QVariant("Character")
                                << 255;
}

void tst_CellTexts::readsChoices()
{
    QFETCH(tables::ChoiceNames, choices);
    QFETCH(QVariant, value);
    QTEST(models::editedChoice(value, choices).value_or(-1), "choice");
}

void tst_CellTexts::readsPositions()
{
    const QStringList zones {"1: Inlet", "2: inlet", "4: Wall"};
    QCOMPARE(models::editedPosition("4: Wall", zones).value_or(-1), 2);
    QCOMPARE(models::editedPosition("4: WALL", zones).value_or(-1), 2);
    QCOMPARE(models::editedPosition("2", zones).value_or(-1), 2);
    QCOMPARE(models::editedPosition(1, zones).value_or(-1), 1);
    QCOMPARE(models::editedPosition("Wall", zones).value_or(-1), -1);
}

QTEST_GUILESS_MAIN(tst_CellTexts)
#include "tst_cell_texts.moc"
