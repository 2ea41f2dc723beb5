// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "host/style/schema.h"

#include <vector>

namespace corvala::host {

/// Every attribute of the style tree, without identifiers and slots.
std::vector<Attribute> schemaTable();

} // namespace corvala::host
