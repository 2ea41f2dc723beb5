// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/ensight_case.h"
#include "host/io/reader/ensight_stream.h"

#include <functional>
#include <map>
#include <vector>

namespace corvala::host::io::reader {

/// Finds time steps in the data files of an EnSight case. Several steps in one file follow each
/// other without a word of their length: a step is found by reading those before it, whose ends are
/// remembered.
class EnSightSteps
{
public:
    /// Reads from behind the line that begins the step, or the first lines of a file without
    /// steps, until there are no more keywords. Of a step that is not `wanted` only the end is.
    using Read = std::function<void(EnSightStream& file, bool wanted)>;

    /// Throws ReadFailure.
    void read(const EnSightStep& step, EnSightCoding coding, const Read& read);
    /// After a reading: several times can be in the file.
    bool areIn(const QString& path) const { return m_ends.count(path) > 0; }

private:
    std::map<QString, std::vector<qint64>> m_ends; ///< of the steps of each file that has some
};

} // namespace corvala::host::io::reader
