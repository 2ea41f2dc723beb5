// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/operations/operation.h"
#include "host/style/schema.h"
#include "vocabulary/style.h"

#include <QString>

#include <optional>
#include <utility>

namespace corvala::plot {

/// Something in a picture at which its user would wonder, and what mends it.
struct SceneNote
{
    QString text; ///< one sentence that names the thing and the place
    style::Key about; ///< a value of the style that it comes from
    QString caption = {}; ///< of what mends it; empty without
    std::optional<host::SetStyle> mending = {};
    int index = -1; ///< of an indexed value, from 1
};

/// Gives the frame a value; `index`, from 1, is that of one of several.
inline host::SetStyle frameValue(style::Key key, host::StyleInput value, int index = -1)
{
    return {host::pathOf(key), std::move(value), std::nullopt, index};
}

} // namespace corvala::plot
