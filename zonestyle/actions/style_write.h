// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/actions/style_target.h"

#include <sdk/uicommon/style_writing.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions {

/// A host accessor for it: StyleValue, CheckedStyleValue.
template<class Accessor>
Accessor accessor(const StyleTarget& target)
{
    const StyleTarget::Path& path = target.path();
    return target.key().isValid() ? Accessor(target.key())
                                  : Accessor(path[0], path[1], path[2], path[3], path[4]);
}

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::actions
