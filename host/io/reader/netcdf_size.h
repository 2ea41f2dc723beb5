// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace corvala::host::io::reader {

/// Bytes that a classic netCDF file must have by its own header; empty for any other file.
std::optional<std::int64_t> netcdfSize(const QString& path);

} // namespace corvala::host::io::reader
