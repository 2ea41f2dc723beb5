// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertymanager/inverting_relevance.h"

namespace corvala::propertymanager {

InvertingRelevance::InvertingRelevance(
    boost::shared_ptr<property::RelevanceInterface const> relevance)
    : m_relevance(std::move(relevance))
{
}

bool InvertingRelevance::isRelevant() const
{
    return !m_relevance->isRelevant();
}

boost::signals2::connection InvertingRelevance::connectChanged(boost::function<void()> slot) const
{
    return m_relevance->connectChanged(std::move(slot));
}

} // namespace corvala::propertymanager
