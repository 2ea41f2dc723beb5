// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/common/app_lock.h"

#include "host/document/document.h"

namespace corvala::sdk {

AppLock::AppLock(ImplicitMacroRecording_e)
{
    host::Document::instance().lock();
}

AppLock::~AppLock()
{
    host::Document::instance().unlock();
}

} // namespace corvala::sdk
