// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/uicommon/host_command_scope.h"

#include <boost/signals2/signal.hpp>

namespace corvala::sdk::ui {

namespace {

struct RunningCommands
{
    int depth = 0;
    boost::signals2::signal<void(bool)> changed;
};

} // namespace

static RunningCommands& runningCommands()
{
    static RunningCommands commands;
    return commands;
}

HostCommandScope::HostCommandScope()
{
    if (++runningCommands().depth == 1)
        runningCommands().changed(true);
}

HostCommandScope::~HostCommandScope()
{
    if (--runningCommands().depth == 0)
        runningCommands().changed(false);
}

bool HostCommandScope::isRunning()
{
    return runningCommands().depth > 0;
}

boost::signals2::connection HostCommandScope::connectChanged(boost::function<void(bool)> slot)
{
    return runningCommands().changed.connect(std::move(slot));
}

} // namespace corvala::sdk::ui
