// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertymanager/boolean_property_dependent_relevance.h"

namespace corvala::propertymanager {

BooleanPropertyDependentRelevance::BooleanPropertyDependentRelevance(
    const property::Property<bool>& property)
    : PropertyDependentRelevance<bool>(property, true)
{
}

BooleanPropertyDependentRelevance::~BooleanPropertyDependentRelevance() = default;

} // namespace corvala::propertymanager
