// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <cstdint>

namespace corvala::host::io::reader {

/// Limits this process before it meets a file: address space, no core files, an end with its
/// parent but not by its terminal, and first to go when memory runs out. Zero bytes stands for
/// three quarters of the machine's memory, at least 2 GiB. Returns the limit in bytes.
std::int64_t limitResources(std::int64_t memoryBytes);

/// The limit of the address space of this process in bytes.
std::int64_t memoryLimit();

} // namespace corvala::host::io::reader
