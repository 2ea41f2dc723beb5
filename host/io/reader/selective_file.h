// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/algorithm_file.h"
#include "host/io/reader/read_failure.h"

#include <functional>
#include <optional>
#include <vector>

namespace corvala::host::io::reader {

/// A part of a file that its reader can be told to leave out.
struct FilePart
{
    QString name;
    bool isZone; ///< else an array of values
    std::function<void(bool)> select;
};

/// A file whose reader can leave out parts. Where reading fails, the parts by which it does are
/// left out with a note; a time at which nothing can be read is left out when others can be read.
class SelectiveFile : public AlgorithmFile
{
public:
    /// What the reader can leave out at the time that it has come to.
    using PartList = std::function<std::vector<FilePart>()>;

    /// With what was noted before.
    SelectiveFile(const QString& path, vtkSmartPointer<vtkAlgorithm> reader, PartList parts,
                  std::vector<ReadMessage> notes);

    vtkSmartPointer<vtkDataObject> read(std::size_t timeIndex,
                                        const ProgressCall& progress) override;
    std::vector<ReadMessage> notes() const override { return m_notes; }

protected:
    std::vector<ReadMessage> m_notes;

private:
    struct Fault
    {
        QString part;
        ReadMessage error;
    };

    void readSound(const std::vector<FilePart>& parts, std::size_t zoneCount,
                   std::size_t timeIndex);
    void leaveOut(std::size_t timeIndex, const ReadMessage& error);
    void note(const std::vector<Fault>& faults, std::size_t timeIndex);
    QString timeText(std::size_t timeIndex) const;

    PartList m_parts;
    vtkSmartPointer<vtkDataObject> m_tree; ///< that was read last
    std::size_t m_failures = 0; ///< times that were left out
    std::optional<ReadFailure> m_failure; ///< the first one
};

} // namespace corvala::host::io::reader
