// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures.h"
#include "plot/render.h"
#include "plot_document.h"
#include "tests/support/rows.h"

#include <QtTest>

using namespace corvala;
using namespace corvala::plot;
using namespace corvala::tests;

static constexpr QSize kSize {320, 240};

/// A value of the first map that is changed, and in which states: with `before` the picture shows
/// it, and with one of `grey`, between bars, besides, its cell in the tables is grey.
struct LineColumn
{
    QString change;
    QString before;
    QString grey;
};

/// "@" stands for the group.
static std::vector<LineColumn> ofGroup(const QString& group, const QString& before,
                                       const QString& grey, std::vector<LineColumn> columns)
{
    for (LineColumn& column : columns) {
        column.change.prepend(group + "/");
        column.before = before + " " + column.before;
        column.grey = grey + (column.grey.isEmpty() ? "" : "|") + column.grey;
        for (QString* const text : {&column.before, &column.grey})
            text->replace("@", group + "/");
    }
    return columns;
}

/// The columns of a layer; all are grey without it, and all but Show in maps that do not show it.
static std::vector<LineColumn> ofLayer(const QString& layer, const QString& group,
                                       const QString& before, std::vector<LineColumn> columns)
{
    const QString on = "LinePlotLayers/Show" + layer + "=1 @Show=1 " + before;
    const QString off = "LinePlotLayers/Show" + layer + "=0";
    columns.push_back({"Show=0", "", ""});
    auto all = ofGroup(group, on, off + "|@Show=0", std::move(columns));
    all.back().grey = off;
    return all;
}

static std::vector<LineColumn> curveColumns()
{
    const QString fit = "@CurveType=1 @PolyOrder=6 ";
    const QString range = fit + "@UseIndVarRange=1 @IndVarMin=2 @IndVarMax=6 ";
    const QString weighted = fit + "@PolyOrder=2 @UseWeightVar=1 ";
    const QString clamped = "@CurveType=4 @ClampSpline=1 ";
    return ofGroup(
        "Curves", "", "",
        {{"CurveType=1", "", ""},
         {"CurveType=2", "Assign/YAxisVar=5", ""},
         {"CurveType=5", "@NumPts=8", ""},
         {"ExtendedFit=1", "@CurveType=6", ""},
         {"Smoothing=0", "@CurveType=6", "@CurveType=0"},
         {"NumPts=4", "@CurveType=4", "@CurveType=0"},
         {"PolyOrder=1", fit, "@CurveType=0"},
         {"UseIndVarRange=1", range + "@UseIndVarRange=0", "@CurveType=0"},
         {"IndVarMin=4", range, "@UseIndVarRange=0"},
         {"IndVarMax=9", range, "@UseIndVarRange=0"},
         {"UseWeightVar=1", weighted + "@WeightVar=1 @UseWeightVar=0", "@CurveType=0"},
         {"WeightVar=7", weighted + "@WeightVar=1", "@UseWeightVar=0"},
         {"ClampSpline=1",
          clamped + "@SplineDerivativeAtStart=-90 @ClampSpline=0 Indices/IRange/Skip=9",
          "@CurveType=0"},
         {"SplineDerivativeAtStart=-90", clamped + "Indices/IRange/Skip=9", "@ClampSpline=0"},
         {"SplineDerivativeAtEnd=90", clamped + "Indices/IRange/Skip=9", "@ClampSpline=0"}});
}

