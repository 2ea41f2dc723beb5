// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/style/schema.h"
#include "host/style/style_input.h"
#include "vocabulary/enums.h"

#include <QString>

namespace corvala::host {

/// "1 field map", "3 line maps".
QString mapCountText(Scope scope, std::uint64_t count);

/// "Mesh type = Overlay".
QString assignmentText(const Attribute& attribute, const StyleInput& value);

/// "Mesh type = Overlay (3 field maps)".
QString assignmentText(const Attribute& attribute, const StyleInput& value, std::uint64_t maps);

/// "Activate 3 field maps", "Deactivate wing", "Show only 2 field maps"; `maps` says which or how
/// many.
QString activationText(AssignOp_e op, const QString& maps);

/// A text of the undo list.
QString undoText(const char* text);

} // namespace corvala::host
