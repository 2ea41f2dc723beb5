// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertymanager/properties_manager_abstract.h"

namespace corvala::propertymanager {

PropertiesManagerAbstract::~PropertiesManagerAbstract() = default;

boost::shared_ptr<property::RelevanceInterface const> PropertiesManagerAbstract::relevance() const
{
    return {};
}

} // namespace corvala::propertymanager
