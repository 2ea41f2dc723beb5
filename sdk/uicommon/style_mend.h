// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/cvl.h>
#include <vocabulary/undo_kinds.h>

namespace corvala::sdk::ui {

/// What is written while it lives puts right what nobody could have meant, and is no undo step of
/// its own.
class StyleMend
{
public:
    StyleMend() { CvlUtilUndoStateBegin(kUndoMend); }
    ~StyleMend() { CvlUtilUndoStateEnd(0, 1); }
    StyleMend(const StyleMend&) = delete;
    StyleMend& operator=(const StyleMend&) = delete;
};

} // namespace corvala::sdk::ui
