// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <boost/function.hpp>

#include <memory>

class QTimer;

namespace corvala::sdk::ui {

/// Runs an action once, at the next idle moment of the event loop, also of the nested loop of a
/// menu or a modal prompt.
class OnIdleActionPerformerSingleShot
{
public:
    explicit OnIdleActionPerformerSingleShot(boost::function<void()> action);
    ~OnIdleActionPerformerSingleShot(); ///< a pending run is dropped
    OnIdleActionPerformerSingleShot(const OnIdleActionPerformerSingleShot&) = delete;
    OnIdleActionPerformerSingleShot& operator=(const OnIdleActionPerformerSingleShot&) = delete;

    /// One run is pending afterwards, however many were asked for. From inside the action it asks
    /// for one more run.
    void enableNotification();
    void disableNotification();
    bool isNotificationEnabled() const;

private:
    boost::function<void()> m_action;
    std::unique_ptr<QTimer> m_timer;
};

} // namespace corvala::sdk::ui
