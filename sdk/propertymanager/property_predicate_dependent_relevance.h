// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/property/property.h>
#include <sdk/property/relevance_interface.h>

#include <vector>

namespace corvala::propertymanager {

/// Relevant while a predicate over some properties holds. The properties must outlive it.
class PropertyPredicateDependentRelevance : public property::RelevanceInterface
{
public:
    /// `properties` are those whose change may change the predicate's answer.
    PropertyPredicateDependentRelevance(std::vector<const property::PropertyAbstract*> properties,
                                        boost::function<bool()> predicate);
    bool isRelevant() const override;
    boost::signals2::connection connectChanged(boost::function<void()> slot) const override;

private:
    boost::function<bool()> m_predicate;
    mutable boost::signals2::signal<void()> m_changed;
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace corvala::propertymanager
