// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QAction>

#include <functional>

namespace corvala::dialogs::common {

/// Opens the host's help at a reference such as "contour.html#contour/modification".
class LaunchHelpAction : public QAction
{
    Q_OBJECT

public:
    /// An empty reference opens nothing.
    LaunchHelpAction(QString reference, QObject* parent);

    virtual QString reference() const { return m_reference; }

    /// The reference asked for last in this process; empty before the first.
    static QString lastRequest();

    /// Who shows the help. Without a handler the page is opened in the user's browser, if the help
    /// folder is installed beside the program.
    static void setHandler(std::function<void(const QString& reference)> handler);

private:
    void launch();

    QString m_reference;
};

} // namespace corvala::dialogs::common
