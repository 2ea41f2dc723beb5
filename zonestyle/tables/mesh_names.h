// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "zonestyle/tables/choice_names.h"

#include <sdk/base/enums.h>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables {

inline constexpr Choice kMeshTypes[] = {
    {MeshType_WireFrame, QT_TRANSLATE_NOOP("Choice", "Wire frame")},
    {MeshType_Overlay, QT_TRANSLATE_NOOP("Choice", "Overlay")},
    {MeshType_HiddenLine, QT_TRANSLATE_NOOP("Choice", "Hidden line")},
};

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::tables
