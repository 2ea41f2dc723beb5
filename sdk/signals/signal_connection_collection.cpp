// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/signals/signal_connection_collection.h"

namespace corvala::signaling {

SignalConnectionCollection::~SignalConnectionCollection()
{
    disconnectAll();
}

void SignalConnectionCollection::add(const boost::signals2::connection& connection)
{
    m_connections.push_back(connection);
    if (m_isBlocked)
        m_blocks.emplace_back(connection);
}

void SignalConnectionCollection::block()
{
    if (m_isBlocked)
        return;
    m_isBlocked = true;
    for (const auto& connection : m_connections)
        m_blocks.emplace_back(connection);
}

void SignalConnectionCollection::unblock()
{
    m_blocks.clear();
    m_isBlocked = false;
}

void SignalConnectionCollection::disconnectAll()
{
    m_blocks.clear();
    for (const auto& connection : m_connections)
        connection.disconnect();
    m_connections.clear();
}

} // namespace corvala::signaling
