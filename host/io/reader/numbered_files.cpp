// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/numbered_files.h"

#include "host/io/reader/vtk_messages.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <vtkMultiBlockDataSet.h>

#include <map>
#include <set>
#include <utility>

namespace corvala::host::io::reader {

/// What a name says of a file in a series.
struct NumberedName
{
    QString series; ///< the path without the number; empty for a name that has none
    QString name; ///< of the series, to be shown
    double number = 0.0;
};

static NumberedName numberedName(const QString& path)
{
    static const QRegularExpression number(QStringLiteral("^(.*?)([0-9]+)([^0-9]*)$"));
    static const QRegularExpression joint(QStringLiteral("[-_. ]+$"));
    const QFileInfo info(path);
    const auto match = number.match(info.completeBaseName());
    if (!match.hasMatch())
        return {};
    const QString name = match.captured(1).remove(joint) + match.captured(3);
    return {info.path() + QLatin1Char('/') + match.captured(1) + QLatin1Char('*')
                + match.captured(3) + QLatin1Char('.') + info.suffix(),
            name, match.captured(2).toDouble()};
}

/// The places of the files of each series of two or more.
static std::map<QString, std::map<double, std::size_t>> seriesIn(const DataFiles& files)
{
    struct Found
    {
        std::map<double, std::size_t> places; ///< by number
        std::size_t count = 0;
        std::set<double> times;
    };
    std::map<QString, Found> found;
    for (std::size_t i = 0; i < files.size(); ++i) {
        const NumberedName name = numberedName(files[i]->path());
        const std::vector<double> times = files[i]->times();
        if (name.series.isEmpty() || times.size() > 1)
            continue;
        Found& series = found[name.series];
        series.places.emplace(name.number, i);
        series.times.insert(times.begin(), times.end());
        ++series.count;
    }
    std::map<QString, std::map<double, std::size_t>> result;
    for (const auto& [name, series] : found)
        if (series.count > 1 && series.places.size() == series.count && series.times.size() < 2)
            result[name] = series.places;
    return result;
}

/// Files that stand for one time each.
class NumberedFiles : public DataFile
{
public:
    void add(double time, std::unique_ptr<DataFile> file)
    {
        m_times.push_back(time);
        m_files.push_back(std::move(file));
    }

    QString path() const override { return m_files.front()->path(); }
    QString name() const override { return numberedName(path()).name; }
    std::vector<double> times() const override { return m_times; }
    vtkSmartPointer<vtkDataObject> read(std::size_t timeIndex,
                                        const ProgressCall& progress) override;
    std::vector<ReadMessage> notes() const override;
    std::optional<Plot3DLayout> plot3dLayout() const override
    {
        return m_files.front()->plot3dLayout();
    }
    std::int64_t unreadPatches() const override { return m_files.front()->unreadPatches(); }

private:
    std::vector<double> m_times;
    DataFiles m_files;
    std::vector<ReadMessage> m_notes;
    std::size_t m_failures = 0;
};

vtkSmartPointer<vtkDataObject> NumberedFiles::read(std::size_t timeIndex,
                                                   const ProgressCall& progress)
{
    DataFile& file = *m_files[timeIndex];
    try {
        const vtkSmartPointer<vtkDataObject> data = file.read(0, progress);
        const ReadMessage error = VtkMessages::takeError();
        if (!error.isEmpty())
            throw ReadFailure(file.path(), error);
        return data;
    } catch (const ReadFailure& failure) {
        if (++m_failures == m_files.size())
            throw;
        m_notes.emplace_back(QT_TRANSLATE_NOOP("ReadMessage", "Time %1 was left out: %2: %3."),
                             std::initializer_list<QString> {QString::number(m_times[timeIndex]),
                                                             QFileInfo(file.path()).fileName(),
                                                             failure.message.asArgument()});
        return vtkSmartPointer<vtkMultiBlockDataSet>::New();
    }
}

std::vector<ReadMessage> NumberedFiles::notes() const
{
    std::vector<ReadMessage> result = m_notes;
    for (const auto& file : m_files) {
        const std::vector<ReadMessage> notes = file->notes();
        result.insert(result.end(), notes.begin(), notes.end());
    }
    return result;
}

class UnreadableFile : public DataFile
{
public:
    UnreadableFile(const QString& path, const ReadFailure& failure)
        : m_path(path)
        , m_failure(failure)
    {
    }

    QString path() const override { return m_path; }
    std::vector<double> times() const override { return {}; }
    vtkSmartPointer<vtkDataObject> read(std::size_t, const ProgressCall&) override
    {
        throw ReadFailure(m_failure);
    }

private:
    QString m_path;
    ReadFailure m_failure;
};

std::unique_ptr<DataFile> unreadableFile(const QString& path, const ReadFailure& failure)
{
    return std::make_unique<UnreadableFile>(path, failure);
}

std::size_t numberedCount(const DataFiles& files)
{
    std::size_t count = 0;
    for (const auto& [name, places] : seriesIn(files))
        count += places.size();
    return count;
}

DataFiles joinedByNumber(DataFiles files)
{
    const auto series = seriesIn(files);
    DataFiles result;
    for (auto& file : files) {
        if (!file) // which is in a series already
            continue;
        const auto of = series.find(numberedName(file->path()).series);
        if (of == series.end()) {
            result.push_back(std::move(file));
            continue;
        }
        auto joined = std::make_unique<NumberedFiles>();
        for (const auto& [number, place] : of->second)
            joined->add(number, std::move(files[place]));
        result.push_back(std::move(joined));
    }
    return result;
}

} // namespace corvala::host::io::reader
