// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/cvl.h>
#include <sdk/toolbox/set.h>
#include <vocabulary/style.h>

namespace corvala::sdk::ui {

/// Writes a number or switch of the active frame, for maps or (null) of the frame itself.
StyleWriteResult_e writeStyle(style::Key key, const toolbox::Set* maps, double value);

/// What is written while it lives is one undo step.
class StyleUndoStep
{
public:
    StyleUndoStep() { CvlUtilUndoStateBegin(UndoKind_StyleGroup); }
    ~StyleUndoStep() { CvlUtilUndoStateEnd(0, 1); }
    StyleUndoStep(const StyleUndoStep&) = delete;
    StyleUndoStep& operator=(const StyleUndoStep&) = delete;
};

} // namespace corvala::sdk::ui
