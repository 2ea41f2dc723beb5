// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/document.h"

#include <string>
#include <vector>

namespace corvala::sdk {

/// Writes a value of the active frame (`index` is that of an indexed group, or -1).
inline StyleWriteResult_e writeFrameValue(std::vector<std::string> path, double value,
                                          CvlInt64 index = -1)
{
    return host::Document::instance()
        .execute(host::SetStyle {std::move(path), value, {}, index})
        .result;
}

/// Reads an integer value of the active frame; both must exist.
inline std::int32_t readFrameValue(const std::vector<std::string>& path, CvlInt64 index = -1)
{
    return std::get<std::int32_t>(host::Document::instance().read(path, 0, index).value());
}

} // namespace corvala::sdk
