// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/enums.h>

namespace corvala::dialogs::prompt {

/// Sees to it that a vector plot has its variables: asks the user for them unless all that the
/// plot type needs (U, V; with three dimensions W) are assigned in the active frame.
struct VectorVarAssignStrategy
{
    /// True when the variables are assigned (asking nothing, or by the user's choice, which is
    /// written as one undo step); false when the user cancelled, and for a plot without vectors.
    bool operator()(PlotType_e plotType) const;
};

} // namespace corvala::dialogs::prompt
