// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/style/number_set.h"
#include "sdk/base/enums.h"

#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace corvala::host {

/// A value on its way into the style tree.
using StyleInput = std::variant<double, bool, std::string, NumberSet>;

/// How a set-valued leaf takes its value.
enum class AssignOp : int { Add = 1, Remove = 2, None = 255 };

/// One request to write a style value, addressed as callers address it.
struct StyleWrite
{
    std::vector<std::string> path;
    const NumberSet* objects =
        nullptr; ///< maps to write; null for a value of the frame or document
    std::int64_t offset1 = -1;
    std::int64_t offset2 = -1;
    int op = static_cast<int>(AssignOp::None);
    StyleInput value;
    /// False for a value of the frame that the program fills in by itself, and would fill in again
    /// as soon as a user took it back: such a write is no undo step.
    bool undoable = true;
};

/// What became of a write; kept for tests and diagnosis.
struct StyleWriteRecord
{
    std::vector<std::string> path;
    NumberSet objects;
    std::int64_t offset1 = -1;
    std::int64_t offset2 = -1;
    int op = 0;
    StyleInput value;
    StyleWriteResult_e result = StyleWrite_Ok;
};

} // namespace corvala::host
