// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/bar_switch.h"

#include "app/user_settings.h"

#include <QAction>
#include <QToolBar>

namespace corvala::app {

BarSwitch::BarSwitch(QToolBar& bar)
    : QObject(&bar)
    , m_bar(bar)
    , m_key(QStringLiteral("windows/%1IsWanted").arg(bar.objectName()))
    , m_isWanted(userSettings().value(m_key, true).toBool())
{
    connect(bar.toggleViewAction(), &QAction::triggered, this, [this](bool isWanted) {
        m_isWanted = isWanted;
        userSettings().setValue(m_key, isWanted);
    });
}

void BarSwitch::setNeeded(bool isNeeded)
{
    m_bar.toggleViewAction()->setEnabled(isNeeded);
    m_bar.setVisible(isNeeded && m_isWanted);
}

} // namespace corvala::app
