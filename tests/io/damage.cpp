// SPDX-License-Identifier: BSD-3-Clause
#include "tests/io/damage.h"

#include <QEventLoop>

#include <vtkCellArray.h>
#include <vtkPolyData.h>
#include <vtkUnstructuredGrid.h>

#include <algorithm>

namespace corvala::host::io {

MadeFile textFile(const QByteArray& content)
{
    MadeFile file {content, {0}, {}};
    for (int end = content.indexOf('\n'); end >= 0; end = content.indexOf('\n', end + 1))
        file.sections.push_back(end + 1);
    file.sections.pop_back();
    return file;
}

MadeFile plainFile(const QByteArray& content)
{
    MadeFile file {content, {}, {}};
    constexpr int kSections = 20;
    for (int i = 0; i < kSections; ++i)
        file.sections.push_back(content.size() / kSections * i);
    return file;
}

/// Where the section at this part of the file begins and ends.
static std::pair<int, int> sectionAt(const MadeFile& file, double part)
{
    const auto count = static_cast<double>(file.sections.size());
    const auto i = static_cast<std::size_t>(part * count);
    const int end = i + 1 < file.sections.size() ? file.sections[i + 1] : file.content.size();
    return {file.sections[i], end};
}

std::vector<Damage> damages()
{
    std::vector<Damage> result {
        {"missing", [](const MadeFile&) { return QByteArray(); }},
        {"empty", [](const MadeFile&) { return QByteArray(""); }},
        {"a byte short", [](const MadeFile& file) { return file.content.chopped(1); }},
        {"some bytes short", [](const MadeFile& file) { return file.content.chopped(7); }}};
    const auto add = [&](const char* name, double part, auto change) {
        result.push_back(
            {QStringLiteral("%1 at %2 %").arg(name).arg(100 * part), [=](const MadeFile& file) {
                 const auto [from, end] = sectionAt(file, part);
                 return change(file.content, from, end - from);
             }});
    };
    for (const double part : {0.3, 0.6, 0.9}) {
        add("cut before a section", part, [](auto& all, int from, int) { return all.left(from); });
        add("cut inside a section", part,
            [](auto& all, int from, int size) { return all.left(from + size / 2); });
        add("a section twice", part,
            [](auto& all, int from, int size) { return all.left(from + size) + all.mid(from); });
        add("a section less", part,
            [](auto& all, int from, int size) { return all.left(from) + all.mid(from + size); });
        result.push_back(
            {QStringLiteral("a count altered at %1 %").arg(100 * part), [=](const MadeFile& file) {
                 const auto i =
                     static_cast<std::size_t>(part * static_cast<double>(file.counts.size()));
                 QByteArray changed = file.content;
                 if (i < file.counts.size())
                     changed.replace(file.counts[i].first, file.counts[i].second.size(),
                                     file.counts[i].second);
                 return changed;
             }});
    }
    return result;
}

static QByteArray bytesOf(vtkDataArray& array)
{
    QByteArray bytes;
    for (vtkIdType i = 0; i < array.GetNumberOfValues(); ++i) {
        const int components = array.GetNumberOfComponents();
        const double value = array.GetComponent(i / components, static_cast<int>(i % components));
        bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
    }
    return bytes;
}

static QByteArray cellsOf(vtkDataSet& zone)
{
    if (auto* grid = vtkUnstructuredGrid::SafeDownCast(&zone))
        return grid->GetNumberOfCells() == 0 ? QByteArray()
                                             : bytesOf(*grid->GetCells()->GetConnectivityArray());
    if (auto* surface = vtkPolyData::SafeDownCast(&zone))
        return bytesOf(*surface->GetPolys()->GetConnectivityArray());
    return QByteArray::number(zone.GetNumberOfCells());
}

void Shown::add(const DataSet& data)
{
    QMap<QString, int> uses;
    for (std::int64_t number = 1; number <= data.zoneCount(); ++number) {
        const ZoneInfo& info = data.zone(number);
        QString zone =
            QStringLiteral("%1@%2").arg(QString::fromStdString(info.name)).arg(info.time);
        zone += QStringLiteral("#%1").arg(uses[zone]++);
        m_values[QStringLiteral("|cells|") + zone] = cellsOf(*data.geometry(number));
        for (int n = 1; n <= static_cast<int>(data.variableCount()); ++n) {
            const ZoneValues found = data.values(number, n);
            if (found.array)
                m_values[QStringLiteral("%1|%2 %3|%4")
                             .arg(QString::fromStdString(data.variable(n).array))
                             .arg(data.variable(n).component)
                             .arg(static_cast<int>(found.location))
                             .arg(zone)] = bytesOf(*found.array);
        }
    }
    for (const std::string& note : data.notes)
        notes << QString::fromStdString(note);
}

Shown::Shown(const DataFolder& folder, const QStringList& files)
{
    ReadRequest request;
    for (const QString& file : files)
        request.files << folder.path(file);
    DataReader readers[2];
    std::vector<ReadResult> results;
    QEventLoop loop;
    for (DataReader& reader : readers) {
        QObject::connect(&reader, &DataReader::finished, &loop, [&](const ReadResult& result) {
            results.push_back(result);
            if (results.size() == 2)
                loop.quit();
        });
        reader.start(request);
    }
    loop.exec();
    error = results[0].error;
    if (results[0].data)
        add(*results[0].data);
    const auto first = std::exchange(m_values, {});
    notes.clear();
    if (results[1].data)
        add(*results[1].data);
    m_isTwiceTheSame = first == m_values && error == results[1].error;
}

QString Shown::problemAgainst(const Shown& sound, const QStringList& damagedFiles) const
{
    const QString said = notes.join(QLatin1Char(' ')) + error;
    const auto isNamed = [&](const QString& array) {
        const bool isSaid = array.isEmpty() ? notes.size() > sound.notes.size() || !error.isEmpty()
                                            : said.contains(array);
        return isSaid
            || std::any_of(damagedFiles.begin(), damagedFiles.end(),
                           [&](const QString& file) { return said.contains(file); });
    };
    if (!m_isTwiceTheSame)
        return QStringLiteral("another reading gives other values");
    for (auto value = m_values.begin(); value != m_values.end(); ++value)
        if (!sound.m_values.contains(value.key()) || sound.m_values[value.key()] != value.value())
            return value.key() + QStringLiteral(" is wrong");
    for (const QString& key : sound.m_values.keys())
        if (!m_values.contains(key) && !isNamed(key.section(QLatin1Char('|'), 0, 0)))
            return key + QStringLiteral(" is missing without a word");
    return {};
}

} // namespace corvala::host::io
