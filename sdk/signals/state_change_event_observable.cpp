// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/signals/state_change_event_observable.h"

#include "host/document/document.h"

namespace corvala::signaling {

namespace {

/// Shows an event of the engine to slots that know no engine.
class HostStateEvent : public toolbox::StateChangeEventInterface
{
public:
    explicit HostStateEvent(const host::StateEvent& event)
        : m_event(event)
    {
    }

    int stateChange() const override { return m_event.code; }
    bool hasStyleParams() const override { return !m_event.parameters.empty(); }
    std::string styleParam(int number) const override
    {
        const auto index = static_cast<std::size_t>(number) - 1;
        return index < m_event.parameters.size() ? m_event.parameters[index] : std::string();
    }

private:
    const host::StateEvent& m_event;
};

} // namespace

StateChangeEventObservable& StateChangeEventObservable::getInstance()
{
    static StateChangeEventObservable instance;
    return instance;
}

StateChangeEventObservable::StateChangeEventObservable()
    : m_feed(host::Document::instance().events().connect(
        [this](const host::StateEvent& event) { (*this)(HostStateEvent(event)); },
        boost::signals2::at_front))
{
}

StateChangeEventObservable::~StateChangeEventObservable() = default;

} // namespace corvala::signaling
