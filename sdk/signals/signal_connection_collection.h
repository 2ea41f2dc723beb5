// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <boost/signals2/connection.hpp>
#include <boost/signals2/shared_connection_block.hpp>

#include <vector>

/// The library is called "signals"; a namespace cannot be, where Qt's keyword of that name is on.
namespace corvala::signaling {

/// Connections that are blocked together and end with the collection.
class SignalConnectionCollection
{
public:
    SignalConnectionCollection() = default;
    SignalConnectionCollection(const SignalConnectionCollection&) = delete;
    SignalConnectionCollection& operator=(const SignalConnectionCollection&) = delete;
    ~SignalConnectionCollection();

    /// A connection added while the collection is blocked is blocked, too.
    void add(const boost::signals2::connection& connection);

    /// Being blocked is a state: however often block was called, one unblock ends it.
    void block();
    void unblock();
    bool isBlocked() const { return m_isBlocked; }

    void disconnectAll();

private:
    std::vector<boost::signals2::connection> m_connections;
    std::vector<boost::signals2::shared_connection_block> m_blocks;
    bool m_isBlocked = false;
};

} // namespace corvala::signaling
