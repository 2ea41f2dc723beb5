// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/property/property.h"
#include "sdk/property/relevance_interface.h"

namespace corvala::property {

RelevanceInterface::~RelevanceInterface() = default;

PropertyAbstract::~PropertyAbstract() = default;

} // namespace corvala::property
