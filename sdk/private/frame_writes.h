// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/document.h"

namespace corvala::sdk {

/// Writes a value of the active frame (`index` is that of an indexed group, or -1).
inline StyleWriteResult_e writeFrameValue(style::Key key, double value, CvlInt64 index = -1)
{
    return host::Document::instance()
        .execute(host::SetStyle {host::pathOf(key), value, {}, index})
        .result;
}

/// Reads an integer value of the active frame; both must exist.
inline std::int32_t readFrameValue(style::Key key, CvlInt64 index = -1)
{
    const host::Document& document = host::Document::instance();
    return std::get<std::int32_t>(document.read(document.activeFrameId(), key, 0, index).value());
}

} // namespace corvala::sdk
