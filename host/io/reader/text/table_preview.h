// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/io/text_preview.h"

namespace corvala::host::io::reader {

/// The first lines of a table as they would be read. Throws ReadFailure for what is no text.
TextPreview previewOf(const QString& path, const TextDialect& wanted);

} // namespace corvala::host::io::reader
