// SPDX-License-Identifier: BSD-3-Clause
#include "samples/demo_data.h"

#include "host/document/document.h"
#include "samples/demo_zones.h"

#include <vtkDataSet.h>

#include <algorithm>
#include <cmath>
#include <functional>

namespace corvala::samples {

using host::DataSet;
using host::Document;

namespace {

using ZoneFormula = std::function<DemoZone(std::int64_t index)>;

/// Makes the zones when they are asked for; holds none.
class FormulaSource : public host::ZoneSource
{
public:
    using Maker = std::function<vtkSmartPointer<vtkDataSet>(std::int64_t index)>;

    explicit FormulaSource(Maker maker)
        : m_maker(std::move(maker))
    {
    }
    vtkSmartPointer<vtkDataSet> zone(std::int64_t index) const override { return m_maker(index); }

private:
    Maker m_maker;
};

std::shared_ptr<const host::ZoneSource> flowSource(ZoneFormula formula)
{
    return std::make_shared<FormulaSource>(
        [formula = std::move(formula)](std::int64_t index) { return flowZone(formula(index)); });
}

std::shared_ptr<const host::ZoneSource> signalSource(ZoneFormula formula)
{
    return std::make_shared<FormulaSource>([formula = std::move(formula)](std::int64_t index) {
        return signalZone(formula(index), static_cast<int>(index));
    });
}

void addVariables(DataSet& data, const std::vector<const char*>& coordinates,
                  const std::vector<const char*>& arrays)
{
    for (const char* name : coordinates)
        data.variables.push_back({name, {}, {}, static_cast<int>(data.variables.size())});
    for (const char* name : arrays)
        data.variables.push_back({name, {}, name, 0});
}

void addFlowVariables(DataSet& data, bool planar)
{
    if (planar)
        addVariables(data, {"X", "Y"}, {"U", "V", "Pressure", "Density"});
    else
        addVariables(data, {"X", "Y", "Z"}, {"U", "V", "W", "Pressure", "Density"});
    const int first = planar ? 3 : 4;
    data.vectorVariables = {{first, first + 1, planar ? 0 : first + 2}};
    const int pressure = first + (planar ? 2 : 3);
    data.contourVariables = {pressure, pressure + 1};
    data.isPlanar = planar;
}

void addZones(DataSet& data, std::int64_t count, const ZoneFormula& formula)
{
    data.zones.reserve(static_cast<std::size_t>(count));
    for (std::int64_t index = 0; index < count; ++index) {
        host::ZoneInfo info = infoOf(formula(index));
        info.name = "Zone " + std::to_string(index + 1);
        info.sourceIndex = index;
        data.zones.push_back(std::move(info));
    }
}

/// Side by side on a grid over the region round the cylinder, -4 to 8 by -4 to 4.
ZoneFormula planarZones(std::int64_t count)
{
    const auto columns =
        std::max<std::int64_t>(1, std::llround(std::sqrt(1.5 * static_cast<double>(count))));
    const std::int64_t rows = (count + columns - 1) / columns;
    const bool isSmall = count <= 1000;
    return [=](std::int64_t index) {
        DemoZone zone;
        zone.cells = index % 2 == 0 ? DemoCells::Ordered : DemoCells::Triangles;
        zone.points = isSmall ? std::array<int, 3> {{9, 7, 1}} : std::array<int, 3> {{3, 3, 1}};
        const double width = 12.0 / static_cast<double>(columns);
        const double height = 8.0 / static_cast<double>(rows);
        zone.origin = {{-4.0 + width * static_cast<double>(index % columns),
                        4.0 - height * static_cast<double>(index / columns + 1), 0.0}};
        zone.size = {{width * 0.96, height * 0.96, 0.0}};
        return zone;
    };
}

ZoneFormula solidZones(std::int64_t count)
{
    const auto columns =
        std::max<std::int64_t>(1, std::llround(std::ceil(std::sqrt(static_cast<double>(count)))));
    return [=](std::int64_t index) {
        static constexpr DemoCells kKinds[] = {DemoCells::Ordered, DemoCells::Ordered,
                                               DemoCells::Hexahedra, DemoCells::Triangles};
        DemoZone zone;
        zone.cells = kKinds[index % 4];
        const bool isSolid = index % 2 == 0;
        zone.points = {{7, 5, isSolid ? 4 : 1}};
        zone.origin = {{-4.0 + 2.4 * static_cast<double>(index % columns),
                        3.0 - 2.0 * static_cast<double>(index / columns), 0.0}};
        zone.size = {{2.0, 1.6, isSolid ? 1.2 : 0.0}};
        return zone;
    };
}

std::shared_ptr<DataSet> makeField(std::int64_t count, bool planar)
{
    auto data = std::make_shared<DataSet>();
    data->title = planar ? "field2d" : "field3d";
    addFlowVariables(*data, planar);
    const ZoneFormula formula = planar ? planarZones(count) : solidZones(count);
    addZones(*data, count, formula);
    data->source = flowSource(formula);
    return data;
}

std::shared_ptr<DataSet> makeKinds()
{
    struct Kind
    {
        const char* name;
        DemoCells cells;
        std::array<int, 3> points;
    };
    static constexpr Kind kKinds[] = {
        {"Zone 1", DemoCells::Ordered, {{7, 5, 4}}},
        {"ZONE 12", DemoCells::Ordered, {{7, 5, 1}}},
        {"My zone", DemoCells::Triangles, {{7, 5, 1}}},
        {"body/tets", DemoCells::Tetrahedra, {{5, 4, 3}}},
        {"wing [upper]", DemoCells::Ordered, {{20, 1, 1}}},
        {"Gr\xc3\xb6\xc3\x9f"
         "e",
         DemoCells::Empty,
         {{1, 1, 1}}},
        {"a*b?c", DemoCells::Hexahedra, {{5, 4, 3}}},
        {"x", DemoCells::Polygons, {{7, 5, 1}}},
    };
    const ZoneFormula formula = [](std::int64_t index) {
        DemoZone zone;
        zone.cells = kKinds[index].cells;
        zone.points = kKinds[index].points;
        zone.origin = {{-4.0 + 2.4 * static_cast<double>(index % 4),
                        1.0 - 2.0 * static_cast<double>(index / 4), 0.0}};
        zone.size = {{2.0, 1.6, 1.2}};
        return zone;
    };
    auto data = std::make_shared<DataSet>();
    data->title = "kinds";
    addFlowVariables(*data, false);
    addZones(*data, static_cast<std::int64_t>(std::size(kKinds)), formula);
    for (std::size_t i = 0; i < std::size(kKinds); ++i)
        data->zones[i].name = kKinds[i].name;
    data->source = flowSource(formula);
    return data;
}

std::shared_ptr<DataSet> makeTransient()
{
    struct Step
    {
        int strand;
        double time;
        int place;
    };
    static constexpr Step kSteps[] = {{0, 0, 0}, {1, 0, 1}, {1, 1, 1}, {1, 2, 1},
                                      {1, 3, 1}, {7, 2, 2}, {7, 3, 2}};
    const ZoneFormula formula = [](std::int64_t index) {
        const Step& step = kSteps[index];
        DemoZone zone = planarZones(3)(step.place);
        zone.points = {{25, 25, 1}};
        zone.time = step.time;
        return zone;
    };
    auto data = std::make_shared<DataSet>();
    data->title = "transient";
    addFlowVariables(*data, true);
    addZones(*data, static_cast<std::int64_t>(std::size(kSteps)), formula);
    for (std::size_t i = 0; i < std::size(kSteps); ++i)
        data->zones[i].strand = kSteps[i].strand;
    data->source = flowSource(formula);
    return data;
}

std::shared_ptr<DataSet> makeSignals(const std::string& title)
{
    const ZoneFormula formula = [](std::int64_t index) {
        DemoZone zone;
        zone.points = index < 2 ? std::array<int, 3> {{101, 1, 1}}
            : index == 2        ? std::array<int, 3> {{11, 7, 3}}
                                : std::array<int, 3> {{40, 1, 1}};
        zone.cells = index == 3 ? DemoCells::Vertices : DemoCells::Ordered;
        return zone;
    };
    auto data = std::make_shared<DataSet>();
    data->title = title;
    addVariables(*data, {}, {"Time", "Force", "Moment", "Power", "Error", "Angle", "Gain"});
    addZones(*data, 4, formula);
    data->source = signalSource(formula);
    return data;
}

void assign(style::VariableKey key, const host::NumberSet& maps, int variable)
{
    if (maps.isEmpty())
        return;
    host::SetStyle value {host::pathOf(key), double(variable), maps};
    value.undoable = false; // it is where the user begins
    Document::instance().execute(value);
}

/// Map n plots variable 2 + (n - 1) mod 3 over "Time", and "Gain" over "Angle" on a polar plot.
void assignLineVariables(std::int64_t maps)
{
    constexpr std::int64_t kCurves = 3;
    constexpr int kAngle = 6;
    for (std::int64_t curve = 0; curve < kCurves; ++curve) {
        host::NumberSet members;
        for (std::int64_t map = curve + 1; map <= maps; map += kCurves)
            members.add(static_cast<std::uint32_t>(map));
        assign(style::lineMap.assign.yAxisVar, members, static_cast<int>(curve) + 2);
    }
    assign(style::lineMap.assign.thetaAxisVar, host::allUpTo(maps), kAngle);
    assign(style::lineMap.assign.rAxisVar, host::allUpTo(maps), kAngle + 1);
}

} // namespace

std::vector<std::string> demoNames()
{
    return {"field2d", "field3d", "kinds", "transient", "xy", "polar"};
}

DemoData demoData(const std::string& name, std::int64_t scale, std::string& error)
{
    constexpr std::int64_t kMost = 1000000;
    const bool isField = name == "field2d" || name == "field3d";
    const bool isLine = name == "xy" || name == "polar";
    if (scale < 0 || scale > kMost || (scale > 0 && !isField && !isLine)) {
        error = isField || isLine
            ? "\"" + name + "\" takes 1 to 1000000, not " + std::to_string(scale)
            : "\"" + name + "\" has a fixed size";
        return {};
    }
    const bool planar = name == "field2d";
    if (isField)
        return {makeField(scale > 0 ? scale : 12, planar),
                planar ? PlotType_Field2D : PlotType_Field3D};
    if (isLine)
        return {makeSignals(name), name == "xy" ? PlotType_LineXY : PlotType_LinePolar,
                scale > 0 ? scale : 6};
    if (name == "kinds")
        return {makeKinds(), PlotType_Field3D};
    if (name == "transient")
        return {makeTransient(), PlotType_Field2D};
    error = "there is no embedded data named \"" + name + "\"";
    return {};
}

bool openDemo(const std::string& name, std::int64_t scale, std::string& error)
{
    DemoData demo = demoData(name, scale, error);
    if (!demo.data)
        return false;
    host::DataOrigin origin;
    origin.demo = name;
    origin.scale = scale;
    Document::instance().execute(
        host::AttachData {std::move(origin), std::move(demo.data), demo.plotType, demo.lineMaps});
    if (demo.lineMaps > 0)
        assignLineVariables(demo.lineMaps);
    return true;
}

} // namespace corvala::samples
