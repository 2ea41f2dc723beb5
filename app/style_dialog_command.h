// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAction>

#include <boost/signals2/connection.hpp>

namespace corvala::app {

/// The command that opens the style dialog and closes it: checked while the dialog is open, enabled
/// while the active frame has styles to edit.
class StyleDialogCommand : public QAction
{
    Q_OBJECT

public:
    /// Opens the dialog on the window, which must outlive the command.
    explicit StyleDialogCommand(QWidget& mainWindow);

    /// Opens the dialog, when there is something to edit: now, or else with the next data.
    void openWithData();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void openOrClose();
    void follow(QWidget& dialog);

    bool m_opensWithData = false;
    QWidget& m_mainWindow;
    boost::signals2::scoped_connection m_connection;
};

} // namespace corvala::app
