// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/types.h>

namespace corvala::host_access {

/// Queries and style reads answered so far; lets tests show that a hidden dialog asks nothing.
extern CvlInt64 readCount;

inline void countRead()
{
    ++readCount;
}

} // namespace corvala::host_access
