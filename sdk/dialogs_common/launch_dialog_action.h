// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <sdk/property/relevance_interface.h>

#include <QAction>

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>
#include <boost/signals2/connection.hpp>

namespace corvala::dialogs::common {

class DialogInterface;

/// A command of the host that launches a dialog; enabled while the dialog is relevant.
class LaunchDialogAction : public QAction
{
    Q_OBJECT

public:
    /// `dialog` is asked for the dialog each time the command is given. A null `relevance` is
    /// always relevant.
    LaunchDialogAction(const QString& text,
                       boost::shared_ptr<property::RelevanceInterface const> relevance,
                       boost::function<DialogInterface&()> dialog, QObject* parent);
    ~LaunchDialogAction() override;

private:
    void updateEnabled();

    boost::shared_ptr<property::RelevanceInterface const> m_relevance;
    boost::function<DialogInterface&()> m_dialog;
    boost::signals2::scoped_connection m_connection;
};

} // namespace corvala::dialogs::common
