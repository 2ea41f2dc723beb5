// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/dialogs_common/launch_help_action.h>

#include <QPointer>
#include <QTabWidget>

#include <map>

namespace corvala::dialogs::common {

/// Opens the help of the page that is current in a tab widget.
class TabWidgetLaunchHelpAction : public LaunchHelpAction
{
    Q_OBJECT

public:
    /// References by page; the pages may belong to several tab widgets. Made without a parent.
    TabWidgetLaunchHelpAction(std::map<QWidget*, QString> references, QTabWidget* tabWidget);

    void setTabWidget(QTabWidget* tabWidget); ///< not owned

    /// Empty for a page without a reference, and without a tab widget.
    QString reference() const override;

private:
    std::map<QWidget*, QString> m_references;
    QPointer<QTabWidget> m_tabWidget;
};

} // namespace corvala::dialogs::common
