// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/sample_list.h"

#include "tests/io/io_support.h"

using namespace corvala::host::io;

class TestSampleList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySampleHasFilesOriginAndLicence()
    {
        const QDir folder(samplesFolder());
        QFile list(folder.filePath("samples.json"));
        QVERIFY(list.open(QIODevice::ReadOnly));
        const int listed = QString::fromUtf8(list.readAll()).count("\"title\"");
        const std::vector<Sample> samples = sampleList();
        QCOMPARE(static_cast<int>(samples.size()), listed);
        QVERIFY(listed >= 3);
        const QStringList texts = QDir(folder.filePath("LICENSES")).entryList(QDir::Files);
        for (const Sample& sample : samples) {
            QVERIFY2(!sample.title.isEmpty() && !sample.files.isEmpty(), qPrintable(sample.title));
            const QFileInfo file(sample.files.first());
            QVERIFY2(file.dir().exists("ORIGIN.md"), qPrintable(sample.title));
            QVERIFY2(!texts.filter(sample.licence, Qt::CaseInsensitive).isEmpty(),
                     qPrintable(sample.licence));
        }
    }

    void samplesAreSmall()
    {
        qint64 bytes = 0;
        QDirIterator files(samplesFolder(), QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            files.next();
            bytes += files.fileInfo().size();
        }
        QVERIFY2(bytes < 2'000'000, qPrintable(QString::number(bytes)));
    }
};

QTEST_GUILESS_MAIN(TestSampleList)
#include "tst_sample_list.moc"
