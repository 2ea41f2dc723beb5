// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/uicommon/on_idle_action_performer_single_shot.h"

#include <QTimer>

namespace corvala::sdk::ui {

OnIdleActionPerformerSingleShot::OnIdleActionPerformerSingleShot(boost::function<void()> action)
    : m_action(std::move(action))
    , m_timer(std::make_unique<QTimer>())
{
    m_timer->setSingleShot(true);
    QObject::connect(m_timer.get(), &QTimer::timeout, m_timer.get(), [this] {
        const auto keptAction = m_action; // the action may destroy this performer
        keptAction();
    });
}

OnIdleActionPerformerSingleShot::~OnIdleActionPerformerSingleShot() = default;

void OnIdleActionPerformerSingleShot::enableNotification()
{
    if (!m_timer->isActive())
        m_timer->start(0);
}

void OnIdleActionPerformerSingleShot::disableNotification()
{
    m_timer->stop();
}

bool OnIdleActionPerformerSingleShot::isNotificationEnabled() const
{
    return m_timer->isActive();
}

} // namespace corvala::sdk::ui
