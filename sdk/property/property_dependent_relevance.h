// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/property/property.h>
#include <sdk/property/relevance_interface.h>

#include <utility>

namespace corvala::property {

/// Relevant while a property has a given value. The property must outlive it.
template<class T>
class PropertyDependentRelevance : public RelevanceInterface
{
public:
    PropertyDependentRelevance(const Property<T>& property, T relevantValue)
        : m_property(property)
        , m_relevantValue(std::move(relevantValue))
    {
    }

    bool isRelevant() const override { return m_property.get() == m_relevantValue; }

    boost::signals2::connection connectChanged(boost::function<void()> slot) const override
    {
        return m_property.connectChanged(std::move(slot));
    }

private:
    const Property<T>& m_property;
    T m_relevantValue;
};

} // namespace corvala::property
