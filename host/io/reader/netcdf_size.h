// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <algorithm>
#include <cstdint>
#include <optional>

namespace corvala::host::io::reader {

/// How long a classic netCDF file must be by its own header. Arrays are fixed, or have a part in
/// each of the records that follow the fixed ones.
struct NetcdfSize
{
    bool isSound = true; ///< false where the header is cut off or damaged
    std::int64_t fixedEnd = 0; ///< of arrays without records
    std::int64_t records = 0;
    std::int64_t recordBytes = 0;
    std::int64_t recordsEnd = 0; ///< of the last record; 0 without records

    std::int64_t bytes() const { return std::max(fixedEnd, recordsEnd); }
    /// A file that is being written may have a part of a record, or whole ones, that its header
    /// does not count. What is longer has something in it twice, say.
    bool mayHave(std::int64_t bytes) const;
    /// The records that are whole in a file of this size; 0 where fixed arrays are not.
    std::int64_t recordsIn(std::int64_t bytes) const;
};

/// Empty for any other file.
std::optional<NetcdfSize> netcdfSize(const QString& path);

} // namespace corvala::host::io::reader
