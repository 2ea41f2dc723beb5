// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

class QToolBar;

namespace corvala::app {

/// Shows a toolbar while there is something in it and the user wants it. What the user switches in
/// the menu of the toolbars is kept from run to run.
class BarSwitch : public QObject
{
    Q_OBJECT

public:
    /// The bar, which owns the switch, has its object name.
    explicit BarSwitch(QToolBar& bar);

    void setNeeded(bool isNeeded);

private:
    QToolBar& m_bar;
    QString m_key; ///< in the settings
    bool m_isWanted;
};

} // namespace corvala::app
