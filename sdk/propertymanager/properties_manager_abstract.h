// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/property/relevance_interface.h>
#include <sdk/signals/signal_connection_collection.h>

#include <boost/shared_ptr.hpp>

namespace corvala::propertymanager {

/// Base of the objects that hold the state of a form as properties, apart from its widgets.
class PropertiesManagerAbstract
{
public:
    PropertiesManagerAbstract() = default;
    PropertiesManagerAbstract(const PropertiesManagerAbstract&) = delete;
    PropertiesManagerAbstract& operator=(const PropertiesManagerAbstract&) = delete;
    virtual ~PropertiesManagerAbstract();

    /// Whether what the form does would make a difference now. Null: always.
    virtual boost::shared_ptr<property::RelevanceInterface const> relevance() const;

protected:
    /// Connections that end with the manager.
    signaling::SignalConnectionCollection& connections() { return m_connections; }

private:
    signaling::SignalConnectionCollection m_connections;
};

} // namespace corvala::propertymanager
