// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <boost/function.hpp>
#include <boost/signals2/connection.hpp>

namespace corvala::sdk::ui {

/// The host runs a command while one of these lives: it is busy, and views may put off painting
/// until the command's changes are all made. Commands nest. A held application lock alone does not
/// make the host busy: a prompt may be open under it.
class HostCommandScope
{
public:
    HostCommandScope();
    ~HostCommandScope();
    HostCommandScope(const HostCommandScope&) = delete;
    HostCommandScope& operator=(const HostCommandScope&) = delete;

    static bool isRunning();

    /// `slot` runs with true when the outermost command begins, with false when it has ended.
    static boost::signals2::connection connectChanged(boost::function<void(bool)> slot);
};

} // namespace corvala::sdk::ui
