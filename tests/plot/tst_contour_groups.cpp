// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/line_patterns.h"
#include "plot/common/nice_steps.h"
#include "plot/field/geometry/color_map.h"
#include "plot/field/geometry/contour_groups.h"
#include "plot/field/geometry/value_colors.h"
#include "plot/field/view/legend.h"
#include "plot_document.h"

#include <QtTest>

#include <cmath>
#include <limits>

using namespace corvala;
using namespace corvala::plot;
using namespace corvala::tests;

class tst_ContourGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void levels_data();
    void levels();
    void levelsOfOneValue();
    void legends_data();
    void legends();
    void ticks_data();
    void ticks();
    void coordinatesOutliveLevels();
    void missingValues();
    void revisions();
    void colorMapGetsLighter();
    void patterns_data();
    void patterns();
};

void tst_ContourGroups::levels_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::newRow("unit") << 0.0 << 1.0;
    QTest::newRow("negative") << -0.7 << 0.99;
    QTest::newRow("far from zero") << 101325.0 << 101326.5;
    QTest::newRow("huge") << -3e30 << 5e30;
    QTest::newRow("tiny") << 1e-30 << 2e-30;
}

void tst_ContourGroups::levels()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    const ContourLevels levels = levelsFor(minimum, maximum);
    const double slack = 1e-6 * levels.step;
    QVERIFY(levels.minimum <= minimum + slack && levels.maximum() >= maximum - slack);
    QVERIFY(levels.minimum > minimum - levels.step && levels.maximum() < maximum + levels.step);
    QVERIFY2(levels.bands >= 8 && levels.bands <= 21, QByteArray::number(levels.bands));
    QCOMPARE(levels.inner().size(), static_cast<std::size_t>(levels.bands - 1));
}

void tst_ContourGroups::levelsOfOneValue()
{
    for (const double value : {0.0, 0.867, 1.0, 101325.0, -4e-9}) {
        const ContourLevels levels = levelsFor(value, value);
        QVERIFY(levels.isSingleValue());
        QCOMPARE(levels.fraction(value), 0.5);
    }
}

void tst_ContourGroups::legends_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("gap");
    QTest::addColumn<QString>("texts");
    QTest::newRow("every level")
        << 0.0 << 8.0 << 1.0 << "0 0.5 1.0 1.5 2.0 2.5 3.0 3.5 4.0 4.5 5.0 5.5 6.0 6.5 7.0 7.5 8.0";
    QTest::newRow("round between odd ends")
        << -0.7 << 1.1 << 1.2 << "-0.7 -0.4 -0.2 0 0.2 0.4 0.6 0.8 1.1";
    QTest::newRow("little room") << 3.0 << 20.0 << 4.0 << "3 10 15 20";
    QTest::newRow("ends only") << 0.0 << 8.0 << 30.0 << "0 8.0";
    QTest::newRow("one value") << -0.0625 << -0.0625 << 1.0 << "-0.0625";
    QTest::newRow("no values") << 1.0 << 0.0 << 1.0 << "no values";
}

void tst_ContourGroups::legends()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, gap);
    QStringList texts;
    for (const LegendText& text : legendTexts(
             minimum <= maximum ? std::optional(levelsFor(minimum, maximum)) : std::nullopt, gap))
        texts.append(text.text);
    QTEST(texts.join(' '), "texts");
}

void tst_ContourGroups::ticks_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<QString>("texts");
    QTest::newRow("unit") << 0.0 << 1.0 << "0 0.2 0.4 0.6 0.8 1.0";
    QTest::newRow("across zero") << -4.2 << 8.3 << "-4 -2 0 2 4 6 8";
    QTest::newRow("large") << 0.0 << 4e6 << "0 1e+06 2e+06 3e+06 4e+06";
    QTest::newRow("far from zero")
        << 4523000.0 << 4523000.2 << "4523000.00 4523000.05 4523000.10 4523000.15 4523000.20";
    QTest::newRow("small") << 0.0 << 4e-6 << "0 1e-06 2e-06 3e-06 4e-06";
    QTest::newRow("close together")
        << 1000.0001 << 1000.0005 << "1000.0001 1000.0002 1000.0003 1000.0004 1000.0005";
    QTest::newRow("nothing") << 1.0 << 1.0 << "";
    QTest::newRow("upside down") << 1.0 << 0.0 << "";
    QTest::newRow("endless") << 0.0 << std::numeric_limits<double>::infinity() << "";
}

void tst_ContourGroups::ticks()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(QString, texts);
    QStringList found;
    const std::vector<double> values = niceTicks(minimum, maximum, 7);
    for (const double value : values)
        found.append(tickText(value, values[1] - values[0]));
    QCOMPARE(found.join(' '), texts);
}

