// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/zone_file_source.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <vtkImageData.h>
#include <vtkNew.h>
#include <vtkPointData.h>
#include <vtkXMLDataSetWriter.h>

using namespace corvala::host::io;

static constexpr int kZones = 3;

/// A folder with images of 40, 41 and 42 points a side.
static std::unique_ptr<ReadFolder> folderWithZones(std::vector<std::string>& files)
{
    auto folder = std::make_unique<ReadFolder>();
    for (int i = 0; i < kZones; ++i) {
        vtkNew<vtkImageData> image;
        image->SetDimensions(40 + i, 40 + i, 40 + i);
        image->AllocateScalars(VTK_DOUBLE, 1);
        files.push_back("zone-" + std::to_string(i) + ".xml");
        vtkNew<vtkXMLDataSetWriter> writer;
        writer->SetInputData(image);
        writer->SetFileName(
            QFile::encodeName(folder->filePath(QString::fromStdString(files.back()))).constData());
        writer->Write();
    }
    return folder;
}

/// The numbers of a zone, which callers share.
static vtkDataArray* numbersOf(const vtkSmartPointer<vtkDataSet>& zone)
{
    return zone->GetPointData()->GetScalars();
}

class TestZoneFileSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadsOnceAndTakesTheFolderAlong()
    {
        std::vector<std::string> files;
        auto folder = folderWithZones(files);
        const QString path = folder->path();
        vtkSmartPointer<vtkDataSet> kept;
        {
            const ZoneFileSource source(std::move(folder), files);
            kept = source.zone(1);
            QVERIFY(kept);
            QCOMPARE(kept->GetNumberOfPoints(), vtkIdType(41 * 41 * 41));
            QCOMPARE(numbersOf(source.zone(1)), numbersOf(kept));
            QVERIFY(source.zone(1) != kept); // threads let go of their own
            QVERIFY(!source.zone(-1));
            QVERIFY(!source.zone(kZones));
            QVERIFY(QFile::remove(path + "/zone-2.xml"));
            QVERIFY(!source.zone(2));
        }
        QVERIFY(!QDir(path).exists());
        QCOMPARE(kept->GetNumberOfPoints(), vtkIdType(41 * 41 * 41));
    }

    void cacheDropsWhatWasUsedLongestAgo()
    {
        std::vector<std::string> files;
        auto folder = folderWithZones(files);
        const QString path = folder->path();
        // Two zones fit: 8 bytes times 40^3 to 42^3 points.
        const ZoneFileSource source(std::move(folder), files, 1'200'000);
        QVERIFY(source.zone(0) && source.hasRoom());
        QVERIFY(source.zone(1) && source.zone(0) && source.zone(2));
        for (const std::string& file : files)
            QVERIFY(QFile::remove(path + '/' + QString::fromStdString(file)));
        QVERIFY(source.zone(0));
        QVERIFY(source.zone(2));
        QVERIFY(!source.zone(1));
    }

    void cacheHoldsAtLeastOneZone()
    {
        std::vector<std::string> files;
        auto folder = folderWithZones(files);
        const ZoneFileSource source(std::move(folder), files, 1);
        const vtkSmartPointer<vtkDataSet> zone = source.zone(0);
        QVERIFY(zone);
        QCOMPARE(numbersOf(source.zone(0)), numbersOf(zone));
    }
};

QTEST_GUILESS_MAIN(TestZoneFileSource)
#include "tst_zone_file_source.moc"
