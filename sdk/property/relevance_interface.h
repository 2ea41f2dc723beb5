// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <boost/function.hpp>
#include <boost/signals2/connection.hpp>

namespace corvala::property {

/// Tells whether a command or control makes sense at the moment.
class RelevanceInterface
{
public:
    RelevanceInterface() = default;
    RelevanceInterface(const RelevanceInterface&) = delete;
    RelevanceInterface& operator=(const RelevanceInterface&) = delete;
    virtual ~RelevanceInterface();

    /// Found out when asked; nothing is remembered.
    virtual bool isRelevant() const = 0;

    /// `slot` runs whenever the answer may have changed, until the connection is cut.
    virtual boost::signals2::connection connectChanged(boost::function<void()> slot) const = 0;
};

} // namespace corvala::property
