// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/exodus_run.h"

#include "host/io/reader/formats.h"
#include "host/io/reader/read_failure.h"

#include <QFileInfo>

#include <vtkCompositeDataSet.h>
#include <vtkInformation.h>
#include <vtkMultiBlockDataSet.h>

#include <algorithm>

namespace corvala::host::io::reader {

/// Files that are read as one at each time.
struct ExodusStage
{
    struct Piece
    {
        std::string name;
        std::unique_ptr<DataFile> file;
        std::vector<double> times;
    };
    std::vector<Piece> pieces; ///< those that could be opened
    std::vector<double> times; ///< that some piece has, ascending
};

class ExodusRun : public DataFile
{
public:
    ExodusRun(const QString& path, std::vector<ExodusStage> stages, std::vector<ReadMessage> notes);

    QString path() const override { return m_path; }
    std::vector<double> times() const override;
    vtkSmartPointer<vtkDataObject> read(std::size_t timeIndex,
                                        const ProgressCall& progress) override;
    std::vector<ReadMessage> notes() const override;

private:
    struct Step
    {
        std::size_t stage;
        double time;
    };

    vtkSmartPointer<vtkDataObject> readPiece(ExodusStage::Piece& piece, double time,
                                             const ProgressCall& progress);

    QString m_path;
    std::vector<ExodusStage> m_stages;
    std::vector<Step> m_steps; ///< empty for steady data
    std::vector<ReadMessage> m_notes;
};

/// A run that went on from an earlier time than it had come to has other values from there on.
ExodusRun::ExodusRun(const QString& path, std::vector<ExodusStage> stages,
                     std::vector<ReadMessage> notes)
    : m_path(path)
    , m_stages(std::move(stages))
    , m_notes(std::move(notes))
{
    for (std::size_t i = 0; i < m_stages.size(); ++i) {
        const std::vector<double>& times = m_stages[i].times;
        while (!times.empty() && !m_steps.empty() && m_steps.back().time >= times.front())
            m_steps.pop_back();
        for (const double time : times)
            m_steps.push_back({i, time});
    }
}

std::vector<double> ExodusRun::times() const
{
    std::vector<double> result;
    for (const Step& step : m_steps)
        result.push_back(step.time);
    return result;
}

vtkSmartPointer<vtkDataObject> ExodusRun::readPiece(ExodusStage::Piece& piece, double time,
                                                    const ProgressCall& progress)
{
    const auto there = std::find(piece.times.begin(), piece.times.end(), time);
    if (there != piece.times.end() || piece.times.empty())
        return piece.file->read(
            piece.times.empty() ? 0 : static_cast<std::size_t>(there - piece.times.begin()),
            progress);
    m_notes.emplace_back(QT_TRANSLATE_NOOP("ReadMessage", "%1 does not have time %2."),
                         std::initializer_list<QString> {QFileInfo(piece.file->path()).fileName(),
                                                         QString::number(time, 'g', 10)});
    return vtkSmartPointer<vtkMultiBlockDataSet>::New();
}

vtkSmartPointer<vtkDataObject> ExodusRun::read(std::size_t timeIndex, const ProgressCall& progress)
{
    const Step step = m_steps.empty() ? Step {0, 0.0} : m_steps[timeIndex];
    std::vector<ExodusStage::Piece>& pieces = m_stages[step.stage].pieces;
    if (pieces.size() == 1 && pieces.front().name.empty())
        return readPiece(pieces.front(), step.time, progress);
    auto tree = vtkSmartPointer<vtkMultiBlockDataSet>::New();
    for (unsigned int i = 0; i < pieces.size(); ++i) {
        const auto count = static_cast<double>(pieces.size());
        tree->SetBlock(
            i, readPiece(pieces[i], step.time, [&](double part) { progress((i + part) / count); }));
        tree->GetMetaData(i)->Set(vtkCompositeDataSet::NAME(), pieces[i].name.c_str());
    }
    return tree;
}

std::vector<ReadMessage> ExodusRun::notes() const
{
    std::vector<ReadMessage> result = m_notes;
    for (const ExodusStage& stage : m_stages)
        for (const ExodusStage::Piece& piece : stage.pieces) {
            const std::vector<ReadMessage> notes = piece.file->notes();
            result.insert(result.end(), notes.begin(), notes.end());
        }
    return result;
}

std::unique_ptr<DataFile>
openExodusRun(const QString& path, const std::map<int, QStringList>& stages,
              const std::function<std::unique_ptr<DataFile>(const QString&)>& openPiece)
{
    std::vector<ReadMessage> notes;
    std::vector<ExodusStage> opened;
    std::optional<ReadFailure> failure;
    for (const auto& [number, files] : stages) {
        ExodusStage stage;
        for (const QString& file : files) {
            try {
                requireReadable(file);
                const std::string name = files.size() > 1
                    ? "Piece " + std::to_string(files.indexOf(file) + 1)
                    : std::string();
                auto piece = openPiece(file);
                const std::vector<double> times = piece->times();
                stage.pieces.push_back({name, std::move(piece), times});
                std::vector<double> all;
                std::set_union(stage.times.begin(), stage.times.end(), times.begin(), times.end(),
                               std::back_inserter(all));
                stage.times = all;
            } catch (const ReadFailure& fault) {
                failure = failure ? failure : fault;
                notes.emplace_back(QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out: %2."),
                                   std::initializer_list<QString> {QFileInfo(file).fileName(),
                                                                   fault.message.asArgument()});
            }
        }
        if (!stage.pieces.empty())
            opened.push_back(std::move(stage));
    }
    if (opened.empty())
        throw ReadFailure(*failure);
    return std::make_unique<ExodusRun>(path, std::move(opened), std::move(notes));
}

} // namespace corvala::host::io::reader
