// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertymanager/property_predicate_dependent_relevance.h"

namespace corvala::propertymanager {

PropertyPredicateDependentRelevance::PropertyPredicateDependentRelevance(
    std::vector<const property::PropertyAbstract*> properties, boost::function<bool()> predicate)
    : m_predicate(std::move(predicate))
{
    for (const auto* property : properties)
        m_connections.emplace_back(property->connectChanged([this] { m_changed(); }));
}

bool PropertyPredicateDependentRelevance::isRelevant() const
{
    return m_predicate();
}

boost::signals2::connection
PropertyPredicateDependentRelevance::connectChanged(boost::function<void()> slot) const
{
    return m_changed.connect(std::move(slot));
}

} // namespace corvala::propertymanager
