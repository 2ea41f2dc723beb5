// SPDX-License-Identifier: BSD-3-Clause
#include "sdk/dialogs_common/tab_widget_launch_help_action.h"

namespace corvala::dialogs::common {

TabWidgetLaunchHelpAction::TabWidgetLaunchHelpAction(std::map<QWidget*, QString> references,
                                                     QTabWidget* tabWidget)
    : LaunchHelpAction(QString(), nullptr)
    , m_references(std::move(references))
    , m_tabWidget(tabWidget)
{
}

void TabWidgetLaunchHelpAction::setTabWidget(QTabWidget* tabWidget)
{
    m_tabWidget = tabWidget;
}

QString TabWidgetLaunchHelpAction::reference() const
{
    if (!m_tabWidget)
        return {};
    const auto found = m_references.find(m_tabWidget->currentWidget());
    return found == m_references.end() ? QString() : found->second;
}

} // namespace corvala::dialogs::common
