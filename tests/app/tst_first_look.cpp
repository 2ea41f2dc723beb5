// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/first_look.h"
#include "host/document/document.h"
#include "host/style/schema.h"
#include "tests/support/rows.h"

#include <QTest>

using namespace corvala;
using namespace corvala::tests;
using host::ZoneInfo;

namespace {

ZoneInfo ordered(std::int64_t i, std::int64_t j, std::int64_t k)
{
    ZoneInfo zone;
    zone.ordered = true;
    zone.dimensions = {{i, j, k}};
    zone.cellDimension = (i > 1) + (j > 1) + (k > 1);
    zone.cellCount = std::max<std::int64_t>(1, i - 1) * std::max<std::int64_t>(1, j - 1)
        * std::max<std::int64_t>(1, k - 1);
    return zone;
}

ZoneInfo unordered(int dimension, std::int64_t cells)
{
    ZoneInfo zone;
    zone.cellDimension = dimension;
    zone.cellCount = cells;
    return zone;
}

/// Layers that are on, "boundary" with the maps that draw their boundary faces.
QString lookOf(const host::Frame& frame)
{
    const std::pair<style::SwitchKey, const char*> layers[] = {
        {style::fieldLayers.showContour, "contour"},
        {style::fieldLayers.showShade, "shade"},
        {style::fieldLayers.useLightingEffect, "light"},
        {style::fieldLayers.showMesh, "mesh"},
        {style::fieldLayers.showEdge, "edges"}};
    QStringList texts;
    for (const auto& [key, name] : layers)
        if (frame.isOn(key))
            texts << name;
    const host::AttributeId surfaces =
        host::Schema::instance().at(style::fieldMap.surfaces.surfacesToPlot).id;
    QString maps;
    for (CvlInt64 map = 1; map <= std::min<CvlInt64>(3, frame.fieldMapCount()); ++map)
        if (frame.fieldMaps().hasVolumeZones(map)
            && frame.fieldInteger(surfaces, map) == SurfacesToPlot_BoundaryCellFaces)
            maps += QString::number(map);
    if (!maps.isEmpty())
        texts << "boundary " + maps;
    return texts.join(' ');
}

} // namespace

/// What opened data look like, by what is in them.
class tst_FirstLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dependsOnTheData_data()
    {
        const Rows<QVector<ZoneInfo>, bool, bool,
                   QString> row; // zones, a variable, planar, look
        row("small plane", {ordered(20, 20, 1)}, true, true, "contour mesh edges");
        row("large plane", {ordered(200, 200, 1)}, true, true, "contour edges");
        row("no variable", {ordered(20, 20, 1)}, false, true, "shade mesh edges");
        row("surfaces in space", {unordered(2, 5000), unordered(2, 9)}, true, false,
            "contour shade light edges");
        row("volumes", {ordered(40, 40, 40), unordered(3, 10)}, true, false,
            "contour shade light edges boundary 12");
        row("volume with its surface", {ordered(40, 40, 40), unordered(2, 9600)}, true, false,
            "contour shade light edges");
        row("volume and a line", {ordered(40, 40, 40), ordered(9, 1, 1)}, true, false,
            "contour shade light edges boundary 1");
        row("very many zones", QVector<ZoneInfo>(1001, unordered(2, 100)), true, false,
            "contour shade light");
    }

    void dependsOnTheData()
    {
        const auto [zones, hasVariable, isPlanar, look] =
            currentRow<QVector<ZoneInfo>, bool, bool, QString>();
        auto data = std::make_shared<host::DataSet>();
        data->variables = {{"X", "", "", 0}, {"Y", "", "", 1}, {"Z", "", "", 2}, {"p", "", "p", 0}};
        data->zones.assign(zones.begin(), zones.end());
        data->isPlanar = isPlanar;
        if (hasVariable)
            data->contourVariables = {4};
        host::Document& document = host::Document::instance();
        document.execute(host::AttachData {{}, data, data->suggestedPlotType(), 1});
        for (const host::SetStyle& value : app::firstLook(*document.activeFrame()))
            QVERIFY(document.execute(value).isDone());
        QCOMPARE(lookOf(*document.activeFrame()), look);
        QVERIFY(document.undo().undoText().isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_FirstLook)
#include "tst_first_look.moc"
