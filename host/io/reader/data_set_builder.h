// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_protocol.h"
#include "host/io/reader/block_tree.h"
#include "host/io/reader/data_file.h"
#include "host/io/reader/enclosure.h"
#include "host/io/reader/read_failure.h"
#include "host/io/reader/variable_list.h"
#include "host/io/reader/zone_writer.h"

#include <QSet>
#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

#include <vtkBoundingBox.h>

namespace corvala::host::io::reader {

class Channel;

/// Makes one data set of files: writes their blocks as zones and collects what is known of them.
class DataSetBuilder
{
public:
    /// A zone whose coordinates would not fit `memoryBytes` is refused: an image can claim any
    /// number of points in a few bytes.
    DataSetBuilder(const QString& folder, Channel& channel, std::int64_t memoryBytes);

    /// Reads all times of all files. Throws ReadFailure.
    DataSetIndex build(const std::vector<std::unique_ptr<DataFile>>& files);

private:
    /// A leaf block of a file, at all its times.
    struct Block
    {
        std::vector<std::string> names; ///< from the root of its file down
        bool isTransient;
        std::vector<ZoneInfo> zones; ///< in the order of the times
    };
    /// The names of a block, and which of the blocks of these names it is.
    using BlockKey = std::pair<std::vector<std::string>, int>;

    void readFile(DataFile& file, const std::string& fileName);
    void readTime(DataFile& file, const std::vector<double>& times, std::size_t timeIndex);
    /// False for a zone that would mislead, which is noted.
    bool isUsable(const DataFile& file, const LeafBlock& leaf);
    Block& blockAt(const std::vector<std::string>& names, int use, bool isTransient);
    void addLeaf(Block& block, vtkDataSet* data, double time);
    void nameZones(std::size_t firstBlock, const std::string& fileName);
    std::vector<std::size_t> timesInOrder(const DataFile& file, const std::vector<double>& times);
    void noteDialect(const DataFile& file);
    void noteWarnings(const DataFile& file);
    void noteOmissions();
    void numberZones();

    Channel& m_channel;
    std::int64_t m_mostPoints;
    ZoneWriter m_writer;
    VariableList m_variables;
    DataSetIndex m_index;
    std::vector<Block> m_blocks; ///< of all files, as they are met
    std::map<BlockKey, std::size_t> m_blockOfKey; ///< of the file that is being read
    vtkBoundingBox m_bounds;
    Enclosure m_enclosure;
    bool m_hasCoordinates = false; ///< in some file
    int m_otherDialects = 0; ///< files whose dialect is another one than that of the first
    std::optional<ReadFailure> m_fault; ///< of the first zone of the file that is left out
    QSet<QString> m_droppedArrays;
    std::set<QString> m_warnings; ///< with the names of the files
    std::size_t m_fileNumber = 0;
    std::size_t m_fileCount = 1;
};

} // namespace corvala::host::io::reader
