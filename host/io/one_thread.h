// SPDX-License-Identifier: BSD-3-Clause
#pragma once

namespace corvala::host::io {

/// VTK runs without threads of its own from now on, in all of this process; before there are any.
/// Its threads look for work for a while after each of many small tasks, and give faces another
/// order each time.
void runVtkInOneThread();

} // namespace corvala::host::io
