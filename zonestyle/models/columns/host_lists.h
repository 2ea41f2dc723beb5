// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/types.h>

#include <QStringList>

#include <string>

namespace corvala::sdk::ui::dialogs::zonestyle::intern::models {

/// A text that the host handed out, which is given back; empty for null.
QString takeText(char* text);

/// The names of the members of a set, ascending; the set, which may be null, is freed.
QStringList names(CvlSetHandle set, CvlUniqueId frame,
                  std::string (*nameOf)(CvlUniqueId frame, CvlInt64 member));

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern::models
