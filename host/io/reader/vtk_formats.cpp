// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/algorithm_file.h"
#include "host/io/reader/file_format.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/read_failure.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QXmlStreamReader>

#include <vtkGenericDataObjectReader.h>
#include <vtkNew.h>
#include <vtkXMLGenericDataObjectReader.h>

#include <algorithm>

namespace corvala::host::io::reader {

static constexpr qint64 kLongestEnd = 4096; ///< of the last tag, with what may follow it

static QByteArray lastBytes(const QString& path, qint64 count)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    file.seek(std::max<qint64>(file.size() - count, 0));
    return file.read(count);
}

std::unique_ptr<DataFile> openLegacyVtk(const QString& path)
{
    if (!firstBytes(path, 14).startsWith("# vtk DataFile"))
        throw ReadFailure(path,
                          QT_TRANSLATE_NOOP("ReadMessage",
                                            "it does not begin with \"# vtk DataFile\", as legacy "
                                            "VTK files do"));
    auto reader = vtkSmartPointer<vtkGenericDataObjectReader>::New();
    reader->SetFileName(QFile::encodeName(path).constData());
    if (reader->ReadOutputType() < 0)
        throw ReadFailure(path,
                          QT_TRANSLATE_NOOP("ReadMessage",
                                            "there is no geometry in it (no DATASET line, or an "
                                            "unknown kind of data set)"));
    reader->ReadAllScalarsOn();
    reader->ReadAllVectorsOn();
    reader->ReadAllNormalsOn();
    reader->ReadAllTensorsOn();
    reader->ReadAllColorScalarsOn();
    reader->ReadAllTCoordsOn();
    reader->ReadAllFieldsOn();
    return std::make_unique<AlgorithmFile>(path, reader);
}

/// What a parallel file or a tree of blocks is made of, by the attributes before the first values.
static QStringList filesNamedIn(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader xml(&file);
    QStringList result;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("DataArray") || xml.name() == QLatin1String("AppendedData"))
            break;
        for (const char* const attribute : {"file", "Source"})
            if (xml.attributes().hasAttribute(QLatin1String(attribute)))
                result << QFileInfo(path).dir().absoluteFilePath(
                    xml.attributes().value(QLatin1String(attribute)).toString());
    }
    return result;
}

/// VTK takes values after the XML that are cut off for whatever the memory held.
static void requireEnds(const QString& path)
{
    QStringList files {path};
    QSet<QString> seen;
    while (!files.isEmpty()) {
        const QString each = files.takeLast();
        if (seen.contains(each) || !QFileInfo(each).isFile())
            continue;
        seen.insert(each);
        if (!lastBytes(each, kLongestEnd).contains("</VTKFile"))
            throw ReadFailure(
                each,
                QT_TRANSLATE_NOOP("ReadMessage", "it is cut off: the end of the XML is missing"));
        files += filesNamedIn(each);
    }
}

void requireXmlVtk(const QString& path)
{
    bool isParallel = false;
    vtkNew<vtkXMLGenericDataObjectReader> reader;
    if (reader->ReadOutputType(QFile::encodeName(path).constData(), isParallel) < 0)
        throw ReadFailure(
            path,
            QT_TRANSLATE_NOOP("ReadMessage", "it is no VTK XML file of a kind that is known"));
    requireEnds(path);
}

std::unique_ptr<DataFile> openXmlVtk(const QString& path)
{
    requireXmlVtk(path);
    auto reader = vtkSmartPointer<vtkXMLGenericDataObjectReader>::New();
    reader->SetFileName(QFile::encodeName(path).constData());
    return std::make_unique<AlgorithmFile>(path, reader);
}

} // namespace corvala::host::io::reader
