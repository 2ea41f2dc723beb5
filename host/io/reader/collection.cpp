// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/formats.h"
#include "host/io/reader/read_failure.h"
#include "host/io/reader/vtk_messages.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

#include <vtkCompositeDataSet.h>
#include <vtkInformation.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>
#include <vtkXMLGenericDataObjectReader.h>

#include <map>
#include <set>

namespace corvala::host::io::reader {

/// A .pvd file, which VTK has no reader for: lists VTK XML files by time, group and part. The tree
/// of a time has a block per part, in a block per group where groups are named.
class Collection : public DataFile
{
public:
    explicit Collection(const QString& path);

    QString path() const override { return m_path; }
    std::vector<double> times() const override { return m_times; }
    vtkSmartPointer<vtkDataObject> read(std::size_t timeIndex,
                                        const ProgressCall& progress) override;

private:
    struct Entry
    {
        QString group;
        QString part;
        QString file;
    };

    void parse(QXmlStreamReader& xml);
    void addEntry(const QXmlStreamReader& xml);
    std::string blockName(const Entry& entry, std::map<QString, int>& uses) const;

    QString m_path;
    std::map<double, std::vector<Entry>> m_entries;
    std::vector<double> m_times;
    bool m_hasSeveralParts = false; ///< at some time
};

Collection::Collection(const QString& path)
    : m_path(path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    QXmlStreamReader xml(&file);
    parse(xml);
    if (xml.hasError())
        throw ReadFailure(path, QT_TRANSLATE_NOOP("ReadMessage", "line %1: %2"),
                          {QString::number(xml.lineNumber()), xml.errorString()});
    if (m_entries.empty())
        throw ReadFailure(path,
                          QT_TRANSLATE_NOOP("ReadMessage", "it is no collection that lists files"));
    for (const auto& [time, entries] : m_entries) {
        m_times.push_back(time);
        m_hasSeveralParts = m_hasSeveralParts || entries.size() > 1;
    }
}

void Collection::parse(QXmlStreamReader& xml)
{
    bool inside = false;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("Collection"))
            inside = true;
        else if (xml.isStartElement() && inside && xml.name() == QLatin1String("DataSet"))
            addEntry(xml);
    }
}

void Collection::addEntry(const QXmlStreamReader& xml)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    const QString time = attributes.value(QLatin1String("timestep")).toString().trimmed();
    bool isNumber = true;
    const double value = time.isEmpty() ? 0.0 : time.toDouble(&isNumber);
    if (!isNumber)
        throw ReadFailure(m_path, QT_TRANSLATE_NOOP("ReadMessage", "\"%1\" is no time"), {time});
    const QString file = attributes.value(QLatin1String("file")).toString();
    if (file.isEmpty())
        throw ReadFailure(m_path,
                          QT_TRANSLATE_NOOP("ReadMessage", "line %1: the entry names no file"),
                          {QString::number(xml.lineNumber())});
    Entry entry;
    entry.group = attributes.value(QLatin1String("group")).toString();
    entry.part = attributes.value(QLatin1String("name")).toString();
    if (entry.part.isEmpty())
        entry.part = attributes.value(QLatin1String("part")).toString();
    entry.file = QFileInfo(m_path).dir().absoluteFilePath(file);
    m_entries[value].push_back(entry);
}

/// Parts that share group and number at one time are told apart by their order.
std::string Collection::blockName(const Entry& entry, std::map<QString, int>& uses) const
{
    const QString base = QFileInfo(m_path).completeBaseName();
    if (!m_hasSeveralParts)
        return (entry.group.isEmpty() ? base : entry.group).toStdString();
    bool isNumber = false;
    int number = entry.part.toInt(&isNumber) + 1;
    number += uses[entry.group + QLatin1Char('\n') + entry.part]++;
    const QString part =
        isNumber || entry.part.isEmpty() ? QStringLiteral("Piece %1").arg(number) : entry.part;
    return (entry.group.isEmpty() ? part : entry.group + QLatin1Char('/') + part).toStdString();
}

static vtkSmartPointer<vtkDataObject> readPart(const QString& path)
{
    requireReadable(path);
    requireXmlVtk(path);
    vtkNew<vtkXMLGenericDataObjectReader> reader;
    reader->SetFileName(QFile::encodeName(path).constData());
    reader->Update();
    const ReadMessage error = VtkMessages::takeError();
    if (!error.isEmpty())
        throw ReadFailure(path, error);
    return reader->GetOutputDataObject(0);
}

vtkSmartPointer<vtkDataObject> Collection::read(std::size_t timeIndex, const ProgressCall& progress)
{
    const std::vector<Entry>& entries = m_entries.at(m_times[timeIndex]);
    auto result = vtkSmartPointer<vtkMultiBlockDataSet>::New();
    std::map<QString, int> uses;
    for (unsigned int i = 0; i < entries.size(); ++i) {
        progress(static_cast<double>(i) / static_cast<double>(entries.size()));
        result->SetBlock(i, readPart(entries[i].file));
        result->GetMetaData(i)->Set(vtkCompositeDataSet::NAME(),
                                    blockName(entries[i], uses).c_str());
    }
    return result;
}

std::unique_ptr<DataFile> openCollection(const QString& path)
{
    return std::make_unique<Collection>(path);
}

} // namespace corvala::host::io::reader
