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
    host::StyleWrite request;
    request.path = std::move(path);
    request.offset1 = index;
    request.value = value;
    return host::Document::instance().write(request);
}

/// Reads an integer value of the active frame, which must exist.
inline std::int32_t readFrameValue(const std::vector<std::string>& path, CvlInt64 index = -1)
{
    const host::Schema& schema = host::Schema::instance();
    return host::Document::instance().activeFrame()->values().integer(schema.leaf(path), index);
}

} // namespace corvala::sdk
