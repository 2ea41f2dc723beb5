// SPDX-License-Identifier: GPL-3.0-or-later
#include "plot/common/line_patterns.h"
#include "plot/common/nice_steps.h"
#include "plot/field/geometry/color_map.h"
#include "plot/field/geometry/contour_groups.h"
#include "plot/field/geometry/value_colors.h"
#include "plot/field/view/legend.h"
#include "plot_document.h"
#include "tests/support/rows.h"

#include <QtTest>

#include <vtkFloatArray.h>
#include <vtkPolyData.h>

#include <cmath>
#include <limits>

using namespace corvala;
using namespace corvala::plot;
using namespace corvala::tests;

static bool isSame(const host::Rgb& left, const host::Rgb& right)
{
    return left.fields() == right.fields();
}

class tst_ContourGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void levels_data()
    {
        const Rows<double, double> row;
        row("unit", 0.0, 1.0);
        row("negative", -0.7, 0.99);
        row("far from zero", 101325.0, 101326.5);
        row("huge", -3e30, 5e30);
        row("tiny", 1e-30, 2e-30);
    }

    void levels()
    {
        const auto [minimum, maximum] = currentRow<double, double>();
        const ContourLevels levels = levelsFor(minimum, maximum);
        const double slack = 1e-6 * levels.step;
        QVERIFY(levels.minimum <= minimum + slack && levels.maximum() >= maximum - slack);
        QVERIFY(levels.minimum > minimum - levels.step && levels.maximum() < maximum + levels.step);
        QVERIFY2(levels.bands >= 8 && levels.bands <= 21, QByteArray::number(levels.bands));
        QCOMPARE(levels.inner().size(), static_cast<std::size_t>(levels.bands - 1));
    }

    void levelsOfOneValue()
    {
        for (const double value : {0.0, 0.867, 1.0, 101325.0, -4e-9}) {
            const ContourLevels levels = levelsFor(value, value);
            QVERIFY(levels.isSingleValue());
            QCOMPARE(levels.fraction(value), 0.5);
        }
    }

    void legends_data()
    {
        const Rows<double, double, double, QString> row;
        row("every level", 0.0, 8.0, 1.0,
            "0 0.5 1.0 1.5 2.0 2.5 3.0 3.5 4.0 4.5 5.0 5.5 6.0 6.5 7.0 7.5 8.0");
        row("round between odd ends", -0.7, 1.1, 1.2,
            "\u22120.7 \u22120.4 \u22120.2 0 0.2 0.4 0.6 0.8 1.1");
        row("little room", 3.0, 20.0, 4.0, "3 10 15 20");
        row("ends only", 0.0, 8.0, 30.0, "0 8.0");
        row("one value", -0.0625, -0.0625, 1.0, "\u22120.0625");
        row("no values", 1.0, 0.0, 1.0, "no values");
    }

    void legends()
    {
        const auto [minimum, maximum, gap, expected] =
            currentRow<double, double, double, QString>();
        QStringList texts;
        for (const LegendText& text : legendTexts(
                 minimum <= maximum ? std::optional(levelsFor(minimum, maximum)) : std::nullopt,
                 gap))
            texts.append(text.text);
        QCOMPARE(texts.join(' '), expected);
    }

    /// Levels that the user chose have the digits that they need.
    void chosenLegends_data()
    {
        const Rows<double, double, int, QString> row;
        row("quarters", 0.15, 0.025, 4, "0.150 0.175 0.200 0.225 0.250");
        row("tens", 0.0, 25.0, 3, "0 25 50 75");
        row("thirds", 0.15, 0.01 / 3, 3, "0.15000 0.15333 0.15667 0.16000");
    }

    void chosenLegends()
    {
        const auto [minimum, step, bands, expected] = currentRow<double, double, int, QString>();
        QStringList texts;
        for (const LegendText& text : legendTexts(ContourLevels {minimum, step, bands}, 1.0))
            texts.append(text.text);
        QCOMPARE(texts.join(' '), expected);
    }

    void ticks_data()
    {
        const Rows<double, double, QString> row;
        row("unit", 0.0, 1.0, "0 0.2 0.4 0.6 0.8 1.0");
        row("across zero", -4.2, 8.3, "\u22124 \u22122 0 2 4 6 8");
        row("large", 0.0, 4e6, "0 1e+06 2e+06 3e+06 4e+06");
        row("one notation", 0.0, 1.5e6, "0 5.0e+05 1.0e+06 1.5e+06");
        row("far from zero", 4523000.0, 4523000.2,
            "4523000.00 4523000.05 4523000.10 4523000.15 4523000.20");
        row("small", 0.0, 4e-6, "0 1e-06 2e-06 3e-06 4e-06");
        row("close together", 1000.0001, 1000.0005,
            "1000.0001 1000.0002 1000.0003 1000.0004 1000.0005");
        row("nothing", 1.0, 1.0, "");
        row("upside down", 1.0, 0.0, "");
        row("endless", 0.0, std::numeric_limits<double>::infinity(), "");
    }

    void ticks()
    {
        const auto [minimum, maximum, texts] = currentRow<double, double, QString>();
        QStringList found;
        const std::vector<double> values = niceTicks(minimum, maximum, 7);
        for (const double value : values)
            found.append(tickText(value, values[1] - values[0], values.back()));
        QCOMPARE(found.join(' '), texts);
    }

    void coordinatesOutliveLevels()
    {
        openDemo("field2d");
        ContourGroups groups;
        groups.takeStyle(*document().activeFrame());
        groups.setRange(1, 10.0, 20.0);
        const double before = groups.coordinate(1, 15.0);
        QVERIFY(groups.setRange(1, -100.0, 300.0));
        QCOMPARE(groups.coordinate(1, 15.0), before);
        for (const double value : {-100.0, 15.0, 290.0}) {
            const double moved =
                groups.coordinate(1, value) * groups.textureScale(1) + groups.textureShift(1);
            const double above = moved - groups.levels(1).fraction(value);
            QVERIFY(above > 1e-6 && above < 1e-4); // rounding moves no value below its level
        }
    }

    void missingValues()
    {
        openDemo("field2d");
        ContourGroups groups;
        groups.takeStyle(*document().activeFrame());
        groups.setRange(1, 0.0, 1.0);
        vtkNew<vtkDoubleArray> values;
        values->InsertNextValue(0.5);
        values->InsertNextValue(std::numeric_limits<double>::quiet_NaN());
        values->InsertNextValue(0.7);
        vtkNew<vtkPolyData> triangle;
        triangle->AllocateEstimate(1, 3);
        const vtkIdType corners[] = {0, 1, 2};
        triangle->InsertNextCell(VTK_TRIANGLE, 3, corners);
        const auto places = floodCoordinates(*values, 1, groups);
        placeAmongNeighbours(*places, *triangle);
        QVERIFY(places->GetComponent(0, 1) < 0.5 && places->GetComponent(1, 1) > 0.5);
        // Between its neighbours, so that no other band is met on the way.
        const double mean = (places->GetComponent(0, 0) + places->GetComponent(2, 0)) / 2.0;
        QVERIFY(std::abs(places->GetComponent(1, 0) - mean) < 1e-6);
        const auto colors = groupColors(*values, 1, groups);
        QCOMPARE(static_cast<int>(colors->GetComponent(1, 0)), int(noValueColor().red));
        QVERIFY(!groups.setRange(1, 1.0, 0.0)); // no values at all
        QVERIFY(!groups.setRange(1, 0.0, std::numeric_limits<double>::infinity()));
        QCOMPARE(groups.maximum(1), 1.0);
    }

    void revisions()
    {
        openDemo("field2d");
        ContourGroups groups;
        groups.takeStyle(*document().activeFrame());
        QVERIFY(groups.variable(1) > 0 && groups.variable(3) == 0);
        QVERIFY(groups.setRange(1, 0.0, 0.999));
        const int revision = groups.revision(1);
        groups.takeStyle(*document().activeFrame());
        QVERIFY(!groups.setRange(1, 0.001, 0.998)); // the same round levels
        QCOMPARE(groups.revision(1), revision);
        write("ContourGroups/Var", "", 3, 1);
        groups.takeStyle(*document().activeFrame());
        QVERIFY(groups.revision(1) != revision);
        QVERIFY(!groups.hasRgb());
    }

    /// What the style says of a group of values from 0.05 to 0.999.
    void chosenLevels_data()
    {
        using Edits = QStringList; // values of the first group
        const Rows<Edits, QString, int, int> row; // lines, changes of levels and of colours
        row("as the values", Edits {}, "0.1 0.95", 0, 0);
        row("chosen", Edits {"AutomaticLevels 0", "BandCount 4"}, "0.25 0.75", 1, 1);
        row("ends that leave values out",
            Edits {"AutomaticLevels 0", "LevelMin 0.2", "LevelMax 0.8", "BandCount 3"}, "0.2 0.8",
            1, 1);
        row("that span nothing", Edits {"AutomaticLevels 0", "LevelMin 2"}, "0.1 0.95", 0, 0);
        row("not in force", Edits {"LevelMin 0.2"}, "0.1 0.95", 0, 0);
        row("bands over the values", Edits {"BandCount 2"}, "0.5245 0.5245", 1, 1);
        row("round bands", Edits {"AutomaticLevels 0", "LevelMax 0.5"}, "0.05 0.5", 1, 1);
        row("colors", Edits {"ColorMap 5"}, "0.1 0.95", 0, 1);
        row("colors reversed", Edits {"ReverseColorMap 1"}, "0.1 0.95", 0, 1);
    }

    void chosenLevels()
    {
        const auto [edits, lines, levelChanges, colorChanges] =
            currentRow<QStringList, QString, int, int>();
        openDemo("field2d");
        ContourGroups groups;
        groups.takeStyle(*document().activeFrame());
        groups.setRange(1, 0.05, 0.999);
        const int revision = groups.revision(1);
        const int colorRevision = groups.colorRevision(1);
        for (const QString& edit : edits)
            write(("ContourGroups/" + edit.section(' ', 0, 0)).toUtf8().constData(), "",
                  edit.section(' ', 1).toDouble(), 1);
        groups.takeStyle(*document().activeFrame());
        const std::vector<double> levels = groups.lineLevels(1);
        QCOMPARE(QStringLiteral("%1 %2").arg(levels.front()).arg(levels.back()), lines);
        QCOMPARE(groups.revision(1) - revision, levelChanges);
        QCOMPARE(groups.colorRevision(1) - colorRevision, colorChanges);
        const ContourLevels before = groups.levels(1);
        groups.setRange(1, 0.0, 5.0);
        QCOMPARE(groups.levels(1) == before,
                 levelChanges == 1 && edits.contains("AutomaticLevels 0"));
    }

    void colorMaps()
    {
        double previous = -1.0;
        for (int i = 0; i <= 64; ++i) {
            const host::Rgb color = scaleColor({}, i / 64.0);
            const double light = 0.2126 * color.red + 0.7152 * color.green + 0.0722 * color.blue;
            QVERIFY(light > previous);
            previous = light;
        }
        for (const style::Choice& map : style::kColorMaps) {
            const ColorScale scale {static_cast<ColorMap_e>(map.value), false};
            const ColorScale reversed {scale.map, true};
            QVERIFY(isSame(scaleColor(scale, -1.0), scaleColor(reversed, 1.0)));
            QVERIFY(isSame(scaleColor(scale, 7.0), scaleColor(reversed, 0.0)));
            QVERIFY2(!isSame(scaleColor(scale, 0.4), scaleColor(scale, 0.6)), map.name);
            QCOMPARE(bandColors(scale, 5).size(), std::size_t {5});
        }
    }

    void patterns_data()
    {
        const Rows<int, int> row;
        row("solid", 0, 1);
        row("dashed", 1, 1);
        row("dash dot", 2, 2);
        row("dotted", 3, 2);
        row("long dash", 4, 1);
        row("dash dot dot", 5, 3);
        row("unknown", 6, 1);
    }

    void patterns()
    {
        const auto [pattern, strokes] = currentRow<int, int>();
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
};

QTEST_GUILESS_MAIN(tst_ContourGroups)

#include "tst_contour_groups.moc"
