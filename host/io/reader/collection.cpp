// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/file_format.h"
#include "host/io/reader/formats.h"
#include "host/io/reader/piece_reader.h"
#include "host/io/reader/read_failure.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QXmlStreamReader>

#include <vtkCompositeDataSet.h>
#include <vtkInformation.h>
#include <vtkMultiBlockDataSet.h>

#include <map>
#include <optional>

namespace corvala::host::io::reader {

/// Files of VTK's formats that belong together: listed in a .pvd file, which VTK has no reader for:
/// lists files of VTK's formats by time, group and part. The tree of a time has a block per part,
/// in a block per group where groups are named.
class Collection : public DataFile
{
public:
    explicit Collection(const QString& path);
    Collection(const QString& path, const std::map<double, QString>& files);

    QString path() const override { return m_path; }
    QString name() const override { return m_name; }
    std::vector<double> times() const override { return m_times; }
    std::vector<ReadMessage> notes() const override { return m_reader.notes; }
    vtkSmartPointer<vtkDataObject> read(std::size_t timeIndex,
                                        const ProgressCall& progress) override;

private:
    struct Entry
    {
        QString group;
        QString part;
        QString file;
    };

    void parseSeries(const QByteArray& text);
    void parseXml(QFile& file);
    void parse(QXmlStreamReader& xml);
    void addEntry(const QXmlStreamReader& xml);
    std::string blockName(const Entry& entry, std::map<QString, int>& uses) const;

    QString m_path;
    QString m_name;
    std::map<double, std::vector<Entry>> m_entries;
    std::vector<double> m_times;
    bool m_hasSeveralParts = false; ///< at some time
    PieceReader m_reader;
    unsigned int m_partsRead = 0; ///< at all times
    std::optional<ReadFailure> m_failure; ///< the first one
};

Collection::Collection(const QString& path)
    : m_path(path)
    , m_name(nameWithoutEnding(path))
    , m_reader(path)
{
    QFile file(path);
    file.open(QIODevice::ReadOnly);
    if (file.peek(1) == "{")
        parseSeries(file.readAll());
    else
        parseXml(file);
    if (m_entries.empty())
        throw ReadFailure(path,
                          QT_TRANSLATE_NOOP("ReadMessage", "it is no collection that lists files"));
    for (const auto& [time, entries] : m_entries) {
        m_times.push_back(time);
        m_hasSeveralParts = m_hasSeveralParts || entries.size() > 1;
    }
}

Collection::Collection(const QString& path, const std::map<double, QString>& files)
    : m_path(files.begin()->second)
    , m_name(nameWithoutEnding(path))
    , m_reader(path)
{
    while (m_name.endsWith(QLatin1Char('_')) || m_name.endsWith(QLatin1Char('-'))
           || m_name.endsWith(QLatin1Char('.')))
        m_name.chop(1);
    if (m_name.isEmpty())
        m_name = nameWithoutEnding(m_path);
    for (const auto& [time, file] : files) {
        m_entries[time].push_back({{}, {}, file});
        m_times.push_back(time);
    }
}

void Collection::parseSeries(const QByteArray& text)
{
    QJsonParseError error {};
    const QJsonObject series = QJsonDocument::fromJson(text, &error).object();
    if (error.error != QJsonParseError::NoError)
        throw ReadFailure(m_path, QT_TRANSLATE_NOOP("ReadMessage", "byte %1: %2"),
                          {QString::number(error.offset), error.errorString()});
    for (const QJsonValue& each : series.value(QLatin1String("files")).toArray()) {
        const QJsonValue time = each[QLatin1String("time")];
        const QString name = each[QLatin1String("name")].toString();
        if (name.isEmpty() || !time.isDouble())
            throw ReadFailure(
                m_path,
                QT_TRANSLATE_NOOP("ReadMessage", "a file in the list has no name, or no time"));
        m_entries[time.toDouble()].push_back(
            {{}, {}, QFileInfo(m_path).dir().absoluteFilePath(name)});
    }
}

void Collection::parseXml(QFile& file)
{
    QXmlStreamReader xml(&file);
    parse(xml);
    const bool isOpen = xml.error() == QXmlStreamReader::PrematureEndOfDocumentError;
    if (xml.hasError() && (!isOpen || m_entries.empty()))
        throw ReadFailure(m_path, QT_TRANSLATE_NOOP("ReadMessage", "line %1: %2"),
                          {QString::number(xml.lineNumber()), xml.errorString()});
    if (isOpen)
        m_reader.notes.emplace_back(
            QT_TRANSLATE_NOOP("ReadMessage", "%1 has no end; the files that it lists were read."),
            std::initializer_list<QString> {QFileInfo(m_path).fileName()});
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
    if (!m_hasSeveralParts)
        return (entry.group.isEmpty() ? m_name : entry.group).toStdString();
    bool isNumber = false;
    int number = entry.part.toInt(&isNumber) + 1;
    number += uses[entry.group + QLatin1Char('\n') + entry.part]++;
    const QString part =
        isNumber || entry.part.isEmpty() ? QStringLiteral("Piece %1").arg(number) : entry.part;
    return (entry.group.isEmpty() ? part : entry.group + QLatin1Char('/') + part).toStdString();
}

vtkSmartPointer<vtkDataObject> Collection::read(std::size_t timeIndex, const ProgressCall& progress)
{
    const std::vector<Entry>& entries = m_entries.at(m_times[timeIndex]);
    const auto count = static_cast<double>(entries.size());
    auto result = vtkSmartPointer<vtkMultiBlockDataSet>::New();
    std::map<QString, int> uses;
    if (m_times.size() > 1)
        m_reader.time = m_times[timeIndex];
    unsigned int position = 0;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const std::string name = blockName(entries[i], uses);
        try {
            result->SetBlock(position, m_reader.read(entries[i].file, [&](double part) {
                progress((static_cast<double>(i) + part) / count);
            }));
            result->GetMetaData(position)->Set(vtkCompositeDataSet::NAME(), name.c_str());
            ++position;
        } catch (const ReadFailure& failure) {
            m_reader.leaveOut(failure);
            m_failure = m_failure ? m_failure : failure;
        }
    }
    m_partsRead += position;
    if (m_partsRead == 0 && timeIndex + 1 == m_times.size() && m_failure)
        throw ReadFailure(*m_failure);
    return result;
}

std::unique_ptr<DataFile> openSeries(const QString& path, const std::map<double, QString>& files)
{
    return std::make_unique<Collection>(path, files);
}

std::unique_ptr<DataFile> openCollection(const QString& path)
{
    return std::make_unique<Collection>(path);
}

} // namespace corvala::host::io::reader
