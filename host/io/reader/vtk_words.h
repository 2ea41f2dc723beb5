// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/read_message.h"

namespace corvala::host::io::reader {

/// What an error or a warning of VTK means, in words that can be translated; VTK's own ones where
/// nothing better is known.
ReadMessage meaningOf(const QString& vtkMessage);

} // namespace corvala::host::io::reader
