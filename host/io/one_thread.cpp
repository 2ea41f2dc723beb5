// SPDX-License-Identifier: BSD-3-Clause
#include "host/io/one_thread.h"

#include <vtkSMPTools.h>

namespace corvala::host::io {

void runVtkInOneThread()
{
    static const bool isSequential = [] {
        // Whatever could run in threads asks the system for the number of processors each time,
        // unless it has been told: that takes longer than the box round a small zone.
        vtkSMPTools::SetBackend("STDThread");
        vtkSMPTools::Initialize(1);
        return vtkSMPTools::SetBackend("Sequential");
    }();
    static_cast<void>(isSequential);
}

} // namespace corvala::host::io
