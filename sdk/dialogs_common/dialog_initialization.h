// SPDX-License-Identifier: BSD-3-Clause
#pragma once

namespace corvala::dialogs::common {

/// What a dialog does first when it is asked for.
enum DialogInitialization_e : int {
    DialogInitialization_None = 0,
    DialogInitialization_SelectPickedObjects = 1
};

} // namespace corvala::dialogs::common
