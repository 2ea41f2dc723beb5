// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/selective_file.h"

#include "host/io/reader/sound_subset.h"
#include "host/io/reader/vtk_messages.h"

#include <QFileInfo>

#include <vtkMultiBlockDataSet.h>

#include <algorithm>
#include <utility>

namespace corvala::host::io::reader {

SelectiveFile::SelectiveFile(const QString& path, vtkSmartPointer<vtkAlgorithm> reader,
                             PartList parts, std::vector<ReadMessage> notes)
    : AlgorithmFile(path, std::move(reader))
    , m_notes(std::move(notes))
    , m_parts(std::move(parts))
{
    const ReadMessage error = VtkMessages::takeError();
    if (!error.isEmpty())
        throw ReadFailure(path, error);
}

QString SelectiveFile::timeText(std::size_t timeIndex) const
{
    return QString::number(times()[timeIndex], 'g', 10);
}

void SelectiveFile::leaveOut(std::size_t timeIndex, const ReadMessage& error)
{
    if (!m_failure)
        m_failure = ReadFailure(path(), error);
    if (++m_failures >= times().size())
        throw ReadFailure(*m_failure);
    m_notes.emplace_back(QT_TRANSLATE_NOOP("ReadMessage", "Time %1 was left out: %2: %3."),
                         std::initializer_list<QString> {timeText(timeIndex),
                                                         QFileInfo(path()).fileName(),
                                                         error.asArgument()});
    m_tree = vtkSmartPointer<vtkMultiBlockDataSet>::New();
}

void SelectiveFile::note(const std::vector<Fault>& faults, std::size_t timeIndex)
{
    const QString file = QFileInfo(path()).fileName();
    for (const Fault& fault : faults) {
        const QString error = fault.error.asArgument();
        if (times().size() < 2)
            m_notes.emplace_back(QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out: %2: %3."),
                                 std::initializer_list<QString> {fault.part, file, error});
        else
            m_notes.emplace_back(
                QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out at time %4: %2: %3."),
                std::initializer_list<QString> {fault.part, file, error, timeText(timeIndex)});
    }
}

/// The zones come before all other parts.
void SelectiveFile::readSound(const std::vector<FilePart>& parts, std::size_t zoneCount,
                              std::size_t timeIndex)
{
    std::vector<Fault> faults;
    const auto addFault = [&](std::size_t part, const ReadFailure& failure) {
        faults.push_back({parts[part].name, failure.message});
    };
    const auto readParts = [&](const Parts& chosen) {
        for (const FilePart& part : parts)
            part.select(false);
        for (const std::size_t part : chosen)
            parts[part].select(true);
        m_tree = AlgorithmFile::read(timeIndex, [](double) {});
        const ReadMessage error = VtkMessages::takeError();
        if (!error.isEmpty())
            throw ReadFailure(path(), error);
    };
    Parts sound;
    readParts(sound);
    addSound(sound, 0, zoneCount, readParts, addFault);
    if (sound.empty() && zoneCount > 0)
        throw ReadFailure(path(), faults.front().error);
    addSound(sound, zoneCount, parts.size(), readParts, addFault);
    readParts(sound);
    note(faults, timeIndex);
}

vtkSmartPointer<vtkDataObject> SelectiveFile::read(std::size_t timeIndex,
                                                   const ProgressCall& progress)
{
    m_tree = AlgorithmFile::read(timeIndex, progress);
    if (VtkMessages::takeError().isEmpty())
        return std::exchange(m_tree, nullptr);
    std::vector<FilePart> parts = m_parts();
    const auto zones = std::stable_partition(parts.begin(), parts.end(),
                                             [](const FilePart& part) { return part.isZone; });
    try {
        readSound(parts, static_cast<std::size_t>(zones - parts.begin()), timeIndex);
    } catch (const ReadFailure& failure) {
        leaveOut(timeIndex, failure.message);
    }
    for (const FilePart& part : parts)
        part.select(true);
    return std::exchange(m_tree, nullptr);
}

} // namespace corvala::host::io::reader
