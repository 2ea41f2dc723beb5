// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/enums.h>

#include <array>

namespace corvala::sdk::ui::dialogs::zonestyle::intern {

/// One tab page of the dialog.
struct TabDescriptor
{
    const char* page; ///< object name
    const char* layout; ///< object name of its grid layout
    const char* text; ///< English, in the translation context "ZoneStyle"
    const char* helpReference;
};

/// In the order of the form. The line tabs are in the order of MappingStyleTab_e.
extern const std::array<TabDescriptor, 10> kFieldTabs;
extern const std::array<TabDescriptor, 7> kLineTabs;

} // namespace corvala::sdk::ui::dialogs::zonestyle::intern
