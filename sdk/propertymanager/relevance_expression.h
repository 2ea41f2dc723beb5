// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/property/relevance_interface.h>

#include <boost/shared_ptr.hpp>

namespace corvala::propertymanager {

/// A relevance that can be joined with others by ||, && and !. Copies share what they stand for,
/// and keep it alive.
class RelevanceExpression
{
public:
    using Relevance = boost::shared_ptr<property::RelevanceInterface const>;

    /// `relevance` must not be null.
    RelevanceExpression(Relevance relevance);

    bool isRelevant() const { return m_relevance->isRelevant(); }
    const Relevance& relevance() const { return m_relevance; }
    operator Relevance() const { return m_relevance; }

private:
    Relevance m_relevance;
};

RelevanceExpression operator||(const RelevanceExpression& left, const RelevanceExpression& right);
RelevanceExpression operator&&(const RelevanceExpression& left, const RelevanceExpression& right);
RelevanceExpression operator!(const RelevanceExpression& operand);

} // namespace corvala::propertymanager
