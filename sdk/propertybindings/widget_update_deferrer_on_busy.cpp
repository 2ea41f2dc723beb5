// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/propertybindings/widget_update_deferrer_on_busy.h"

#include <sdk/uicommon/host_command_scope.h>

namespace corvala::propertybindings {

WidgetUpdateDeferrerOnBusy::WidgetUpdateDeferrerOnBusy(QWidget* widget)
    : m_widget(widget)
    , m_connection(
          sdk::ui::HostCommandScope::connectChanged([this](bool busy) { setDeferred(busy); }))
{
    setDeferred(sdk::ui::HostCommandScope::isRunning());
}

WidgetUpdateDeferrerOnBusy::~WidgetUpdateDeferrerOnBusy()
{
    setDeferred(false);
}

void WidgetUpdateDeferrerOnBusy::setDeferred(bool deferred)
{
    if (!m_widget || deferred == m_isDeferring)
        return;
    // Updates that somebody else switched off are not ours to switch on again.
    if (deferred && m_widget->testAttribute(Qt::WA_ForceUpdatesDisabled))
        return;
    m_isDeferring = deferred;
    m_widget->setUpdatesEnabled(!deferred);
}

} // namespace corvala::propertybindings
