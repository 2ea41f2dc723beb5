// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertymanager/relevance_expression.h"

#include <sdk/propertymanager/inverting_relevance.h>

#include <boost/make_shared.hpp>
#include <boost/signals2/signal.hpp>

namespace corvala::propertymanager {

namespace {

using Relevance = RelevanceExpression::Relevance;

/// Two relevances joined by "or", or by "and".
class JoinedRelevance : public property::RelevanceInterface
{
public:
    enum class Operation { Or, And };

    JoinedRelevance(Relevance left, Operation operation, Relevance right)
        : m_left(std::move(left))
        , m_operation(operation)
        , m_right(std::move(right))
        , m_leftChanged(m_left->connectChanged([this] { m_changed(); }))
        , m_rightChanged(m_right->connectChanged([this] { m_changed(); }))
    {
    }

    bool isRelevant() const override
    {
        return m_operation == Operation::Or ? m_left->isRelevant() || m_right->isRelevant()
                                            : m_left->isRelevant() && m_right->isRelevant();
    }

    boost::signals2::connection connectChanged(boost::function<void()> slot) const override
    {
        return m_changed.connect(std::move(slot));
    }

private:
    mutable boost::signals2::signal<void()> m_changed;
    Relevance m_left;
    Operation m_operation;
    Relevance m_right;
    boost::signals2::scoped_connection m_leftChanged;
    boost::signals2::scoped_connection m_rightChanged;
};

} // namespace

static RelevanceExpression join(const RelevanceExpression& left,
                                JoinedRelevance::Operation operation,
                                const RelevanceExpression& right)
{
    return Relevance(
        boost::make_shared<JoinedRelevance>(left.relevance(), operation, right.relevance()));
}

RelevanceExpression::RelevanceExpression(Relevance relevance)
    : m_relevance(std::move(relevance))
{
}

RelevanceExpression operator||(const RelevanceExpression& left, const RelevanceExpression& right)
{
    return join(left, JoinedRelevance::Operation::Or, right);
}

RelevanceExpression operator&&(const RelevanceExpression& left, const RelevanceExpression& right)
{
    return join(left, JoinedRelevance::Operation::And, right);
}

RelevanceExpression operator!(const RelevanceExpression& operand)
{
    return Relevance(boost::make_shared<InvertingRelevance>(operand.relevance()));
}

} // namespace corvala::propertymanager
