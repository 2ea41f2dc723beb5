// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QString>

namespace corvala::tests {

/// Whether rows, selection, headers and scroll bars of the dialog's table fit the document and each
/// other. Empty, or the first difference.
QString tableDifference();

} // namespace corvala::tests
