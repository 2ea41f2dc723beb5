// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace corvala::host::io::reader {

/// The size of a file whose own header is cut off or damaged, which no file reaches.
constexpr std::int64_t kUnknownNetcdfSize = INT64_MAX;

/// Bytes that a classic netCDF file must have by its own header; empty for any other file.
std::optional<std::int64_t> netcdfSize(const QString& path);

} // namespace corvala::host::io::reader
