// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/toolbox/state_change_event.h>

#include <boost/signals2/signal.hpp>

namespace corvala::signaling {

/// Announces every change of the document, on the user-interface thread, after it is visible and
/// before the operation that made it returns. Slots run in order of connection; a slot may connect
/// and disconnect others, but must not throw. They run before the application's own listeners, so
/// that whoever follows the active frame from here has done so when those look.
class StateChangeEventObservable
    : public boost::signals2::signal<void(const toolbox::StateChangeEventInterface&)>
{
public:
    static StateChangeEventObservable& getInstance();

private:
    StateChangeEventObservable();
    ~StateChangeEventObservable() override;

    boost::signals2::scoped_connection m_feed;
};

} // namespace corvala::signaling
