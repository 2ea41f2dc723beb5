// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/data_joining.h"
#include "host/document/vector_magnitudes.h"

#include <vtkDoubleArray.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

#include <QTest>

#include <map>

using namespace corvala::host;

namespace {

/// Zones of one point, whose arrays have one value, or one for each component.
class OnePointSource : public ZoneSource
{
public:
    using Arrays = std::map<std::string, std::vector<double>>;

    explicit OnePointSource(Arrays arrays)
        : m_arrays(std::move(arrays))
    {
    }
    vtkSmartPointer<vtkDataSet> zone(std::int64_t) const override
    {
        const auto zone = vtkSmartPointer<vtkPolyData>::New();
        vtkNew<vtkPoints> points;
        points->InsertNextPoint(1.0, 2.0, 3.0);
        zone->SetPoints(points);
        for (const auto& [name, values] : m_arrays) {
            vtkNew<vtkDoubleArray> array;
            array->SetName(name.c_str());
            array->SetNumberOfComponents(static_cast<int>(values.size()));
            array->InsertNextTuple(values.data());
            zone->GetPointData()->AddArray(array);
        }
        return zone;
    }

private:
    Arrays m_arrays;
};

} // namespace

static DataSet dataOf(const OnePointSource::Arrays& arrays, std::vector<Variable> variables,
                      const std::vector<double>& times)
{
    DataSet data;
    data.variables = {{"X", {}, {}, 0}};
    data.variables.insert(data.variables.end(), variables.begin(), variables.end());
    for (const double time : times) {
        ZoneInfo zone;
        zone.name = "wing";
        zone.strand = 1;
        zone.time = time;
        zone.sourceIndex = data.zoneCount();
        data.zones.push_back(zone);
    }
    data.source = std::make_shared<OnePointSource>(arrays);
    return data;
}

static QString valuesOf(const DataSet& data, std::int64_t zone)
{
    QStringList texts;
    for (std::int64_t variable = 1; variable <= data.variableCount(); ++variable) {
        const ZoneValues values = data.values(zone, variable);
        texts << QString::fromStdString(data.variable(variable).name) + '='
                + (values.array ? QString::number(values.array->GetComponent(0, 0)) : "-");
    }
    return texts.join(' ');
}

class tst_DataJoining : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unitesVariablesByName()
    {
        DataSet present =
            dataOf({{"v", {3, 4}}, {"p", {5}}},
                   {{"v X", {}, "v", 0}, {"v Y", {}, "v", 1}, {"p", {}, "p", 0}}, {0.0});
        addMagnitudes(present);
        const DataSet added = dataOf(
            {{"pressure", {7}}, {"p", {8}}, {"v", {6, 8}}},
            {{"p", {}, "pressure", 0}, {"q", {}, "p", 0}, {"v X", {}, "v", 0}, {"v Y", {}, "v", 1}},
            {1.0});
        const auto both = joined(present, added);
        QCOMPARE(valuesOf(*both, 1), QStringLiteral("X=1 v X=3 v Y=4 p=5 v Magnitude=5 q=-"));
        QCOMPARE(valuesOf(*both, 2), QStringLiteral("X=1 v X=6 v Y=8 p=7 v Magnitude=10 q=8"));
        QCOMPARE(valuesOf(*joined(*both, added), 3), valuesOf(*both, 2)); // and once more
    }

    void strandsGoOnAtOtherTimes()
    {
        const DataSet present = dataOf({}, {}, {0.0, 1.0});
        QCOMPARE(joined(present, dataOf({}, {}, {2.0}))->zones[2].strand, 1);
        QCOMPARE(joined(present, dataOf({}, {}, {1.0, 2.0}))->zones[2].strand, 2);
    }
};

QTEST_GUILESS_MAIN(tst_DataJoining)
#include "tst_data_joining.moc"
