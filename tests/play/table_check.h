// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "play/dialog_driver.h"

namespace corvala::tests {

/// Whether the table of the dialog shows what the document holds: rows, selection, headers, scroll
/// bars, and every cell in view against the style tree. Empty, or the first difference.
QString tableDifference(const play::DialogDriver& dialog);

} // namespace corvala::tests
