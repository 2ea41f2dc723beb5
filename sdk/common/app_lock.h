// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/base/enums.h>

namespace corvala::sdk {

/// Holds the application lock while it lives. The lock is recursive and never blocks its own
/// thread; it says nothing about the host being busy.
class AppLock
{
public:
    explicit AppLock(ImplicitMacroRecording_e recording = ImplicitMacroRecording_None);
    ~AppLock();
    AppLock(const AppLock&) = delete;
    AppLock& operator=(const AppLock&) = delete;
};

} // namespace corvala::sdk
