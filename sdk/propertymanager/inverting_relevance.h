// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/property/relevance_interface.h>

#include <boost/shared_ptr.hpp>

namespace corvala::propertymanager {

/// The opposite of another relevance.
class InvertingRelevance : public property::RelevanceInterface
{
public:
    /// `relevance` must not be null.
    explicit InvertingRelevance(boost::shared_ptr<property::RelevanceInterface const> relevance);
    bool isRelevant() const override;
    boost::signals2::connection connectChanged(boost::function<void()> slot) const override;

private:
    boost::shared_ptr<property::RelevanceInterface const> m_relevance;
};

} // namespace corvala::propertymanager
