// SPDX-License-Identifier: BSD-3-Clause
#pragma once

namespace corvala::dialogs::common {

/// A dialog that the host's commands can show and close.
class DialogInterface
{
public:
    virtual ~DialogInterface();

    /// Shows the dialog, or brings it to the front when it is open; returns at once.
    virtual void launch() = 0;

    /// Closes the dialog without destroying it.
    virtual void drop() = 0;
};

} // namespace corvala::dialogs::common
