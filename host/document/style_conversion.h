// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/frame.h"
#include "host/style/schema.h"
#include "host/style/style_input.h"
#include "host/style/value_list.h"

namespace corvala::host {

/// How many variables and zones there are to be named.
struct NamedNumbers
{
    std::int64_t variables = 0;
    std::int64_t zones = 0;
};

/// Converts a value for the attribute and checks its range; variable and zone numbers are limited
/// by what there is. StyleWrite_Ok, StyleWrite_WrongType or
/// StyleWrite_OutOfRange; `result` is set on success only.
StyleWriteResult_e convertValue(const Attribute& attribute, const StyleInput& input,
                                const NamedNumbers& limits, ValueList::Value& result);
/// The same, limited by the frame's data set; no variables and zones without a frame.
StyleWriteResult_e convertValue(const Attribute& attribute, const StyleInput& input,
                                const Frame* frame, ValueList::Value& result);

} // namespace corvala::host
