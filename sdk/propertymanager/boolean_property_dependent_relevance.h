// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/property/property_dependent_relevance.h>

namespace corvala::propertymanager {

/// Relevant while a property is true. The property must outlive it.
class BooleanPropertyDependentRelevance : public property::PropertyDependentRelevance<bool>
{
public:
    explicit BooleanPropertyDependentRelevance(const property::Property<bool>& property);
    ~BooleanPropertyDependentRelevance() override;
};

} // namespace corvala::propertymanager
