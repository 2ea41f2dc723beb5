// SPDX-License-Identifier: BSD-3-Clause
#include "host/document/document.h"
#include "samples/demo_data.h"
#include "tests/support/rows.h"

#include <vtkDataArray.h>
#include <vtkDataSet.h>

#include <QtTest>

#include <cmath>

using namespace corvala;
using namespace corvala::host;
using namespace corvala::tests;

class tst_DemoData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void zonesMatchTheirDescription_data()
    {
        const Rows<int, int, int,
                   QString>
            row; // scale, plotType, maps, dimensions (highest cell dimension per zone)
        row("field2d", 4, 2, 4, "2222");
        row("field3d", 5, 1, 5, "32323");
        row("kinds", 0, 1, 8, "32231032");
        row("transient", 0, 2, 3, "2222222");
        row("xy", 4, 3, 4, "1130");
        row("polar", 0, 5, 6, "1130");
    }

    void zonesMatchTheirDescription()
    {
        const auto [scale, plotType, maps, dimensions] = currentRow<int, int, int, QString>();
        std::string error;
        QVERIFY2(samples::openDemo(QTest::currentDataTag(), scale, error), error.c_str());
        const Frame& frame = *Document::instance().activeFrame();
        const DataSet& data = *frame.data();
        QCOMPARE(int(frame.plotType()), plotType);
        QCOMPARE(frame.shownMapCount(), CvlInt64(maps));
        QCOMPARE(data.zoneCount(), std::int64_t(dimensions.size()));
        for (std::int64_t zone = 1; zone <= data.zoneCount(); ++zone) {
            const ZoneInfo& info = data.zone(zone);
            QCOMPARE(info.cellDimension, dimensions.mid(int(zone - 1), 1).toInt());
            const vtkSmartPointer<vtkDataSet> grid = data.geometry(zone);
            QCOMPARE(grid ? grid->GetNumberOfPoints() : 0, vtkIdType(info.pointCount));
            QCOMPARE(grid ? grid->GetNumberOfCells() : 0, vtkIdType(info.cellCount));
            for (std::int64_t variable = 1; grid && variable <= data.variableCount(); ++variable) {
                const ZoneValues values = data.values(zone, variable);
                QVERIFY(values.array);
                for (vtkIdType i = 0; i < values.array->GetNumberOfTuples(); ++i)
                    QVERIFY(std::isfinite(values.array->GetTuple1(i)));
            }
        }
    }

    void refusesBadRequests()
    {
        std::string error;
        QVERIFY(samples::openDemo("kinds", 0, error));
        for (const auto& [name, scale] : {std::pair<const char*, int> {"kinds", 3},
                                          {"field2d", 1000001},
                                          {"field2d", -1},
                                          {"nothing", 0}}) {
            error.clear();
            QVERIFY(!samples::openDemo(name, scale, error));
            QVERIFY(error.find(name) != std::string::npos);
            QCOMPARE(Document::instance().activeFrame()->fieldMapCount(), CvlInt64(8));
        }
    }

    void growsToAMillion()
    {
        std::string error;
        QVERIFY(samples::openDemo("field2d", 1000000, error));
        const Frame& frame = *Document::instance().activeFrame();
        QCOMPARE(frame.fieldMapCount(), CvlInt64(1000000));
        QCOMPARE(frame.data()->zone(1000000).name, std::string("Zone 1000000"));
        QCOMPARE(frame.data()->zone(2).pointCount, std::int64_t(9));
        QVERIFY(frame.fieldStyle().memoryUse() <= std::size_t(64) * 1000000);
        Document::instance().clear();
    }
};

QTEST_GUILESS_MAIN(tst_DemoData)
#include "tst_demo_data.moc"