void tst_ContourGroups::coordinatesOutliveLevels()
{
    openDemo("field2d");
    ContourGroups groups;
    groups.setVariables(*document().activeFrame());
    groups.setRange(1, 10.0, 20.0);
    const double before = groups.coordinate(1, 15.0);
    QVERIFY(groups.setRange(1, -100.0, 300.0));
    QCOMPARE(groups.coordinate(1, 15.0), before);
    for (const double value : {-100.0, 15.0, 290.0}) {
        const double moved =
            groups.coordinate(1, value) * groups.textureScale(1) + groups.textureShift(1);
        QCOMPARE(moved, groups.levels(1).fraction(value));
    }
}

void tst_ContourGroups::missingValues()
{
    openDemo("field2d");
    ContourGroups groups;
    groups.setVariables(*document().activeFrame());
    groups.setRange(1, 0.0, 1.0);
    vtkNew<vtkDoubleArray> values;
    values->InsertNextValue(0.5);
    values->InsertNextValue(std::numeric_limits<double>::quiet_NaN());
    const auto places = floodCoordinates(*values, 1, groups);
    QVERIFY(places->GetComponent(0, 1) < 0.5 && places->GetComponent(1, 1) > 0.5);
    QVERIFY(std::isfinite(places->GetComponent(1, 0)));
    const auto colors = groupColors(*values, 1, groups);
    QCOMPARE(static_cast<int>(colors->GetComponent(1, 0)), int(noValueColor().red));
    QVERIFY(!groups.setRange(1, 1.0, 0.0)); // no values at all
    QVERIFY(!groups.setRange(1, 0.0, std::numeric_limits<double>::infinity()));
    QCOMPARE(groups.maximum(1), 1.0);
}

void tst_ContourGroups::revisions()
{
    openDemo("field2d");
    ContourGroups groups;
    QVERIFY(groups.setVariables(*document().activeFrame()));
    QVERIFY(!groups.setVariables(*document().activeFrame()));
    QVERIFY(groups.variable(1) > 0 && groups.variable(3) == 0);
    QVERIFY(groups.setRange(1, 0.0, 0.999));
    const int revision = groups.revision(1);
    QVERIFY(!groups.setRange(1, 0.001, 0.998)); // the same round levels
    QCOMPARE(groups.revision(1), revision);
    write("ContourGroups/Var", "", 3, 1);
    QVERIFY(groups.setVariables(*document().activeFrame()));
    QVERIFY(groups.revision(1) != revision);
    QVERIFY(!groups.hasRgb());
}

void tst_ContourGroups::colorMapGetsLighter()
{
    double previous = -1.0;
    for (int i = 0; i <= 64; ++i) {
        const host::Rgb color = mapColor(i / 64.0);
        const double light = 0.2126 * color.red + 0.7152 * color.green + 0.0722 * color.blue;
        QVERIFY(light > previous);
        previous = light;
    }
    QCOMPARE(mapColor(-1.0).blue, mapColor(0.0).blue);
    QCOMPARE(mapColor(7.0).red, mapColor(1.0).red);
    QCOMPARE(bandColors(5).size(), std::size_t {5});
}

void tst_ContourGroups::patterns_data()
{
    QTest::addColumn<int>("pattern");
    QTest::addColumn<int>("strokes");
    QTest::newRow("solid") << 0 << 1;
    QTest::newRow("dashed") << 1 << 1;
    QTest::newRow("dash dot") << 2 << 2;
    QTest::newRow("dotted") << 3 << 2;
    QTest::newRow("long dash") << 4 << 1;
    QTest::newRow("dash dot dot") << 5 << 3;
    QTest::newRow("unknown") << 6 << 1;
}

void tst_ContourGroups::patterns()
{
    QFETCH(int, pattern);
    QFETCH(int, strokes);
    int begun = 0;
    bool wasStroke = false;
    for (int i = 0; i < 1000; ++i) {
        const bool isStroke = isStrokeAt(pattern, i / 1000.0);
        begun += isStroke && !wasStroke ? 1 : 0;
        wasStroke = isStroke;
    }
    QCOMPARE(begun, strokes);
    double sum = 0.0;
    for (const double length : patternStrokes(pattern))
        sum += length;
    QCOMPARE(sum, 1.0);
    QCOMPARE(linePixels(0.01, 600), 1.0);
    QCOMPARE(linePixels(1.0, 600), 6.0);
}

QTEST_GUILESS_MAIN(tst_ContourGroups)
#include "tst_contour_groups.moc"
