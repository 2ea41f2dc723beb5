// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/reader/text/text_sample.h"

namespace corvala::host::io::reader {

/// How the fields of a table are written.
struct DetectedFields
{
    TextDialect dialect; ///< comment, separator, decimal sign, quote and dates
    std::size_t columns = 0; ///< fields of most rows
    double score = 0.0; ///< from 0: how much it looks like a table of numbers
    bool isSure = false; ///< no other way of reading it comes near
};

/// Tries all ways of writing fields that `wanted` leaves open. A way is the better the more rows
/// have the same number of fields, and the more fields are numbers or times.
DetectedFields detectFields(const TextSample& sample, const TextDialect& wanted);

} // namespace corvala::host::io::reader
