// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/reader/selective_file.h"

#include "host/io/reader/vtk_messages.h"

#include <QFileInfo>

#include <vtkMultiBlockDataSet.h>

#include <algorithm>
#include <utility>

namespace corvala::host::io::reader {

SelectiveFile::SelectiveFile(const QString& path, vtkSmartPointer<vtkAlgorithm> reader, Parts parts,
                             std::vector<ReadMessage> notes)
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

ReadMessage SelectiveFile::tryReading(std::size_t timeIndex)
{
    m_tree = AlgorithmFile::read(timeIndex, [](double) {});
    return VtkMessages::takeError();
}

/// Of parts that are not selected, selects those with which reading succeeds.
void SelectiveFile::selectSound(const std::vector<FilePart>& parts, const Range& range,
                                std::size_t timeIndex, std::vector<Fault>& faults)
{
    const auto select = [&](bool isOn) {
        for (std::size_t i = range.first; i < range.second; ++i)
            parts[i].select(isOn);
    };
    if (range.first == range.second)
        return;
    select(true);
    const ReadMessage error = tryReading(timeIndex);
    if (error.isEmpty())
        return;
    select(false);
    if (range.second - range.first == 1) {
        faults.push_back({parts[range.first], error});
        return;
    }
    const std::size_t middle = (range.first + range.second) / 2;
    selectSound(parts, {range.first, middle}, timeIndex, faults);
    selectSound(parts, {middle, range.second}, timeIndex, faults);
}

void SelectiveFile::leaveOut(std::size_t timeIndex, const ReadMessage& error)
{
    if (!m_failure)
        m_failure = ReadFailure(path(), error);
    if (++m_failures >= times().size())
        throw ReadFailure(*m_failure);
    m_notes.emplace_back(QT_TRANSLATE_NOOP("ReadMessage", "Time %1 was left out: %2: %3."),
                         std::initializer_list<QString> {
                             timeText(timeIndex), QFileInfo(path()).fileName(), error.toString()});
    m_tree = vtkSmartPointer<vtkMultiBlockDataSet>::New();
}

void SelectiveFile::note(const std::vector<Fault>& faults, std::size_t timeIndex)
{
    const QString file = QFileInfo(path()).fileName();
    for (const Fault& fault : faults) {
        const QString error = fault.error.toString();
        if (times().size() < 2)
            m_notes.emplace_back(QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out: %2: %3."),
                                 std::initializer_list<QString> {fault.part.name, file, error});
        else
            m_notes.emplace_back(
                QT_TRANSLATE_NOOP("ReadMessage", "%1 was left out at time %4: %2: %3."),
                std::initializer_list<QString> {fault.part.name, file, error, timeText(timeIndex)});
    }
}

vtkSmartPointer<vtkDataObject> SelectiveFile::read(std::size_t timeIndex,
                                                   const ProgressCall& progress)
{
    m_tree = AlgorithmFile::read(timeIndex, progress);
    const ReadMessage error = VtkMessages::takeError();
    if (error.isEmpty())
        return std::exchange(m_tree, nullptr);
    std::vector<FilePart> parts = m_parts();
    const auto zones = std::stable_partition(parts.begin(), parts.end(),
                                             [](const FilePart& part) { return part.isZone; });
    const auto firstValues = static_cast<std::size_t>(zones - parts.begin());
    for (const FilePart& part : parts)
        part.select(false);
    std::vector<Fault> faults;
    const ReadMessage remaining = tryReading(timeIndex);
    if (remaining.isEmpty()) {
        selectSound(parts, {0, firstValues}, timeIndex, faults);
        const bool hasZones = faults.size() < firstValues || firstValues == 0;
        if (hasZones)
            selectSound(parts, {firstValues, parts.size()}, timeIndex, faults);
        const ReadMessage last = hasZones ? tryReading(timeIndex) : faults.front().error;
        last.isEmpty() ? note(faults, timeIndex) : leaveOut(timeIndex, last);
    } else {
        leaveOut(timeIndex, remaining);
    }
    for (const FilePart& part : parts)
        part.select(true);
    return std::exchange(m_tree, nullptr);
}

} // namespace corvala::host::io::reader