static std::vector<LineColumn> lineColumns()
{
    const QString bars = "LinePlotLayers/ShowBarCharts=1 BarCharts/Show=1";
    const QString letter = "@SymbolShape/ASCIIShape/ASCIIChar=q @SymbolShape/ASCIIShape/";
    const QString block = "Assign/Zone=3 ";
    std::vector<LineColumn> all;
    for (const auto& columns :
         {ofLayer("Lines", "Lines", "@LineThickness=1",
                  {{"Color=5", "", ""},
                   {"LineThickness=4", "", ""},
                   {"LinePattern=1", "", ""},
                   {"PatternLength=20", "@LinePattern=1", "@LinePattern=0"}}),
          ofLayer("Symbols", "Symbols", "@Skipping=9 @Size=6",
                  {{"SymbolShape/GeomShape=6", "", ""},
                   {"SymbolShape/IsASCII=1", "", ""},
                   {"SymbolShape/ASCIIShape/ASCIIChar=W", letter + "UseBaseFont=1", ""},
                   {"SymbolShape/ASCIIShape/UseBaseFont=0", letter + "FontOverride=1", ""},
                   {"SymbolShape/ASCIIShape/FontOverride=1", letter + "UseBaseFont=0", ""},
                   {"Size=9", "", ""},
                   {"SkipMode=1", "@Skipping=30", ""},
                   {"Skipping=4", "", ""},
                   {"Color=5", "", ""},
                   {"LineThickness=2", "", ""},
                   {"FillMode=2", "", ""},
                   {"FillColor=6", "@FillMode=1", "@FillMode=0|@FillMode=2|@FillMode=3"}}),
          ofLayer("ErrorBars", "ErrorBars", "@Var=5 @Skipping=9 @Size=4",
                  {{"Var=2", "", ""},
                   {"BarType=6", "", ""},
                   {"SkipMode=1", "@Skipping=30", ""},
                   {"Skipping=4", "", ""},
                   {"Color=5", "", ""},
                   {"Size=9", "", ""},
                   {"LineThickness=2", "", ""}}),
          ofLayer("BarCharts", "BarCharts", "Indices/IRange/Skip=9 @Size=3",
                  {{"Size=6", "", ""},
                   {"Color=5", "", ""},
                   {"LineThickness=2", "@FillMode=0", ""},
                   {"FillMode=0", "", ""},
                   {"FillColor=6", "@FillMode=1", "@FillMode=0|@FillMode=2|@FillMode=3"}}),
          ofGroup("Assign", "", "",
                  {{"Zone=2", "", ""},
                   {"XAxisVar=6", "", ""},
                   {"YAxisVar=5", "", ""},
                   {"XAxis=2", "", ""},
                   {"YAxis=2", "", ""},
                   {"Sort=2", "", "Curves/CurveType=4"},
                   {"SortVar=7", "@Sort=3", "@Sort=0"},
                   {"ShowInLegend=1", "LineLegend/Show=1", ""},
                   {"FunctionDependency=1", bars, "LinePlotLayers/ShowBarCharts=0"}}),
          curveColumns(),
          ofGroup("Indices", block, "Assign/Zone=4",
                  {{"IJKLines=1", "", ""},
                   {"JRange/Min=4", "", ""},
                   {"JRange/Max=3", "", ""},
                   {"JRange/Skip=3", "", ""},
                   {"KRange/Min=3", "", ""},
                   {"KRange/Max=1", "", ""},
                   {"KRange/Skip=2", "", ""}}),
          ofGroup(
              "Indices", "Assign/Zone=1", "",
              {{"IRange/Min=30", "", ""}, {"IRange/Max=60", "", ""}, {"IRange/Skip=20", "", ""}})})
        all.insert(all.end(), columns.begin(), columns.end());
    return all;
}

static QImage picture()
{
    return renderToImage(document().activeFrameId(), kSize, nullptr);
}

class tst_LineColumns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void columns_data()
    {
        const Rows<LineColumn> row;
        for (const LineColumn& column : lineColumns())
            row(column.change + " after" + column.before, column);
    }

    /// A value shows in the picture of its map, and not while its cell in the tables is grey.
    void columns()
    {
        const auto [column] = currentRow<LineColumn>();
        for (const QString& state : QStringList {""} + column.grey.split('|', Qt::SkipEmptyParts)) {
            openDemo("xy", 2);
            editStyle("LineAxes/X/AutomaticRange[1]=0 LineAxes/X/RangeMax[1]=10 "
                      "LineLegend/Show=0"); // which has names of variables
            editStyle(column.before + " " + state, "1");
            const QImage before = picture();
            editStyle(column.change, "1");
            const QImage after = picture();
            const double change = shareOfChange(before, after);
            QVERIFY2(state.isEmpty() ? change > 0.0005 : before == after, qPrintable(state));
            document().undo().undo();
            QVERIFY2(before == picture(), qPrintable("undone: " + state));
        }
    }

    /// Changes of a map that is not shown show nothing.
    void mapsApart()
    {
        openDemo("xy", 2);
        document().execute(
            host::SetStyle {{"ActiveLineMaps"}, mapsOf("1"), {}, -1, AssignOp_Remove});
        editStyle("LinePlotLayers/ShowSymbols=1 LinePlotLayers/ShowBarCharts=1 LineLegend/Show=0");
        const QImage before = picture();
        for (const LineColumn& column : lineColumns())
            editStyle(column.change, "1");
        QCOMPARE(picture(), before);
    }

    void noColumnIsLeftOut()
    {
        QStringList shown = {"Name", "Assign/ThetaAxisVar", "Assign/RAxisVar",
                             "Assign/ShowInLegend"};
        for (const LineColumn& column : lineColumns())
            shown << column.change.section('=', 0, 0);
        const auto& schema = host::Schema::instance();
        for (const host::AttributeId id : schema.inScope(style::Scope::LineMap)) {
            QStringList path;
            for (const std::string& name : schema.at(id).names)
                path << QString::fromStdString(name);
            QVERIFY2(shown.contains(path.mid(1).join('/')), qPrintable(path.join('/')));
        }
    }
};

QTEST_MAIN(tst_LineColumns)

#include "tst_line_columns.moc"
