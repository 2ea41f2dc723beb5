// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/document/frame.h"
#include "host/style/schema.h"
#include "host/style/style_input.h"
#include "host/style/value_list.h"

namespace corvala::host {

/// Converts a value for the attribute and checks its range; variable and zone numbers are limited
/// by the frame's data set (no limit without a frame). StyleWrite_Ok, StyleWrite_WrongType or
/// StyleWrite_OutOfRange; `result` is set on success only.
StyleWriteResult_e convertValue(const Attribute& attribute, const StyleInput& input,
                                const Frame* frame, ValueList::Value& result);

} // namespace corvala::host
